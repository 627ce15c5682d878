// From a device name to its drawing and its record.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "document/Records.h"
#include "platform/Numbers.h"
#include "support/FakePlatform.h"
#include "symbols/DeviceNames.h"
#include "symbols/DrawDevice.h"
#include "symbols/FreeShapes.h"
#include "symbols/Libraries.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct DispatcherBench {
    FakePlatform machine;
    Drawing drawing;
    Symbols symbols;
    RecordingCanvas& canvas = machine.picLX;
    int snapshots = 0;
    std::vector<std::string> begun;  // labels

    DispatcherBench() {
        drawing.TakeUndoSnapshot = [this] { ++snapshots; };
        symbols.BeginLabel = [this](std::string_view prefix, Single x, Single y) {
            begun.push_back(std::string(prefix) + " at " + singleText(x, '.') + ", " +
                            singleText(y, '.'));
        };
        symbols.block.obj = &canvas;
        symbols.block.CurX = 2;
        symbols.block.CurY = 3;
    }
    void draw(std::string_view name) {
        symbols.block.CurDevice = name;
        DrawDevice(symbols, drawing, machine.platform);
    }
    std::vector<std::string> drawn() const {
        std::vector<std::string> lines;
        for (const Primitive& primitive : canvas.persistent)
            lines.push_back(describe(primitive));
        return lines;
    }
    std::string record() const {
        if (drawing.devices.DeviceCount == 0) return "";
        std::string text(drawing.DeviceRecord(0));
        std::replace(text.begin(), text.end(), '\xFF', '|');
        return text;
    }
};

// A row that every kind of device can be drawn from.
Device deviceOf(std::string_view name, Short orientation, Single scaleX, Single scaleY) {
    Device device;
    device.name = name;
    device.x = 3;
    device.y = 4;
    device.x2 = 5;
    device.y2 = 4.5f;
    device.radius = 0.5f;
    device.color = 255;
    device.scaleX = scaleX;
    device.scaleY = scaleY;
    device.orientation = orientation;
    return device;
}

// What the row draws on a page or on the canvas.
std::vector<Primitive> drawnOn(DispatcherBench& bench, Surface& surface,
                               const std::vector<Primitive>& layer, const Device& device) {
    DeviceTable table;
    table.append(device);
    drawRow(bench.symbols, bench.drawing, bench.machine.platform, surface, table, 0, device.color);
    EXPECT_THAT(bench.machine.dialogs.boxes, IsEmpty()) << device.name;
    EXPECT_EQ(bench.drawing.devices.DeviceCount, 0) << device.name;
    return layer;
}

TEST(DeviceNames, AreAllThereEachOnceAndInTheModuleOfItsLibrary) {
    const auto tableOf = [](const DeviceName& entry) {
        switch (entry.library) {
            case Library::Common:
                return modSymbolsCommon();
            case Library::NEMA:
                return entry.firstGeneration ? modSymbolsOld() : modSymbolsNEMA();
            case Library::IEC:
                return modSymbolsIEC();
            case Library::Electronic:
                return entry.firstGeneration ? modSymbolsOldElectronic() : modSymbolsElectronic();
            case Library::FluidPower:
                break;
        }
        return modSymbolsOldHyd();
    };
    EXPECT_EQ(deviceNames().size(), 284u);
    std::set<std::string_view> names;
    for (const DeviceName& entry : deviceNames()) {
        EXPECT_TRUE(names.insert(entry.name).second) << entry.name;
        if (freeShapeOf(entry.name) != FreeShape::None || entry.name == "InsertTestSymbol")
            continue;
        const auto table = tableOf(entry);
        EXPECT_TRUE(std::any_of(table.begin(), table.end(), [&](const Symbol& symbol) {
            return symbol.name == entry.name;
        })) << entry.name;
    }
}

