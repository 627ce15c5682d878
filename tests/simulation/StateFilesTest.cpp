// The shipped drawings of the simulation, read as one who knows relay logic reads them: from the
// files, by where wires and symbols lie and what colour they have. Nothing here knows how the
// drawings were made.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "document/DrawingFile.h"
#include "document/Records.h"
#include "support/FakePlatform.h"

namespace ladrix::test {
namespace {

constexpr Long Live = RGB(208, 0, 0), Carrying = RGB(0, 96, 208), Lit = RGB(255, 212, 96);
constexpr Single Near = 0.002f, LadderEnd = 5.1f;

using Names = std::set<std::string>;

// What is operated in each state; "T1*" are the timed contacts where they differ from the coil.
const std::map<std::string, Names> States = {
    {"1_Off", {}},
    {"1_Start1", {"START 1", "CR1", "PL1"}},
    {"1_Stop1", {"STOP 1"}},
    {"1_Start1.CR2.On", {"START 1", "CR1", "PL1", "CR2", "PL2"}},
    {"1_Stop1.CR2.On", {"STOP 1", "CR2", "PL2"}},
    {"1_Start2", {"START 2", "CR2", "PL2"}},
    {"1_Stop2", {"STOP 2"}},
    {"1_CR2.On", {"CR2", "PL2"}},
    {"2_Off", {}},
    {"2_Start", {"START 1", "CR1", "T1", "PL1"}},
    {"2_Stop", {"STOP 1"}},
    {"2_Start.T1.Expired", {"START 1", "CR1", "T1", "T1*", "PL2"}},
    {"2_T1.Expired", {"CR1", "T1", "T1*", "PL2"}},
    {"2_T1.Started", {"CR1", "T1", "PL1"}},
    {"3_Off", {}},
    {"3_Start", {"START 1", "CR1", "T1", "T1*", "PL1", "PL2"}},
    {"3_Stop", {"STOP 1", "T1*", "PL2"}},
    {"3_Stop.Off", {"STOP 1"}},
    {"3_T1.Started", {"CR1", "T1", "T1*", "PL1", "PL2"}},
    {"3_T1.Stopped", {"T1*", "PL2"}},
};

struct Point {
    Single x = 0, y = 0;
};
bool same(Point a, Point b) {
    return std::fabs(a.x - b.x) < Near && std::fabs(a.y - b.y) < Near;
}

struct Conductor {
    Point ends[2];
    std::string symbol, name;  // "" for a wire
    Long color = Black;
    bool closed = true;

    bool isLoad() const { return symbol == "InsertRelayCoil" || symbol == "InsertLamp"; }
};

struct Sheet {
    FakePlatform machine;
    Drawing drawing;
    std::vector<Conductor> conductors;
    std::vector<Conductor> stubs;  // lines over a symbol, in the colour of one of its sides
    std::vector<Point> lit;
    Point hot, neutral;

    explicit Sheet(const std::string& file) {
        std::ifstream in(LADRIX_DATA "/Simulation Files/" + file, std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(in), {}};
        takeParts(drawing, splitFile(text, std::chrono::system_clock::now()));
        ParseDeviceString(drawing, machine.platform);
        ParseLabelString(drawing, machine.platform);
        EXPECT_TRUE(machine.reports.empty());
        for (Short i = 0; i < drawing.devices.DeviceCount; ++i)
            take(drawing.devices.row(i));
        const auto first = std::stable_partition(
            conductors.begin(), conductors.end(),
            [&](const Conductor& c) { return !c.symbol.empty() || !liesOnSymbol(c.ends[1]); });
        stubs.assign(first, conductors.end());
        conductors.erase(first, conductors.end());
    }
    bool liesOnSymbol(Point p) const {
        return std::any_of(conductors.begin(), conductors.end(), [&](const Conductor& c) {
            return !c.symbol.empty() && p.x > c.ends[0].x + Near && p.x < c.ends[1].x - Near &&
                   std::fabs(p.y - c.ends[0].y) < 0.16f;
        });
    }
    // What is seen where this end of a symbol meets its wire.
    Long colorAt(const Conductor& symbol, int end) const {
        for (const Conductor& stub : stubs)
            if (same(stub.ends[0], symbol.ends[end])) return stub.color;
        return symbol.color;
    }

    bool isLit(Point at) const {
        return std::any_of(lit.begin(), lit.end(),
                           [&](Point p) { return std::hypot(p.x - at.x, p.y - at.y) < 0.3f; });
    }
    // What the drawing says is operated.
    Names operated() const {
        Names names;
        for (const Conductor& c : conductors) {
            if (c.symbol.empty()) continue;
            const bool timed = c.symbol.find("Delay") != std::string::npos;
            if (isLit({c.ends[0].x + 0.25f, c.ends[0].y}))
                names.insert(c.name + (timed ? "*" : ""));
        }
        return names;
    }
    // The points that these conductors join to this one.
    std::vector<Point> net(Point from) const {
        std::vector<Point> found{from};
        for (std::size_t i = 0; i < found.size(); ++i)
            for (const Conductor& c : conductors)
                for (const int end : {0, 1})
                    if (c.closed && !c.isLoad() && same(c.ends[end], found[i]) &&
                        !holds(found, c.ends[1 - end]))
                        found.push_back(c.ends[1 - end]);
        return found;
    }
    static bool holds(const std::vector<Point>& points, Point p) {
        return std::any_of(points.begin(), points.end(), [&](Point q) { return same(p, q); });
    }
    int meeting(Point p, Long color) const {
        return static_cast<int>(
            std::count_if(conductors.begin(), conductors.end(), [&](const Conductor& c) {
                return c.color == color && (same(c.ends[0], p) || same(c.ends[1], p));
            }));
    }

