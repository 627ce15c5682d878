// make_motor_drawings OUTPUT-FOLDER: makes the two drawings of a reversing motor starter, power and
// logic, one running forward and one in reverse. Both are the same circuit after other buttons: the
// logic is evaluated, and the contactors of the power section follow its coils.
#include <cmath>
#include <string>
#include <string_view>

#include "RelayDrawing.h"
#include "Sheet.h"
#include "SheetParts.h"

namespace ladrix::tools {

namespace {

constexpr Single Length = 0.5f;  // of a symbol, from terminal to terminal
constexpr Single PhaseX[] = {1.25f, 1.875f, 2.5f};
constexpr Single ReverseX[] = {3.125f, 3.75f, 4.375f};
constexpr Single TapY[] = {3.25f, 3.125f, 3};  // where a phase leaves for the reversing contactor
constexpr Single JoinY[] = {4.25f, 4.375f, 4.5f};  // where it comes back
constexpr Single ContactY = 3.5f, OverloadY = 4.75f;
constexpr Single RailLeft = 5, RailRight = 10, SupplyY = 3.375f;
constexpr Single TransformerX = 5.5f, TransformerY = 2.625f;

// --- Logic -----------------------------------------------------------------------------------

struct Path {
    Single y, seal;
    std::string start, interlock, coil;
};
constexpr Single StopX = 5.5f, ButtonX = 6.375f, InterlockX = 7.375f, CoilX = 8.125f;
constexpr Single BranchX = 6.125f, SealEndX = 7.125f, JoinX = 8.875f, OverloadX = 9.25f;

RelayCircuit controlCircuit() {
    const Path forward{4, 4.5f, "FORWARD", "R", "F"};
    const Path reverse{5.25f, 5.75f, "REVERSE", "F", "R"};
    RelayCircuit circuit{{RailLeft, SupplyY}, {RailRight, SupplyY}, {}, {}};
    const auto wire = [&](Point from, Point to) { circuit.wires.push_back({from, to}); };
    const auto device = [&](Kind kind, const std::string& name, Single x, Single y) {
        circuit.devices.push_back({kind, name, {x, y}});
    };
    const auto lampRung = [&](Single y, const std::string& contact, const std::string& lamp) {
        wire({RailLeft, y}, {ButtonX, y});
        device(Kind::ContactNO, contact, ButtonX, y);
        wire({ButtonX + Length, y}, {CoilX, y});
        device(Kind::Lamp, lamp, CoilX, y);
        wire({CoilX + Length, y}, {RailRight, y});
    };
    wire(circuit.hot, {RailLeft, 7});
    wire(circuit.neutral, {RailRight, 7});
    wire({RailLeft, forward.y}, {StopX, forward.y});
    device(Kind::Stop, "STOP", StopX, forward.y);
    wire({StopX + Length, forward.y}, {BranchX, forward.y});
    wire({BranchX, forward.y}, {BranchX, reverse.seal});
    for (const Path& path : {forward, reverse}) {
        wire({BranchX, path.y}, {ButtonX, path.y});
        device(Kind::Start, path.start, ButtonX, path.y);
        wire({ButtonX + Length, path.y}, {InterlockX, path.y});
        device(Kind::ContactNC, path.interlock, InterlockX, path.y);
        wire({InterlockX + Length, path.y}, {CoilX, path.y});
        device(Kind::Coil, path.coil, CoilX, path.y);
        wire({CoilX + Length, path.y}, {JoinX, path.y});
        wire({BranchX, path.seal}, {ButtonX, path.seal});
        device(Kind::ContactNO, path.coil, ButtonX, path.seal);
        wire({ButtonX + Length, path.seal}, {SealEndX, path.seal});
        wire({SealEndX, path.y}, {SealEndX, path.seal});
    }
    wire({JoinX, forward.y}, {JoinX, reverse.y});
    wire({JoinX, forward.y}, {OverloadX, forward.y});
    device(Kind::ContactNC, "OL", OverloadX, forward.y);
    wire({OverloadX + Length, forward.y}, {RailRight, forward.y});
    lampRung(6.375f, "F", "1LT");
    lampRung(7, "R", "2LT");
    return circuit;
}

// --- The sheet -------------------------------------------------------------------------------

enum class Direction { Forward, Reverse };

class MotorSheet {
  public:
    MotorSheet(Sheet& sheet, Direction direction)
        : sheet_(sheet),
          forward_(direction == Direction::Forward),
          circuit_(controlCircuit()),
          running_(circuit_) {
        const std::string button = forward_ ? "FORWARD" : "REVERSE";
        running_.act({Action::Press, button});
        running_.act({Action::Release, button});
    }

