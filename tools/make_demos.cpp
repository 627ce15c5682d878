// make_demos OUTPUT-FOLDER: makes the two demonstration drawings, Demo1.els and Demo2.els. Every
// terminal and every end of a wire stands on a raster of an eighth of an inch.
#include <string>
#include <string_view>

#include "Sheet.h"
#include "SheetParts.h"

namespace ladrix::tools {

namespace {

constexpr Single SymbolLength = 0.5f;

// A symbol of two terminals side by side, and the wire that leads to it from `wireFrom`.
void inRung(Sheet& sheet, Single wireFrom, std::string_view name, Single x, Single y,
            std::string_view tag) {
    sheet.wire({{wireFrom, y}, {x, y}});
    sheet.symbol(name, x, y, tag);
}

// An operator's name above the designation that its symbol bears.
void named(Sheet& sheet, std::string_view text, Single symbolX, Single y) {
    sheet.centred(text, symbolX + SymbolLength / 2, y, Plain);
}

// The lamp that ends a rung, its colour's letter in it, and the wires to both sides.
void pilotLight(Sheet& sheet, Single wireFrom, Point at, Single wireTo, const Entry& entry,
                std::string_view colour) {
    const Single end = at.x + SymbolLength;
    inRung(sheet, wireFrom, "InsertLamp", at.x, at.y, colour);
    named(sheet, entry.designation, at.x, at.y - 0.33f);
    sheet.from(entry.text, end + 0.125f, at.y - 0.1f, Plain);
    sheet.wire({{end, at.y}, {wireTo, at.y}});
}

void lineNumbers(Sheet& sheet, Single x, std::initializer_list<Single> lines) {
    int number = 0;
    for (const Single y : lines)
        sheet.centred(std::to_string(++number), x, y, Remark);
}

// --- Demo 1: three-wire motor starter ------------------------------------------------------

constexpr Single PhaseY[] = {1.75f, 2.375f, 3.0f};
constexpr Single PrimaryLeft = 3.125f, PrimaryRight = 4.375f;  // H1 and H4
constexpr Single TransformerY = 4.5f;
constexpr Single SecondaryLeft = 3.375f, SecondaryRight = 4.125f;  // X1 and X2

// One phase from the supply to the motor's side of its overload heater.
void phase(Sheet& sheet, const std::string& number) {
    const Single y = PhaseY[number[0] - '1'];
    sheet.centred("L" + number, 0.8125f, y, Plain);
    sheet.circle(0.925f, y, 0.0375f);
    sheet.wire({{1, y}, {1.25f, y}}, Heavy);
    sheet.symbol("InsertDisconnect90", 1.25f, y);
    sheet.wire({{1.75f, y}, {2.25f, y}}, Heavy);
    sheet.wireNumber("1L" + number, 2, y);
    sheet.symbol("InsertFuse", 2.25f, y, "FU" + number);
    sheet.wire({{2.75f, y}, {4.75f, y}}, Heavy);
    sheet.wireNumber("2L" + number, 3.75f, y);
    sheet.symbol("InsertContactNO", 4.75f, y, "M");
    sheet.wire({{5.25f, y}, {5.5f, y}}, Heavy);
    sheet.symbol("InsertThermalOverload", 5.5f, y, "OL");
    sheet.wireNumber("T" + number, 6.25f, y);
}

void motor(Sheet& sheet) {
    const Single centreX = 7, centreY = PhaseY[1], radius = 0.5f;
    sheet.wire({{6, PhaseY[0]}, {centreX, PhaseY[0]}, {centreX, centreY - radius}}, Heavy);
    sheet.wire({{6, centreY}, {centreX - radius, centreY}}, Heavy);
    sheet.wire({{6, PhaseY[2]}, {centreX, PhaseY[2]}, {centreX, centreY + radius}}, Heavy);
    sheet.circle(centreX - radius, centreY, radius);
    sheet.centred("MOTOR", centreX, centreY - 0.075f, Plain);
    sheet.centred("5 HP", centreX, centreY + 0.075f, Plain);
    sheet.wire({{7.5f, centreY}, {7.625f, centreY}, {7.625f, 2.75f}});
    sheet.symbol("InsertGround", 7.625f, 2.75f);
}

void powerCircuit(Sheet& sheet) {
    sheet.from("POWER CIRCUIT", 0.75f, 0.75f, Heading);
    sheet.from("480 VAC, 3 PHASE, 60 HZ", 0.75f, 0.9375f, Plain);
    for (const char* number : {"1", "2", "3"})
        phase(sheet, number);
    sheet.centred("DISC", 1.5f, PhaseY[0] - 0.275f, Plain);
    // Through the middle of the three blades.
    sheet.dashedVertical(1.4375f, PhaseY[0] - 0.0625f, PhaseY[2] - 0.0625f);
    motor(sheet);
}

void controlTransformer(Sheet& sheet) {
    const Single fuseY = 3.5f, fuseEnd = fuseY + SymbolLength;
    sheet.dot(PrimaryLeft, PhaseY[0]);
    sheet.wire({{PrimaryLeft, PhaseY[0]}, {PrimaryLeft, fuseY}});
    sheet.symbol("InsertFuse90", PrimaryLeft, fuseY, "FU4");
    sheet.wire({{PrimaryLeft, fuseEnd}, {PrimaryLeft, TransformerY}});
    sheet.dot(PrimaryRight, PhaseY[1]);
    sheet.wire({{PrimaryRight, PhaseY[1]}, {PrimaryRight, fuseY}});
    sheet.symbol("InsertFuse90", PrimaryRight, fuseY, "FU5");
    sheet.wire({{PrimaryRight, fuseEnd}, {PrimaryRight, TransformerY}});

    // The two primary windings in series: 480 V.
    sheet.symbol("InsertControlTransformer", PrimaryLeft, TransformerY);
    sheet.wire({{PrimaryLeft + 0.5f, TransformerY}, {PrimaryLeft + 0.75f, TransformerY}});
    sheet.centred("H1", PrimaryLeft - 0.15f, TransformerY, Remark);
    sheet.centred("H2", PrimaryLeft + 0.5f, TransformerY - 0.1f, Remark);
    sheet.centred("H3", PrimaryLeft + 0.75f, TransformerY - 0.1f, Remark);
    sheet.centred("H4", PrimaryRight + 0.15f, TransformerY, Remark);
    sheet.centred("X1", SecondaryLeft - 0.15f, TransformerY + 0.5f, Remark);
    sheet.centred("X2", SecondaryRight + 0.15f, TransformerY + 0.5f, Remark);
    sheet.from("CPT", PrimaryRight + 0.25f, TransformerY + 0.1875f, Plain);
    sheet.from("480/120 V, 100 VA", PrimaryRight + 0.25f, TransformerY + 0.35f, Plain);
}

constexpr Single RailLeft = 1.25f, RailRight = 7.25f;
constexpr Single SupplyY = 5.375f;

// X1 fused to the left rail, X2 grounded to the right one.
void controlSupply(Sheet& sheet) {
    const Single secondaryY = TransformerY + 0.5f;
    sheet.wire({{SecondaryLeft, secondaryY}, {SecondaryLeft, SupplyY}, {2.5f, SupplyY}});
    sheet.wireNumber("X1", 2.9375f, SupplyY);
    sheet.symbol("InsertFuse", 2, SupplyY, "FU6");
    sheet.wire({{SecondaryRight, secondaryY}, {SecondaryRight, SupplyY}, {RailRight, SupplyY}});
    sheet.wireNumber("X2", 6.25f, SupplyY);
    sheet.dot(5, SupplyY);
    sheet.wire({{5, SupplyY}, {5, 5.5f}});
    sheet.symbol("InsertGround", 5, 5.5f);
}

void starterLadder(Sheet& sheet) {
    const Single run = 6.625f, seal = 7.25f, light = 7.875f;
    const Single sealLeft = 3.125f, sealRight = 4.375f, load = 5.125f;
    sheet.wire({{2, SupplyY}, {RailLeft, SupplyY}, {RailLeft, light}});
    sheet.wire({{RailRight, SupplyY}, {RailRight, light}});
    sheet.wireNumber("1", 1.625f, SupplyY);
    lineNumbers(sheet, 0.9375f, {run, seal, light});

    sheet.dot(RailLeft, run);
    inRung(sheet, RailLeft, "InsertPBNC", 2, run, "1PB");
    named(sheet, "STOP", 2, run - 0.525f);
    inRung(sheet, 2.5f, "InsertPBNO", 3.5f, run, "2PB");
    named(sheet, "START", 3.5f, run - 0.65f);
    sheet.wireNumber("2", 2.8125f, run);
    inRung(sheet, 4, "InsertRelayCoil", load, run, "M");
    sheet.wireNumber("3", 4.75f, run);
    inRung(sheet, load + SymbolLength, "InsertContactNC", 6.25f, run, "OL");
    sheet.wireNumber("4", 5.9375f, run);
    sheet.wire({{6.75f, run}, {RailRight, run}});
    sheet.dot(RailRight, run);
    sheet.from("2", 7.4375f, run, Remark);

    sheet.dot(sealLeft, run);
    sheet.wire({{sealLeft, run}, {sealLeft, seal}, {3.5f, seal}});
    sheet.symbol("InsertContactNO", 3.5f, seal, "M");
    sheet.wire({{4, seal}, {sealRight, seal}, {sealRight, run}});
    sheet.dot(sealRight, run);

    pilotLight(sheet, RailLeft, {load, light}, RailRight, {"1LT", "POWER ON"}, "W");
}

void drawStarter(Sheet& sheet) {
    frameAndTitle(sheet, {8.5f, 11}, "THREE-WIRE MOTOR STARTER",
                  "Full voltage, non-reversing, with control transformer", "DEMO 1");
    powerCircuit(sheet);
    controlTransformer(sheet);
    sheet.from("CONTROL CIRCUIT", 0.75f, 4.5f, Heading);
    sheet.from("120 VAC", 0.75f, 4.6875f, Plain);
    controlSupply(sheet);
    starterLadder(sheet);
    list(sheet, {0.75f, 8.5f}, 0.8125f,
         {{"DISC", "Disconnect switch, 3 pole, 30 A"},
          {"FU1 - FU3", "Fuse 15 A, time delay"},
          {"FU4, FU5", "Fuse 1/2 A, 600 V"},
          {"FU6", "Fuse 1 A, 250 V"},
          {"CPT", "Control transformer, 100 VA"}});
    list(sheet, {4.5f, 8.5f}, 0.5625f,
         {{"M", "Motor starter, NEMA size 1, coil 120 V"},
          {"OL", "Overload relay of M, heaters for 7.6 A"},
          {"1PB", "Push button, red, STOP"},
          {"2PB", "Push button, green, START"},
          {"1LT", "Pilot light, white, 120 V"}});
    sheet.from("Line numbers at the left; at the right of a coil, the lines of its contacts.",
               0.75f, 9.625f, Remark);
}

// --- Demo 2: two stations and pilot lights -------------------------------------------------

constexpr Single Rail1 = 1.5f, Rail2 = 9.5f;
constexpr Single StopLine = 2.625f, StartLine = 3.5f, SealLine = 4.125f;
constexpr Single RunLine = 4.875f, StoppedLine = 5.625f;
constexpr Single StartX = 5, LoadX = 7;

void stationSupply(Sheet& sheet) {
    const Single top = 1.375f, radius = 0.0375f;
    sheet.circle(Rail1 - radius, top - radius, radius);
    sheet.circle(Rail2 - radius, top - radius, radius);
    sheet.centred("L1", Rail1, top - 0.175f, Plain);
    sheet.centred("N", Rail2, top - 0.175f, Plain);
    sheet.wire({{Rail1, top}, {Rail1, 1.625f}});
    sheet.symbol("InsertFuse90", Rail1, 1.625f, "FU1");
    sheet.wire({{Rail1, 1.625f + SymbolLength}, {Rail1, StoppedLine}});
    sheet.wire({{Rail2, top}, {Rail2, StoppedLine}});
    sheet.from("1", Rail1 + 0.06f, 2.3125f, WireNumber);
    sheet.from("N", Rail2 + 0.06f, 2.3125f, WireNumber);
    lineNumbers(sheet, 1.125f, {StopLine, StartLine, SealLine, RunLine, StoppedLine});
}

void stations(Sheet& sheet) {
    sheet.dot(Rail1, StopLine);
    inRung(sheet, Rail1, "InsertPBNC", 2.25f, StopLine, "1PB");
    named(sheet, "STOP 1", 2.25f, StopLine - 0.525f);
    inRung(sheet, 2.75f, "InsertPBNC", 3.5f, StopLine, "2PB");
    named(sheet, "STOP 2", 3.5f, StopLine - 0.525f);
    sheet.wireNumber("2", 3.125f, StopLine);
    inRung(sheet, 4, "InsertPBNO", StartX, StopLine, "3PB");
    named(sheet, "START 1", StartX, StopLine - 0.65f);
    sheet.wireNumber("3", 4.25f, StopLine);

    const Single left = 4.5f, right = 6;
    sheet.dot(left, StopLine);
    sheet.wire({{left, StopLine}, {left, SealLine}, {StartX, SealLine}});
    sheet.dot(left, StartLine);
    inRung(sheet, left, "InsertPBNO", StartX, StartLine, "4PB");
    named(sheet, "START 2", StartX, StartLine - 0.65f);
    sheet.wire({{StartX + SymbolLength, StartLine}, {right, StartLine}});
    sheet.dot(right, StartLine);
    sheet.symbol("InsertContactNO", StartX, SealLine, "M");
    sheet.wire({{StartX + SymbolLength, SealLine}, {right, SealLine}, {right, StopLine}});
    sheet.dot(right, StopLine);
}

void starterCoil(Sheet& sheet) {
    inRung(sheet, StartX + SymbolLength, "InsertRelayCoil", LoadX, StopLine, "M");
    sheet.wireNumber("4", 6.5f, StopLine);
    inRung(sheet, LoadX + SymbolLength, "InsertContactNC", 8.25f, StopLine, "OL");
    sheet.wireNumber("5", 7.875f, StopLine);
    sheet.wire({{8.75f, StopLine}, {Rail2, StopLine}});
    sheet.dot(Rail2, StopLine);
    // A contact that is closed at rest has its line underscored.
    sheet.from("3, 4, 5", 9.6875f, StopLine, Remark);
    sheet.frameLine({9.9f, StopLine + 0.065f}, {9.96f, StopLine + 0.065f});
}

void pilotLights(Sheet& sheet) {
    const Single contactEnd = StartX + SymbolLength;
    sheet.dot(Rail1, RunLine);
    inRung(sheet, Rail1, "InsertContactNO", StartX, RunLine, "M");
    pilotLight(sheet, contactEnd, {LoadX, RunLine}, Rail2, {"1LT", "RUN"}, "G");
    sheet.wireNumber("6", 6.25f, RunLine);
    sheet.dot(Rail2, RunLine);

    inRung(sheet, Rail1, "InsertContactNC", StartX, StoppedLine, "M");
    pilotLight(sheet, contactEnd, {LoadX, StoppedLine}, Rail2, {"2LT", "STOPPED"}, "R");
    sheet.wireNumber("7", 6.25f, StoppedLine);
}

void drawStations(Sheet& sheet) {
    frameAndTitle(sheet, {11, 8.5f}, "TWO-STATION START/STOP",
                  "Motor starter control with pilot lights", "DEMO 2");
    sheet.from("CONTROL CIRCUIT", 0.75f, 0.75f, Heading);
    sheet.from("120 VAC, 60 HZ", 0.75f, 0.9375f, Plain);
    stationSupply(sheet);
    stations(sheet);
    starterCoil(sheet);
    pilotLights(sheet);
    list(sheet, {1.5f, 6.375f}, 0.75f,
         {{"FU1", "Fuse 1 A, 250 V"},
          {"M", "Motor starter, coil 120 V"},
          {"OL", "Overload relay of M"}});
    list(sheet, {4, 6.375f}, 0.75f,
         {{"1PB, 3PB", "Push buttons of station 1"},
          {"2PB, 4PB", "Push buttons of station 2"},
          {"1LT, 2LT", "Pilot lights, 120 V"}});
    sheet.from("Line numbers at the left; at the right of", 7, 6.375f, Remark);
    sheet.from("a coil, the lines of its contacts, those that", 7, 6.5625f, Remark);
    sheet.from("are closed at rest underscored.", 7, 6.75f, Remark);
}

// --------------------------------------------------------------------------------------------

constexpr SheetFile Demos[] = {
    {"Demo1.els", "8.5x11Portrait",
     "Three-wire motor starter: power circuit with disconnect, fuses, contactor, overload heaters "
     "and motor; control transformer with fuses and ground; start/stop control with seal-in "
     "contact and overload contact.",
     drawStarter},
    {"Demo2.els", "8.5x11Landscape",
     "Two-station start/stop: two stop buttons in series, two start buttons in parallel with the "
     "seal-in contact, starter coil with overload contact, pilot lights for run and stopped.",
     drawStations},
};

}  // namespace

}  // namespace ladrix::tools

int main(int argc, char** argv) {
    return ladrix::tools::makeSheets(ladrix::tools::Demos, argc, argv);
}