  private:
    void take(const Device& device) {
        const Point at{device.x, device.y};
        if (at.y > LadderEnd) return;
        if (device.name == "InsertSavedLine") {
            if (device.color == Black || device.color == Live || device.color == Carrying)
                conductors.push_back({{at, {device.x2, device.y2}}, "", "", device.color, true});
        } else if (device.name == "InsertSolidCircle") {
            if (device.color == Lit) lit.push_back(at);
        } else if (device.name == "InsertCircle") {
            Point& terminal = labelAbove(at) == "L1" ? hot : neutral;
            terminal = {at.x + device.radius, at.y + device.radius};
        } else if (device.name != "InsertSavedSquare") {
            const Names open = {"InsertPBNCDown", "InsertPBNO", "InsertContactNO",
                                "InsertOnDelayNO", "InsertOffDelayNO"};
            conductors.push_back({{at, {at.x + 0.5f, at.y}},
                                  device.name,
                                  labelAbove({at.x + 0.2f, at.y}),
                                  device.color,
                                  !open.contains(device.name)});
        }
    }
    // The nearest one in the symbol or above it.
    std::string labelAbove(Point p) const {
        std::string text;
        Single least = 0.6f;
        for (Short i = 0; i < drawing.labels.LabelCount; ++i) {
            const Label label = drawing.labels.row(i);
            const Single away = std::hypot(label.x - p.x, label.y + 0.06f - p.y);
            if (label.y > p.y || away >= least) continue;
            least = away;
            text = label.text;
        }
        return text;
    }
};

class StateFile : public testing::TestWithParam<std::pair<const std::string, Names>> {};
INSTANTIATE_TEST_SUITE_P(, StateFile, testing::ValuesIn(States), [](const auto& test) {
    std::string name = test.param.first;
    std::replace(name.begin(), name.end(), '.', '_');
    return "Circuit" + name;
});

TEST_P(StateFile, ShowsTheSameDevicesOperatedInBothViews) {
    for (const char* view : {"V_Demo_", "C_Demo_"}) {
        const Sheet sheet(view + GetParam().first + ".els");
        EXPECT_EQ(sheet.operated(), GetParam().second) << view;
        EXPECT_FALSE(sheet.drawing.FileDescription.empty());
    }
}

// A contact follows its coil, a timed one its timer; what is moved is drawn so.
TEST_P(StateFile, HasEveryContactWhereItsCoilPutsIt) {
    const Sheet sheet("V_Demo_" + GetParam().first + ".els");
    const Names& operated = GetParam().second;
    std::map<std::string, int> seen;
    for (const Conductor& c : sheet.conductors) {
        if (c.symbol.empty() || c.isLoad()) continue;
        ++seen[c.name];
        const bool timed = c.symbol.find("Delay") != std::string::npos;
        const bool on = operated.contains(c.name + (timed ? "*" : ""));
        const bool closedAtRest = c.name.starts_with("STOP") ||
                                  (timed && c.ends[0].y < 4 && GetParam().first.starts_with("2"));
        EXPECT_EQ(c.closed, on != closedAtRest) << c.symbol << ' ' << c.name;
    }
    EXPECT_GE(seen.size(), 4u);
}

TEST_P(StateFile, IsColouredByVoltageAndEnergizesWhatHasAPath) {
    const Sheet sheet("V_Demo_" + GetParam().first + ".els");
    const auto live = sheet.net(sheet.hot), neutral = sheet.net(sheet.neutral);
    ASSERT_GT(live.size(), 5u);
    for (const Conductor& c : sheet.conductors) {
        EXPECT_FALSE(Sheet::holds(neutral, c.ends[0]) && Sheet::holds(live, c.ends[0])) << "short";
        const bool hot = Sheet::holds(live, c.ends[0]) && c.closed;
        EXPECT_EQ(c.color, hot ? Live : Black) << c.symbol << c.name << c.ends[0].x << c.ends[0].y;
        for (const int end : {0, 1}) {
            if (!c.symbol.starts_with("InsertContact") && c.symbol != "InsertLamp") continue;
            EXPECT_EQ(sheet.colorAt(c, end), Sheet::holds(live, c.ends[end]) ? Live : Black)
                << c.symbol << c.name << c.ends[end].x << ' ' << c.ends[end].y;
        }
        if (c.isLoad()) {
            EXPECT_TRUE(Sheet::holds(neutral, c.ends[1]));
            EXPECT_EQ(hot, GetParam().second.contains(c.name)) << c.name;
        }
    }
}

TEST_P(StateFile, HasCurrentInClosedPathsOnly) {
    const Sheet sheet("C_Demo_" + GetParam().first + ".els");
    const Sheet other("V_Demo_" + GetParam().first + ".els");
    const auto neutral = sheet.net(sheet.neutral);
    ASSERT_EQ(sheet.conductors.size(), other.conductors.size());
    for (std::size_t i = 0; i < sheet.conductors.size(); ++i) {
        const Conductor& c = sheet.conductors[i];
        EXPECT_EQ(c.symbol, other.conductors[i].symbol);
        if (c.isLoad()) {
            EXPECT_EQ(c.color == Carrying, GetParam().second.contains(c.name));
        }
        if (c.color != Carrying) continue;
        EXPECT_TRUE(c.closed);
        EXPECT_TRUE(other.conductors[i].color == Live || Sheet::holds(neutral, c.ends[0]));
        for (const Point& end : c.ends) {
            if (same(end, sheet.hot) || same(end, sheet.neutral)) continue;
            EXPECT_GE(sheet.meeting(end, Carrying), 2) << c.name << end.x << ' ' << end.y;
        }
    }
}

}  // namespace
}  // namespace ladrix::test