    void draw() {
        frameAndTitle(
            sheet_, {11, 8.5f}, forward_ ? "MOTOR RUNNING FORWARD" : "MOTOR RUNNING IN REVERSE",
            "Reversing starter with interlocks, power and logic", forward_ ? "FORWARD" : "REVERSE");
        drawSupply();
        drawContactor("F", PhaseX);
        drawContactor("R", ReverseX);
        drawRouteToMotor();
        drawMotor();
        drawTransformer();
        LadderDrawing(sheet_, circuit_, running_, View::Current).draw();
        drawRemarks();
    }

  private:
    Sheet& sheet_;
    bool forward_;
    RelayCircuit circuit_;
    RunningCircuit running_;

    bool closed(const std::string& contactor) const { return running_.isEnergized(contactor); }
    void color(bool carries) { sheet_.ink = carries ? CurrentColor : Black; }
    void power(std::initializer_list<Point> points, bool carries) {
        color(carries);
        sheet_.wire(points, Heavy);
    }
    void powerDot(Single x, Single y, bool carries) {
        color(carries);
        sheet_.dot(x, y);
    }

    // The three phases with the breaker, down to the forward contactor.
    void drawSupply() {
        constexpr Single Top = 1.375f, BreakerY = 1.5f;
        for (int i = 0; i < 3; ++i) {
            const Single x = PhaseX[i];
            sheet_.ink = Black;
            sheet_.centred("L" + std::to_string(i + 1), x, Top - 0.19f, Plain);
            sheet_.circle(x - 0.0375f, Top - 0.0375f, 0.0375f);
            power({{x, Top}, {x, BreakerY}}, true);
            sheet_.symbol("InsertCircuitBreaker", x, BreakerY);
            power({{x, BreakerY + Length}, {x, TapY[i]}}, true);
            power({{x, TapY[i]}, {x, ContactY}}, closed("F"));
            powerDot(x, TapY[i], true);
            power({{x, TapY[i]}, {ReverseX[i], TapY[i]}, {ReverseX[i], ContactY}}, closed("R"));
        }
        sheet_.ink = Black;
        dashes({PhaseX[0] + 0.16f, 1.75f}, {PhaseX[2] + 0.16f, 1.75f});
        sheet_.from("CB", PhaseX[2] + 0.25f, 1.75f, Plain);
    }

    void drawContactor(const std::string& name, const Single (&columns)[3]) {
        for (const Single x : columns) {
            if (closed(name)) {
                sheet_.ink = OperatedColor;
                sheet_.disc(x, ContactY + Length / 2, 0.2f);
            }
            color(closed(name));
            sheet_.symbol(closed(name) ? "InsertContactNO90Closed" : "InsertContactNO90", x,
                          ContactY);
            sheet_.ink = Black;
            sheet_.centred(name, x + 0.28f, ContactY + Length / 2, Plain);
        }
    }