TEST(DeviceNames, EachDrawsItselfAlikeOnEverySurface) {
    DispatcherBench bench;
    for (const DeviceName& entry : deviceNames()) {
        for (Short orientation = 0; orientation < 5; ++orientation) {
            const Device device = deviceOf(entry.name, orientation, 1, 1);
            RecordingCanvas canvas;
            RecordingPage page, printer;
            page.name = "picButton";
            const auto onCanvas = drawnOn(bench, canvas, canvas.persistent, device);
            const auto onPage = drawnOn(bench, page, page.primitives, device);
            bench.symbols.printer = &printer;
            auto onPrinter = drawnOn(bench, printer, printer.primitives, device);
            EXPECT_FALSE(orientation == 0 && onCanvas.empty()) << entry.name;
            EXPECT_EQ(onPage, onCanvas) << entry.name << ' ' << orientation;
            for (Primitive& p : onPrinter)
                p.DrawWidth = 1;  // the printer has a weight of its own
            EXPECT_EQ(onPrinter, onCanvas) << entry.name << ' ' << orientation;
            EXPECT_EQ(page.FillStyle, 1) << entry.name;
            EXPECT_EQ(page.FillColor, Black) << entry.name;
            for (const Primitive& p : onCanvas)
                EXPECT_EQ(p.color, 255) << entry.name;
        }
    }
}

bool holds(const Extent& extent, const Primitive& p) {
    constexpr Single Rounding = 1e-4f;
    const auto inside = [&](double x, double y) {
        return x >= extent.left - Rounding && x <= extent.right + Rounding &&
               y >= extent.top - Rounding && y <= extent.bottom + Rounding;
    };
    if (p.kind == Primitive::Kind::Line) return inside(p.x1, p.y1) && inside(p.x2, p.y2);
    const double start = p.kind == Primitive::Kind::Arc ? p.start : 0;
    double end = p.kind == Primitive::Kind::Arc ? p.end : 2 * Pi;
    while (end < start)
        end += 2 * Pi;
    for (int i = 0; i <= 32; ++i) {
        const double angle = start + (end - start) * i / 32;
        if (!inside(p.x1 + p.radius * std::cos(angle), p.y1 - p.radius * std::sin(angle)))
            return false;
    }
    return true;
}

TEST(Extent, HoldsEveryStrokeSoThatCullingHidesNone) {
    DispatcherBench bench;
    struct Scale {
        Single x, y;
    };
    for (const DeviceName& entry : deviceNames()) {
        for (const Scale scale : {Scale{1, 1}, {0, 0}, {3, 0.5f}, {0.25f, 2}, {-1, 1}, {1, -2}}) {
            for (Short orientation = 0; orientation < 5; ++orientation) {
                DeviceTable table;
                table.append(deviceOf(entry.name, orientation, scale.x, scale.y));
                const Extent extent = deviceExtent(table, 0);
                RecordingPage page;
                for (const Primitive& p : drawnOn(bench, page, page.primitives, table.row(0)))
                    EXPECT_TRUE(holds(extent, p))
                        << entry.name << ' ' << orientation << " at " << scale.x << ", " << scale.y
                        << ": " << describe(p);
            }
        }
    }
}

TEST(Scale, StretchesPointsAndLeavesCirclesRound) {
    struct Case {
        Single scaleX, scaleY;
        const char* drawn;
    };
    for (const Case& c : {Case{1, 1, "Circle 2.25,3 radius 0.25 color 0 width 1 style 0"},
                          Case{2, 1, "Circle 2.5,3 radius 0.5 color 0 width 1 style 0"},
                          Case{0, 0, "Circle 2.25,3 radius 0.25 color 0 width 1 style 0"},
                          Case{0.5f, 3, "Circle 2.125,3 radius 0.125 color 0 width 1 style 0"}}) {
        DispatcherBench bench;
        bench.symbols.block.CurScaleX = c.scaleX;
        bench.symbols.block.CurScaleY = c.scaleY;
        bench.draw("InsertRelayCoil");
        EXPECT_THAT(bench.drawn(), ElementsAre(c.drawn));
    }
}

TEST(Orientation, OutsideTheSymbolsOwnDrawsNothingButIsRecorded) {
    DispatcherBench bench;
    bench.symbols.block.CurOrientation = 7;
    bench.draw("InsertSolenoid");
    EXPECT_THAT(bench.drawn(), IsEmpty());
    EXPECT_EQ(bench.record(), "InsertSolenoid|2|3|0||1|1|7|False");
}

