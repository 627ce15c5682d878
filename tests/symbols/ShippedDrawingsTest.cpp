// The shipped drawings, demonstrations and templates, read as an electrician reads them: from the
// file, by where wires, dots and terminals lie. Nothing here knows how the drawings were made.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "document/DrawingFile.h"
#include "document/PageLayout.h"
#include "document/Records.h"
#include "support/FakePlatform.h"
#include "symbols/DrawDevice.h"

namespace ladrix::test {
namespace {

constexpr Single Raster = 0.125f, Near = 0.002f;
constexpr Long Carrying = RGB(0, 96, 208);    // of conductors that carry current
constexpr Long Operated = RGB(255, 212, 96);  // of marks behind what is operated: no conductors

struct Point {
    Single x = 0, y = 0;
};
bool same(Point a, Point b) {
    return std::fabs(a.x - b.x) < Near && std::fabs(a.y - b.y) < Near;
}
bool onRaster(Point p) {
    return same(p, {std::round(p.x / Raster) * Raster, std::round(p.y / Raster) * Raster});
}
std::ostream& operator<<(std::ostream& out, Point p) {
    return out << '(' << p.x << ", " << p.y << ')';
}

struct Wire {
    Point from, to;
};
// Within the wire, its ends left out.
bool passes(const Wire& wire, Point p) {
    if (same(p, wire.from) || same(p, wire.to)) return false;
    const Single dx = wire.to.x - wire.from.x, dy = wire.to.y - wire.from.y;
    const Single length = std::hypot(dx, dy);
    const Single along = ((p.x - wire.from.x) * dx + (p.y - wire.from.y) * dy) / length;
    const Single across = ((p.x - wire.from.x) * dy - (p.y - wire.from.y) * dx) / length;
    return along > 0 && along < length && std::fabs(across) < Near;
}

// Terminals of a symbol, from its insertion point; none where it is not known.
std::vector<Point> terminalsOf(const std::string& name) {
    static const std::set<std::string> lying = {
        "InsertDisconnect90",    "InsertFuse",      "InsertContactNOClosed",
        "InsertContactNCOpened", "InsertContactNO", "InsertContactNC",
        "InsertThermalOverload", "InsertPBNC",      "InsertPBNO",
        "InsertRelayCoil",       "InsertLamp"};
    static const std::set<std::string> upright = {"InsertFuse90", "InsertCircuitBreaker",
                                                  "InsertThermalOverload90", "InsertContactNO90",
                                                  "InsertContactNO90Closed"};
    if (lying.contains(name)) return {{0, 0}, {0.5f, 0}};
    if (upright.contains(name)) return {{0, 0}, {0, 0.5f}};
    if (name == "InsertGround") return {{0, 0}};
    if (name != "InsertControlTransformer") return {};
    return {{0, 0}, {0.5f, 0}, {0.75f, 0}, {1.25f, 0}, {0.25f, 0.5f}, {1, 0.5f}};
}

struct Part {
    std::string name, tag = {};
    std::vector<Point> terminals = {};
    Point middle = {};
};

struct Schematic {
    FakePlatform machine;
    Drawing drawing;
    std::vector<Wire> wires;
    std::vector<Point> dots;
    std::vector<Part> parts;

    explicit Schematic(const std::string& file) {
        std::ifstream in(LADRIX_DATA "/" + file, std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(in), {}};
        takeParts(drawing, splitFile(text, std::chrono::system_clock::now()));
        ParseDeviceString(drawing, machine.platform);
        ParseLabelString(drawing, machine.platform);
        const DeviceTable& table = drawing.devices;
        for (Short i = 0; i < table.DeviceCount; ++i)
            takeWire(table.row(i));
        for (Short i = 0; i < table.DeviceCount; ++i)
            takePart(table.row(i));
    }

    Extent box(Short label) const {
        const Label l = drawing.labels.row(label);
        // Arial's average for capitals and figures; small letters are narrower.
        const Single width = 0.62f * l.fontSize / 72 * static_cast<Single>(l.text.size());
        return {l.x, l.y, l.x + width, l.y + 1.117f * l.fontSize / 72};
    }