    // The reversing contactor exchanges L1 and L3.
    void drawRouteToMotor() {
        constexpr Single ContactEnd = ContactY + Length;
        for (int i = 0; i < 3; ++i) {
            const Single x = PhaseX[i], join = JoinY[2 - i];
            power({{x, ContactEnd}, {x, join}}, closed("F"));
            power({{x, join}, {x, OverloadY}}, true);
            power({{ReverseX[2 - i], ContactEnd}, {ReverseX[2 - i], join}, {x, join}}, closed("R"));
            powerDot(x, join, true);
            color(true);
            sheet_.symbol("InsertThermalOverload90", x, OverloadY);
            sheet_.ink = Black;
            sheet_.centred("OL", x + 0.28f, OverloadY + Length / 2, Plain);
        }
    }

    void drawMotor() {
        constexpr Single Y = 6.125f, Radius = 0.5f, Top = OverloadY + Length;
        const Single x = PhaseX[1];
        power({{PhaseX[0], Top}, {PhaseX[0], Y}, {x - Radius, Y}}, true);
        power({{x, Top}, {x, Y - Radius}}, true);
        power({{PhaseX[2], Top}, {PhaseX[2], Y}, {x + Radius, Y}}, true);
        sheet_.ink = OperatedColor;
        sheet_.disc(x, Y, Radius);
        sheet_.ink = Black;
        sheet_.circle(x - Radius, Y, Radius);
        sheet_.centred("MOTOR", x, Y - 0.15f, Plain);
        sheet_.centred("5 HP", x, Y, Plain);
        sheet_.centred(forward_ ? "FORWARD" : "REVERSE", x, Y + 0.15f, {8, true});
        for (int i = 0; i < 3; ++i)
            sheet_.from("T" + std::to_string(i + 1), PhaseX[i] + 0.07f, Top + 0.14f, WireNumber);
        sheet_.wire({{x, Y + Radius}, {x, 6.75f}});
        sheet_.symbol("InsertGround", x, 6.75f);
    }

    void drawTransformer() {
        constexpr Single FuseX = 3.125f, FarY = 2.25f, NearY = 2.5f, Right = TransformerX + 1.25f;
        color(true);
        sheet_.dot(PhaseX[1], FarY);
        sheet_.wire({{PhaseX[1], FarY}, {FuseX, FarY}}, Heavy);
        sheet_.symbol("InsertFuse", FuseX, FarY);
        sheet_.wire({{FuseX + Length, FarY}, {Right, FarY}, {Right, TransformerY}}, Heavy);
        sheet_.dot(PhaseX[0], NearY);
        sheet_.wire({{PhaseX[0], NearY}, {FuseX, NearY}}, Heavy);
        sheet_.symbol("InsertFuse", FuseX, NearY);
        sheet_.wire({{FuseX + Length, NearY}, {TransformerX, NearY}, {TransformerX, TransformerY}},
                    Heavy);
        sheet_.symbol("InsertControlTransformer", TransformerX, TransformerY);
        sheet_.wire({{TransformerX + 0.5f, TransformerY}, {TransformerX + 0.75f, TransformerY}},
                    Heavy);
        drawSecondary();
        sheet_.ink = Black;
        sheet_.centred("FU2", FuseX + Length / 2, FarY - 0.16f, Plain);
        sheet_.centred("FU1", FuseX + Length / 2, NearY + 0.17f, Plain);
        sheet_.from("CPT", Right + 0.2f, TransformerY + 0.1875f, Plain);
        sheet_.from("480/120 V, 100 VA", Right + 0.2f, TransformerY + 0.34f, Plain);
    }
    void drawSecondary() {
        constexpr Single X1 = TransformerX + 0.25f, X2 = TransformerX + 1, Y = TransformerY + 0.5f;
        constexpr Single FuseX = RailLeft, GroundX = 9;
        sheet_.wire({{X1, Y}, {X1, SupplyY}, {FuseX + Length, SupplyY}}, Heavy);
        sheet_.symbol("InsertFuse", FuseX, SupplyY);
        sheet_.wire({{X2, Y}, {X2, SupplyY}, {RailRight, SupplyY}}, Heavy);
        sheet_.dot(GroundX, SupplyY);
        sheet_.ink = Black;
        sheet_.wire({{GroundX, SupplyY}, {GroundX, 3.5f}});
        sheet_.symbol("InsertGround", GroundX, 3.5f);
        sheet_.centred("FU3", FuseX + Length / 2, SupplyY - 0.17f, Plain);
        sheet_.centred("X1", X1 - 0.14f, Y + 0.1f, Remark);
        sheet_.centred("X2", X2 + 0.14f, Y + 0.1f, Remark);
    }