TEST(Recording, IsForTheCanvasWithBothFlagsOff) {
    struct Case {
        bool preview, noRecord, printing;
        int recorded;
    };
    for (const Case& c : {Case{false, false, false, 1}, Case{true, false, false, 0},
                          Case{false, true, false, 0}, Case{false, false, true, 0}}) {
        for (const char* name : {"InsertGround", "InsertContactNO", "InsertCircle", "InsertArc",
                                 "InsertSolidCircle", "InsertSemiCircle", "InsertTestSymbol"}) {
            DispatcherBench bench;
            RecordingPage printer;
            bench.symbols.printer = &printer;
            if (c.printing) bench.symbols.block.obj = &printer;
            bench.symbols.block.CurRadius2 = 0.5f;
            bench.drawing.DrawingPreview = c.preview;
            bench.drawing.NoRecord = c.noRecord;
            bench.draw(name);
            EXPECT_EQ(bench.drawing.devices.DeviceCount, c.recorded) << name;
            EXPECT_GT(bench.canvas.persistent.size() + printer.primitives.size(), 0u) << name;
            EXPECT_FALSE(c.recorded == 0 && !bench.begun.empty()) << name;
        }
    }
}

TEST(Recording, CarriesTheWholeBlock) {
    DispatcherBench bench;
    bench.drawing.AttachLabels = false;
    DeviceBlock& block = bench.symbols.block;
    block.CurColor = 255;
    block.CurWidthTag = "DrawWidth=2";
    block.CurScaleX = 1.5f;
    block.CurScaleY = 2;
    block.CurOrientation = 1;
    block.CurFlip = true;
    bench.draw("InsertCapacitor");
    EXPECT_EQ(bench.record(), "InsertCapacitor|2|3|255|DrawWidth=2|1.5|2|1|True");
    EXPECT_EQ(bench.canvas.persistent.at(0).DrawWidth, 1) << "a symbol only carries the tag";
}

TEST(AttachedLabel, IsBegunAfterTheRecordWhichTakesNoSnapshot) {
    DispatcherBench bench;
    bench.symbols.block.CurScaleX = 2;
    bool recordedBefore = false, pending = false;
    const auto begin = bench.symbols.BeginLabel;
    bench.symbols.BeginLabel = [&](std::string_view prefix, Single x, Single y) {
        recordedBefore = bench.drawing.devices.DeviceCount == 1;
        pending = bench.drawing.LabelPending;
        begin(prefix, x, y);
    };
    bench.draw("InsertFuse");
    EXPECT_THAT(bench.begun, ElementsAre("FU at 2.5, 2.75"));
    EXPECT_TRUE(recordedBefore);
    EXPECT_TRUE(pending);
    EXPECT_EQ(bench.snapshots, 0);

    DispatcherBench unlabelled;
    unlabelled.draw("InsertGround");
    EXPECT_THAT(unlabelled.begun, IsEmpty());
    EXPECT_FALSE(unlabelled.drawing.LabelPending);
    EXPECT_EQ(unlabelled.snapshots, 1);

    DispatcherBench off;
    off.drawing.AttachLabels = false;
    off.draw("InsertFuse");
    EXPECT_THAT(off.begun, IsEmpty());
    EXPECT_EQ(off.snapshots, 1);
}