    const Part& part(const std::string& name, const std::string& tag) const {
        const auto found = std::find_if(parts.begin(), parts.end(), [&](const Part& p) {
            return p.name == name && p.tag == tag;
        });
        if (found == parts.end()) throw std::runtime_error("No " + name + " " + tag);
        return *found;
    }
    // The supply terminal that stands beside this label.
    Point supply(const std::string& label) const { return part("terminal", label).terminals[0]; }

    // Branches and terminals that end at a point; a wire that passes counts as two.
    int meeting(Point p) const {
        int count = 0;
        for (const Wire& wire : wires) {
            count += (same(wire.from, p) ? 1 : 0) + (same(wire.to, p) ? 1 : 0);
            if (hasDot(p) && passes(wire, p)) count += 2;
        }
        for (const Part& each : parts) {
            for (const Point& terminal : each.terminals)
                count += same(terminal, p) ? 1 : 0;
        }
        return count;
    }
    bool hasDot(Point p) const {
        return std::any_of(dots.begin(), dots.end(), [&](Point dot) { return same(dot, p); });
    }

  private:
    // Lines in other colours carry no current.
    void takeWire(const Device& device) {
        const Point at{device.x, device.y};
        if (device.name == "InsertSolidCircle" && device.color != Operated) dots.push_back(at);
        if (device.name != "InsertSavedLine") return;
        if (device.color != Black && device.color != Carrying) return;
        wires.push_back({at, {device.x2, device.y2}});
    }
    void takePart(const Device& device) {
        const Point at{device.x, device.y};
        if (device.name == "InsertCircle") {
            takeCircle(at, device.radius);
        } else if (const auto terminals = terminalsOf(device.name); !terminals.empty()) {
            Part made{.name = device.name};
            for (const Point& t : terminals)
                made.terminals.push_back({at.x + t.x, at.y + t.y});
            const Point first = made.terminals.front();
            const Point last = made.terminals[made.terminals.size() > 1 ? 1 : 0];
            made.middle = {(first.x + last.x) / 2, (first.y + last.y) / 2};
            made.tag = nearestTag(made.middle);
            parts.push_back(std::move(made));
        } else {
            const std::set<std::string> known = {"InsertSavedLine", "InsertSolidCircle",
                                                 "InsertSavedSquare"};
            EXPECT_TRUE(known.contains(device.name)) << device.name;
        }
    }
    // A supply terminal or the motor: wires may end at the circle's four sides.
    void takeCircle(Point at, Single r) {
        Part made{.name = r < 0.1f ? "terminal" : "motor", .middle = {at.x + r, at.y}};
        for (const Point& side : {Point{at.x, at.y},
                                  {at.x + r, at.y - r},
                                  {at.x + r, at.y + r},
                                  {at.x + 2 * r, at.y}}) {
            const bool wired = std::any_of(wires.begin(), wires.end(), [&](const Wire& w) {
                return same(w.from, side) || same(w.to, side);
            });
            if (wired) made.terminals.push_back(side);
        }
        made.tag = nearestTag(made.middle);
        parts.push_back(std::move(made));
    }
    // The nearest label above or beside; wire numbers and remarks are not in black.
    std::string nearestTag(Point p) const {
        std::string tag;
        Single least = 0.55f;
        for (Short i = 0; i < drawing.labels.LabelCount; ++i) {
            if (drawing.labels.row(i).color != Black) continue;
            const Extent extent = box(i);
            if (extent.top > p.y) continue;
            const Single away = std::hypot((extent.left + extent.right) / 2 - p.x,
                                           (extent.top + extent.bottom) / 2 - p.y);
            if (away >= least) continue;
            least = away;
            tag = drawing.labels.row(i).text;
        }
        return tag;
    }
};

// Which points are one conductor, parts that conduct included.
class Nets {
  public:
    explicit Nets(const Schematic& schematic) {
        for (const Wire& wire : schematic.wires) {
            join(wire.from, wire.to);
            for (const Point& dot : schematic.dots) {
                if (passes(wire, dot)) join(dot, wire.from);
            }
        }
    }
    void join(Point a, Point b) { net_[root(index(a))] = root(index(b)); }
    bool joined(Point a, Point b) { return root(index(a)) == root(index(b)); }