    void drawRemarks() {
        sheet_.from("POWER", 0.75f, 0.75f, Heading);
        sheet_.from("480 VAC, 3 PHASE, 60 HZ", 0.75f, 0.9375f, Plain);
        sheet_.from("LOGIC", 8.75f, 2.75f, Heading);
        sheet_.from("120 VAC", 8.75f, 2.9375f, Plain);
        const std::string_view coil = forward_ ? "F" : "R", other = forward_ ? "R" : "F";
        const auto line = [&](const std::string& text, Single y, const TextStyle& style) {
            sheet_.from(text, 5, y, style);
        };
        line("The motor runs " + std::string(forward_ ? "forward." : "in reverse."), 0.78f,
             {11, true});
        line("Contactor " + std::string(coil) + " is sealed in by its own contact and " +
                 (forward_ ? "leads L1, L2, L3 to T1, T2, T3."
                           : "leads L1, L2, L3 to T3, T2, T1: two phases exchanged."),
             1, Plain);
        line("Its normally closed contact is open in the path of coil " + std::string(other) +
                 ": " + (forward_ ? "REVERSE" : "FORWARD") + " does nothing until STOP is pressed.",
             1.17f, Plain);
        line("The overload relay OL opens the common path of both coils.", 1.34f, Plain);
        line("Blue: carries current", 1.6f, {8, true, CurrentColor});
        sheet_.ink = OperatedColor;
        sheet_.disc(6.9375f, 1.6f, 0.075f);
        sheet_.ink = Black;
        sheet_.from("Operated: energized, moved, lit, turning", 7.0625f, 1.6f, {8, true});
        sheet_.from("FORWARD", CoilX + 0.625f, 6.275f, Plain);
        sheet_.from("REVERSE", CoilX + 0.625f, 6.9f, Plain);
        // The mechanical interlock of the two contactors.
        sheet_.dashedVertical(CoilX + 0.25f, 4.28f, 4.98f);
        sheet_.from("INTERLOCK", CoilX - 0.35f, 4.625f, Remark);
    }

    void dashes(Point from, Point to) {
        constexpr Single Dash = 0.0625f;
        for (Single x = from.x; x < to.x; x += 2 * Dash)
            sheet_.frameLine({x, from.y}, {std::fmin(x + Dash, to.x), from.y});
    }
};

constexpr SheetFile Drawings[] = {
    {"Motor Forward Power And Logic.els", "8.5x11Landscape",
     "Reversing motor starter, running forward: three-phase power section with breaker, two "
     "contactors and overload heaters, control transformer, push buttons, interlocks, pilot "
     "lights.",
     [](Sheet& sheet) { MotorSheet(sheet, Direction::Forward).draw(); }},
    {"Motor Reverse Power And Logic.els", "8.5x11Landscape",
     "Reversing motor starter, running in reverse: three-phase power section with breaker, two "
     "contactors and overload heaters, control transformer, push buttons, interlocks, pilot "
     "lights.",
     [](Sheet& sheet) { MotorSheet(sheet, Direction::Reverse).draw(); }},
};

}  // namespace

}  // namespace ladrix::tools

int main(int argc, char** argv) {
    return ladrix::tools::makeSheets(ladrix::tools::Drawings, argc, argv);
}