TEST(FreeShapes, StandOnTheirInsertionPoint) {
    struct Case {
        const char* name;
        Short direction;
        Single radius;
        const char* drawn;
        const char* record;
    };
    const Case cases[] = {
        {"InsertCircle", 0, 0.5f, "Circle 2.5,3 radius 0.5 color 0 width 1 style 0",
         "InsertCircle|2|3|0.5|0||1"},
        {"InsertSolidCircle", 0, 0.5f, "Circle 2,3 radius 0.5 filled 0 color 0 width 1 style 0",
         "InsertSolidCircle|2|3|0.5|0||1"},
        {"InsertConnectionPoint", 0, 0.5f, "Circle 2,3 radius 0.5 filled 0 color 0 width 1 style 0",
         "InsertSolidCircle|2|3|0.5|0||1"},
        {"InsertSemiCircle", 0, 0.5f,
         "Arc 2.5,3 radius 0.5 from 1.5708 to 4.71239 color 0 width 1 style 0",
         "InsertSemiCircle|2|3|0.5|0|0|"},
        {"InsertSemiCircle", 1, 0,
         "Arc 2.125,3 radius 0.125 from 1.5708 to 4.71239 color 0 width 1 style 0",
         "InsertSemiCircle|2|3|0.125|1|0|"},
        {"InsertSemiCircle", 2, 0.5f,
         "Arc 1.5,3 radius 0.5 from 4.71239 to 1.5708 color 0 width 1 style 0",
         "InsertSemiCircle|2|3|0.5|2|0|"},
        {"InsertSemiCircle", 3, 0.5f,
         "Arc 2,3.5 radius 0.5 from 6.28319 to 3.14159 color 0 width 1 style 0",
         "InsertSemiCircle|2|3|0.5|3|0|"},
        {"InsertSemiCircle", 4, 0.5f,
         "Arc 2,2.5 radius 0.5 from 3.14159 to 6.28319 color 0 width 1 style 0",
         "InsertSemiCircle|2|3|0.5|4|0|"},
        {"InsertArc", 1, 0,
         "Arc 2.125,3 radius 0.125 from 2.0944 to 4.18879 color 0 width 1 style 0",
         "InsertArc|2|3|0.125|1|0||2.094395|4.18879|1"},
        {"InsertArc", 2, 0.5f,
         "Arc 1.5,3 radius 0.5 from 5.23599 to 1.0472 color 0 width 1 style 0",
         "InsertArc|2|3|0.5|2|0||5.235988|1.047198|1"},
        {"InsertArc", 3, 0.5f,
         "Arc 2,3.5 radius 0.5 from 0.523599 to 2.61799 color 0 width 1 style 0",
         "InsertArc|2|3|0.5|3|0||0.5235988|2.617994|1"},
        {"InsertArc", 4, 0.5f,
         "Arc 2,2.5 radius 0.5 from 3.66519 to 5.75959 color 0 width 1 style 0",
         "InsertArc|2|3|0.5|4|0||3.665191|5.759587|1"},
        {"InsertArc", 0, 0.5f, "Arc 2,3 radius 0.5 from 1e-06 to 1e-06 color 0 width 1 style 0",
         "InsertArc|2|3|0.5|0|0||0.000001|0.000001|1"},
    };
    for (const Case& c : cases) {
        DispatcherBench bench;
        bench.symbols.block.CurDirection = c.direction;
        bench.symbols.block.CurRadius = bench.symbols.block.CurRadius2 = c.radius;
        bench.draw(c.name);
        EXPECT_THAT(bench.drawn(), ElementsAre(c.drawn)) << c.name << ' ' << c.direction;
        EXPECT_EQ(bench.record(), c.record) << c.name << ' ' << c.direction;
        EXPECT_EQ(bench.canvas.FillStyle, 1) << c.name;
    }
}

TEST(FreeShapes, LeaveCorrectedFiguresInTheBlock) {
    DispatcherBench bench;
    DeviceBlock& block = bench.symbols.block;
    bench.draw("InsertCircle");
    EXPECT_EQ(block.CurAspect, 1);
    block.CurStartAngle = 9;
    block.CurEndAngle = 3;
    bench.draw("InsertArc");
    EXPECT_EQ(block.CurRadius, 0.125f);
    EXPECT_FLOAT_EQ(block.CurStartAngle, 6.283185f) << "a free arc goes no further round";
    EXPECT_EQ(block.CurEndAngle, 3);
    EXPECT_EQ(bench.symbols.LastRadius, 0.125f);
    block.CurDirection = 3;
    block.CurRadius2 = 0.75f;
    bench.draw("InsertSemiCircle");
    EXPECT_EQ(bench.symbols.LastDirection, 3);
    EXPECT_EQ(bench.symbols.LastRadius, 0.75f);
}