  private:
    std::vector<Point> points_;
    std::vector<std::size_t> net_;

    std::size_t index(Point p) {
        for (std::size_t i = 0; i < points_.size(); ++i) {
            if (same(points_[i], p)) return i;
        }
        points_.push_back(p);
        net_.push_back(net_.size());
        return net_.size() - 1;
    }
    std::size_t root(std::size_t i) const { return net_[i] == i ? i : root(net_[i]); }
};

// The circuit under the hands of its user. `held` are the buttons that are down, "OL" the tripped
// overload relay. The coil picks up and drops out until nothing changes.
struct Circuit {
    const Schematic& schematic;
    Point hot, neutral;
    std::set<std::string> held;
    bool M = false;

    bool conducts(const Part& part) const {
        const bool acted = part.tag == "M" ? M : held.contains(part.tag);
        if (part.name == "InsertContactNO" || part.name == "InsertPBNO") return acted;
        if (part.name == "InsertContactNC" || part.name == "InsertPBNC") return !acted;
        return part.name == "InsertFuse" || part.name == "InsertFuse90" ||
               part.name == "InsertDisconnect90" || part.name == "InsertThermalOverload";
    }
    Nets nets() const {
        Nets nets(schematic);
        for (const Part& part : schematic.parts) {
            if (conducts(part)) nets.join(part.terminals[0], part.terminals[1]);
        }
        return nets;
    }
    bool live(const std::string& name, const std::string& tag) const {
        const Part& load = schematic.part(name, tag);
        Nets now = nets();
        EXPECT_FALSE(now.joined(hot, neutral)) << "short circuit";
        return (now.joined(load.terminals[0], hot) && now.joined(load.terminals[1], neutral)) ||
               (now.joined(load.terminals[1], hot) && now.joined(load.terminals[0], neutral));
    }
    bool lit(const std::string& tag) const { return live("InsertLamp", tag); }
    bool operate(std::set<std::string> buttons) {
        held = std::move(buttons);
        for (int settling = 0; settling < 4; ++settling) {
            const bool energised = live("InsertRelayCoil", "M");
            if (energised == M) return M;
            M = energised;
        }
        ADD_FAILURE() << "the coil chatters";
        return M;
    }
};

constexpr const char* MotorForward = "Motor Forward Power And Logic.els";
constexpr const char* MotorReverse = "Motor Reverse Power And Logic.els";
const std::string Circuits[] = {"Demo1.els", "Demo2.els", MotorForward, MotorReverse};
const std::string Shipped[] = {"Demo1.els", "Demo2.els", "Template A4 Portrait.tpl",
                               "Template Letter Landscape.tpl", "Template Ladder.tpl"};

TEST(ShippedDrawings, IsReadWithoutARemarkAndFitsItsPage) {
    for (const std::string& file : Shipped) {
        SCOPED_TRACE(file);
        const Schematic schematic(file);
        EXPECT_TRUE(schematic.machine.reports.empty());
        EXPECT_TRUE(schematic.machine.dialogs.boxes.empty());
        EXPECT_FALSE(schematic.drawing.FileDescription.empty());
        ASSERT_GT(schematic.drawing.devices.DeviceCount, 10);
        const auto page = pageSize(schematic.drawing.PageLayoutKey);
        ASSERT_TRUE(page);
        for (Short i = 0; i < schematic.drawing.devices.DeviceCount; ++i) {
            const Extent extent = deviceExtent(schematic.drawing.devices, i);
            // What every printer reaches.
            EXPECT_GE(std::min(extent.left, extent.top), 0.25f) << i;
            EXPECT_LE(extent.right, page->PageWidth - 0.25f) << i;
            EXPECT_LE(extent.bottom, page->PageHeight - 0.25f) << i;
        }
    }
}

TEST(CircuitDrawings, HasEveryWireEndAndTerminalConnectedAndDotsWhereThreeMeet) {
    for (const std::string& file : Circuits) {
        SCOPED_TRACE(file);
        const Schematic schematic(file);
        for (const Wire& wire : schematic.wires) {
            for (const Point& end : {wire.from, wire.to}) {
                EXPECT_TRUE(onRaster(end)) << end;
                EXPECT_GE(schematic.meeting(end), 2) << "loose end at " << end;
                EXPECT_EQ(schematic.meeting(end) > 2, schematic.hasDot(end)) << end;
                for (const Wire& other : schematic.wires) {
                    EXPECT_TRUE(!passes(other, end) || schematic.hasDot(end))
                        << "no dot at " << end;
                }
            }
        }
        for (const Point& dot : schematic.dots)
            EXPECT_GE(schematic.meeting(dot), 3) << dot;
        for (const Part& part : schematic.parts) {
            EXPECT_FALSE(part.terminals.empty()) << part.name << ' ' << part.tag;
            for (const Point& terminal : part.terminals) {
                EXPECT_TRUE(onRaster(terminal)) << part.name << terminal;
                EXPECT_EQ(schematic.meeting(terminal), 2) << part.name << " open at " << terminal;
            }
            if (part.name == "InsertGround" || part.name == "InsertControlTransformer" ||
                part.name == "InsertDisconnect90" || part.name == "InsertCircuitBreaker") {
                continue;
            }
            EXPECT_FALSE(part.tag.empty()) << part.name << " without a label at " << part.middle;
        }
    }
}

// Whether the label's box and the straight primitive have a point in common, by halving.
bool crosses(const Extent& box, Point a, Point b, int depth = 10) {
    Extent extent;
    extent.add(a.x, a.y);
    extent.add(b.x, b.y);
    if (!extent.meets(box)) return false;
    if (depth == 0) return true;
    const Point middle{(a.x + b.x) / 2, (a.y + b.y) / 2};
    return crosses(box, a, middle, depth - 1) || crosses(box, middle, b, depth - 1);
}

// A circle as a polygon: a label inside it does not cross it.
bool crossesCircle(const Extent& box, const Primitive& circle) {
    constexpr int Sides = 32;
    const auto corner = [&](int i) {
        const auto angle = static_cast<Single>(2 * Pi * i / Sides);
        return Point{circle.x1 + circle.radius * std::cos(angle),
                     circle.y1 - circle.radius * std::sin(angle)};
    };
    for (int i = 0; i < Sides; ++i) {
        if (crosses(box, corner(i), corner(i + 1))) return true;
    }
    return false;
}

TEST(ShippedDrawings, HasNoLabelOnALineOrOnAnotherLabel) {
    for (const std::string& file : Shipped) {
        SCOPED_TRACE(file);
        Schematic schematic(file);
        RecordingPage page;
        Symbols symbols;
        for (Short i = 0; i < schematic.drawing.devices.DeviceCount; ++i) {
            drawRow(symbols, schematic.drawing, schematic.machine.platform, page,
                    schematic.drawing.devices, i, Black);
        }
        ASSERT_GT(page.primitives.size(), schematic.parts.size());
        const Short labels = schematic.drawing.labels.LabelCount;
        for (Short i = 0; i < labels; ++i) {
            const Extent box = schematic.box(i);
            const std::string text = schematic.drawing.labels.row(i).text;
            for (const Primitive& p : page.primitives) {
                if (p.kind != Primitive::Kind::Line) {
                    EXPECT_FALSE(crossesCircle(box, p)) << text << ": " << p;
                } else if (p.form == LineForm::Plain) {
                    EXPECT_FALSE(crosses(box, {p.x1, p.y1}, {p.x2, p.y2})) << text << ": " << p;
                }
            }
            for (Short j = 0; j < i; ++j) {
                EXPECT_FALSE(box.meets(schematic.box(j)))
                    << text << ": " << schematic.drawing.labels.row(j).text;
            }
        }
    }
}

TEST(MotorStarterDemo, StartsHoldsStopsAndTrips) {
    const Schematic schematic("Demo1.els");
    const Part& transformer = schematic.part("InsertControlTransformer", "");
    Circuit circuit{schematic, transformer.terminals[4], transformer.terminals[5], {}};
    EXPECT_FALSE(circuit.operate({}));
    EXPECT_TRUE(circuit.lit("W"));
    EXPECT_TRUE(circuit.operate({"2PB"}));
    EXPECT_TRUE(circuit.operate({})) << "seal-in";
    EXPECT_FALSE(circuit.operate({"1PB"}));
    EXPECT_FALSE(circuit.operate({})) << "no restart by itself";
    EXPECT_FALSE(circuit.operate({"1PB", "2PB"})) << "stop has precedence";
    circuit.operate({"2PB"});
    EXPECT_FALSE(circuit.operate({"OL"}));
    EXPECT_FALSE(circuit.operate({}));
}

TEST(MotorStarterDemo, SwitchesThreePhasesToTheMotorAndTwoToTheTransformer) {
    const Schematic schematic("Demo1.els");
    const Part& transformer = schematic.part("InsertControlTransformer", "");
    const Part& motor = schematic.part("motor", "MOTOR");
    const std::array<Point, 3> supply = {schematic.supply("L1"), schematic.supply("L2"),
                                         schematic.supply("L3")};
    for (const bool running : {false, true}) {
        Circuit circuit{schematic, transformer.terminals[4], transformer.terminals[5], {}, running};
        Nets nets = circuit.nets();
        std::multiset<int> windings;  // motor terminals on each phase
        for (std::size_t phase = 0; phase < 3; ++phase) {
            EXPECT_FALSE(nets.joined(supply[phase], supply[(phase + 1) % 3]));
            windings.insert(static_cast<int>(
                std::count_if(motor.terminals.begin(), motor.terminals.end(),
                              [&](Point t) { return nets.joined(t, supply[phase]); })));
        }
        const int each = running ? 1 : 0;
        EXPECT_EQ(windings, (std::multiset<int>{each, each, each}));
        EXPECT_TRUE(nets.joined(transformer.terminals[0], supply[0]));
        EXPECT_TRUE(nets.joined(transformer.terminals[3], supply[1]));
        EXPECT_TRUE(nets.joined(transformer.terminals[1], transformer.terminals[2]));
        EXPECT_FALSE(nets.joined(transformer.terminals[4], supply[0]));
    }
    Nets wiring(schematic);
    const auto grounded =
        std::count_if(schematic.parts.begin(), schematic.parts.end(), [&](const Part& part) {
            return part.name == "InsertGround" &&
                   wiring.joined(part.terminals[0], transformer.terminals[5]);
        });
    EXPECT_EQ(grounded, 1) << "X2 is the grounded side";
}

TEST(TwoStationDemo, StartsAndStopsFromEitherStationAndShowsIt) {
    const Schematic schematic("Demo2.els");
    Circuit circuit{schematic, schematic.supply("L1"), schematic.supply("N"), {}};
    for (const char* start : {"3PB", "4PB"}) {
        for (const char* stop : {"1PB", "2PB", "OL"}) {
            SCOPED_TRACE(std::string(start) + " then " + stop);
            EXPECT_FALSE(circuit.operate({}));
            EXPECT_FALSE(circuit.lit("G"));
            EXPECT_TRUE(circuit.lit("R"));
            EXPECT_TRUE(circuit.operate({start}));
            EXPECT_TRUE(circuit.operate({})) << "seal-in";
            EXPECT_TRUE(circuit.lit("G"));
            EXPECT_FALSE(circuit.lit("R"));
            EXPECT_FALSE(circuit.operate({start, stop})) << "stop has precedence";
            EXPECT_FALSE(circuit.operate({})) << "no restart by itself";
        }
    }
}

// A new drawing snaps to quarters of an inch: rungs must be drawn on the numbered lines.
TEST(LadderTemplate, HasFusedRailsAndEvenlyNumberedLinesOnTheSnapStep) {
    const Schematic schematic("Template Ladder.tpl");
    Circuit circuit{schematic, schematic.supply("L1"), schematic.supply("N"), {}};
    Nets nets = circuit.nets();
    EXPECT_FALSE(nets.joined(circuit.hot, circuit.neutral));
    const auto rail = [&](Point supply) {
        const auto end = std::max_element(schematic.wires.begin(), schematic.wires.end(),
                                          [&](const Wire& a, const Wire& b) {
                                              return (nets.joined(a.to, supply) ? a.to.y : 0) <
                                                     (nets.joined(b.to, supply) ? b.to.y : 0);
                                          });
        return end->to;
    };
    const Point left = rail(circuit.hot), right = rail(circuit.neutral);
    EXPECT_EQ(Nets(schematic).joined(left, circuit.hot), false) << "through the fuse alone";
    EXPECT_TRUE(same(left, {1.25f, left.y}) && same(right, {6.5f, left.y})) << left << right;
    std::vector<Single> lines;
    for (Short i = 0; i < schematic.drawing.devices.DeviceCount; ++i) {
        const Device d = schematic.drawing.devices.row(i);
        if (d.name == "InsertSavedLine" && d.color != Black && d.y == d.y2 && d.x2 == left.x)
            lines.push_back(d.y);
    }
    ASSERT_EQ(lines.size(), 14u);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i], 2.25f + 0.5f * static_cast<Single>(i));
        bool isNumbered = false;
        for (Short j = 0; j < schematic.drawing.labels.LabelCount; ++j)
            isNumbered |= schematic.drawing.labels.row(j).text == std::to_string(i + 1) &&
                          schematic.box(j).top < lines[i] && schematic.box(j).bottom > lines[i];
        EXPECT_TRUE(isNumbered) << i + 1;
    }
}