TEST(SavedLine, IsTwiceAsWideByItsTagUnlessAllIsThick) {
    struct Case {
        bool thick;
        const char* tag;
        Short base, width, after;
    };
    for (const Case& c : {Case{false, "", 1, 1, 1}, Case{false, "DrawWidth=2", 1, 2, 1},
                          Case{false, "DrawWidth=2", 3, 6, 3}, Case{false, "DrawWidth=3", 1, 1, 1},
                          Case{true, "DrawWidth=2", 1, 5, 5}}) {
        DispatcherBench bench;
        bench.symbols.ThickDevices = c.thick;
        bench.symbols.DrawWidthCurrent = c.base;
        bench.symbols.block.CurWidthTag = c.tag;
        bench.canvas.DrawWidth = 5;
        bench.canvas.AutoRedraw = false;
        bench.draw("InsertSavedLine");
        ASSERT_EQ(bench.canvas.persistent.size(), 1u) << "drawn on the persistent layer";
        EXPECT_EQ(bench.canvas.persistent[0].DrawWidth, c.width) << c.tag;
        EXPECT_EQ(bench.canvas.DrawWidth, c.after) << c.tag;
        EXPECT_EQ(bench.drawing.devices.DeviceCount, 0) << "the line tool records";
    }
}

TEST(SavedSquare, TakesItsDashStyleFromTheTag) {
    for (const auto& [tag, style] : {std::pair{"", 0}, {"3", 3}, {"0", 0}, {"DrawWidth=2", 0}}) {
        DispatcherBench bench;
        bench.symbols.block.CurWidthTag = tag;
        bench.draw("InsertSavedSquare");
        ASSERT_EQ(bench.canvas.persistent.size(), 1u);
        EXPECT_EQ(bench.canvas.persistent[0].DrawStyle, style) << tag;
        EXPECT_EQ(bench.canvas.persistent[0].form, LineForm::Box);
        EXPECT_EQ(bench.canvas.DrawStyle, 0);
    }
}

TEST(UnknownName, IsAUserSymbolUnlessAScrollSkipsItOnce) {
    for (const char* name : {"InsertFromElsewhere", "insertground", "InsertGround ", ""}) {
        DispatcherBench bench;
        int asked = 0;
        bench.symbols.DrawUserSymbol = [&](const DeviceBlock& block) {
            ++asked;
            EXPECT_EQ(block.CurDevice, name);
        };
        bench.symbols.SkipUserSymbolOnce = true;
        bench.draw("InsertLamp");
        EXPECT_TRUE(bench.symbols.SkipUserSymbolOnce) << "a listed name does not use it up";
        bench.draw(name);
        EXPECT_EQ(asked, 0) << name;
        EXPECT_FALSE(bench.symbols.SkipUserSymbolOnce);
        bench.draw(name);
        EXPECT_EQ(asked, 1) << name;
        EXPECT_EQ(bench.drawing.devices.DeviceCount, 1);
    }
    DispatcherBench without;
    without.draw("InsertFromElsewhere");
    EXPECT_THAT(without.drawn(), IsEmpty());
    EXPECT_THAT(without.machine.dialogs.boxes, IsEmpty());
}

TEST(FailingSurface, IsToldOnceAndTheCallerGoesOn) {
    DispatcherBench bench;
    bench.canvas.primitivesUntilFailure = 1;
    bench.draw("InsertGround");
    ASSERT_EQ(bench.machine.dialogs.boxes.size(), 1u);
    EXPECT_EQ(bench.machine.dialogs.boxes[0].text, "Couldn't handle this symbol as requested.");
    EXPECT_EQ(bench.canvas.persistent.size(), 1u) << "what had been drawn stays";
    EXPECT_EQ(bench.drawing.devices.DeviceCount, 0);
    bench.canvas.primitivesUntilFailure = -1;
    bench.draw("InsertGround");
    EXPECT_EQ(bench.drawing.devices.DeviceCount, 1);
}

TEST(Row, IsDrawnInTheGivenColourAndTheFlagsComeBack) {
    DispatcherBench bench;
    DeviceTable table;
    table.append(deviceOf("InsertRelayCoil", 0, 0, 0));
    for (const bool flag : {false, true}) {
        bench.drawing.NoRecord = flag;
        RecordingPage page;
        drawRow(bench.symbols, bench.drawing, bench.machine.platform, page, table, 0, 77);
        ASSERT_EQ(page.primitives.size(), 1u);
        EXPECT_EQ(describe(page.primitives[0]),
                  "Circle 3.25,4 radius 0.25 color 77 width 1 style 0");
        EXPECT_EQ(bench.drawing.NoRecord, flag);
    }
    EXPECT_EQ(table.DeviceColor[0], 255);
    EXPECT_EQ(bench.drawing.devices.DeviceCount, 0);
}

}  // namespace
}  // namespace ladrix::test