// As drawn: the one drawing runs forward, the other in reverse.
bool conductsAsDrawn(const Part& part) {
    const std::set<std::string> open = {
        "InsertContactNO", "InsertContactNO90", "InsertContactNCOpened",    "InsertPBNO",
        "InsertRelayCoil", "InsertLamp",        "InsertControlTransformer", "motor"};
    return part.terminals.size() == 2 && !open.contains(part.name);
}

TEST(MotorDrawing, LeadsThePhasesInTheOrderOfItsDirectionAndIsInterlocked) {
    for (const bool forward : {true, false}) {
        const Schematic schematic(forward ? MotorForward : MotorReverse);
        Nets nets(schematic), pressed(schematic);  // as drawn; with all buttons down
        for (const Part& part : schematic.parts) {
            if (conductsAsDrawn(part)) nets.join(part.terminals[0], part.terminals[1]);
            if (conductsAsDrawn(part) || part.name == "InsertPBNO")
                pressed.join(part.terminals[0], part.terminals[1]);
        }
        const Part& motor = schematic.part("motor", "5 HP");
        const Part& transformer = schematic.part("InsertControlTransformer", "");
        // Left, top and right of the motor: T1, T2, T3.
        ASSERT_EQ(motor.terminals.size(), 4u);
        const Point t1 = motor.terminals[0], t2 = motor.terminals[1], t3 = motor.terminals[3];
        EXPECT_TRUE(nets.joined(schematic.supply("L1"), forward ? t1 : t3));
        EXPECT_TRUE(nets.joined(schematic.supply("L2"), t2));
        EXPECT_TRUE(nets.joined(schematic.supply("L3"), forward ? t3 : t1));
        EXPECT_FALSE(nets.joined(t1, t2) || nets.joined(t2, t3) || nets.joined(t1, t3));
        EXPECT_TRUE(nets.joined(transformer.terminals[0], schematic.supply("L1")));
        EXPECT_TRUE(nets.joined(transformer.terminals[3], schematic.supply("L2")));

        const Point hot = transformer.terminals[4], neutral = transformer.terminals[5];
        EXPECT_FALSE(nets.joined(hot, neutral));
        const auto live = [&](const char* name, const char* tag) {
            const Part& load = schematic.part(name, tag);
            return nets.joined(load.terminals[0], hot) && nets.joined(load.terminals[1], neutral);
        };
        EXPECT_EQ(live("InsertRelayCoil", "F"), forward);
        EXPECT_EQ(live("InsertRelayCoil", "R"), !forward);
        EXPECT_EQ(live("InsertLamp", "1LT"), forward);
        EXPECT_EQ(live("InsertLamp", "2LT"), !forward);
        const Part& other = schematic.part("InsertRelayCoil", forward ? "R" : "F");
        EXPECT_FALSE(pressed.joined(other.terminals[0], hot)) << "the other contactor comes in";
    }
}

}  // namespace
}  // namespace ladrix::test
