#include "usersymbols/Script.h"

#include <gtest/gtest.h>

#include "SymbolBench.h"
#include "support/Failures.h"

namespace ladrix {
namespace {

using test::placedAt;
using test::script;

struct Case {
    std::string name, text, placed;
    Single scale = 1;
};

TEST(ScriptTest, LinesBecomeWhatTheirFormSays) {
    const std::vector<Case> cases = {
        {"byte 255", script("Line|1|2|3|4"), "SavedLine 5,6 to 7,8"},
        {"=FF", "Square=FF1=FF2=FF3=FF4\r\n", "SavedSquare 5,6 to 7,8"},
        {"colon", "Line:-1:0:1,5:0.5\r\n", "SavedLine 3,4 to 5.5,4.5"},
        {"each line its own", "Dot:1:1:0.025\r\nCircle=FF0=FF0=FF1=FF1\r\n",
         "SolidCircle 5,5 r 0.025; Circle 4,4 r 1"},
        {"the first byte 255 wins", script("Line|1:5|2|3|4"), "SavedLine 4,6 to 7,8"},
        {"surplus fields, the last counts", script("Line|1|2|3|9|8|4"), "SavedLine 5,6 to 7,8"},
        {"a circle without its last field", script("Circle|1|2|0.5"), "Circle 5,6 r 0"},
        {"what is no number is 0", script("Line|x||1e99|4"), "SavedLine 4,4 to 4,8"},
        {"unknown and case-changed keywords", script("Hexagon|1|1\nline|1|2|3|4\nLine|0|0|1|1"),
         "SavedLine 4,4 to 5,5"},
        {"an unclosed tail",
         script("Line|0|0|1|1") + "Line\xFF"
                                  "5",
         "SavedLine 4,4 to 5,5"},
        {"a line without separator", script("Line|0|0|1|1\n\nLine|0|0|2|2"), ""},
        {"an arc with expressions", script("Arc|0|0|0.5|0|(Pi * 7) / 4|Pi / 4|1"),
         "Arc 4,4 r 0.5 from 1e-06 to 1"},
        {"an arc", script("Arc|1|0|0.5|1.5|9"), "Arc 6,4 r 1 from 1.5 to 6.28319", 2},
        {"lines and circles scale",
         script("Line|0.5|0.25|1|-0.25\nSquare|0.5|0.25|1|0.75\nCircle|0.5|0.25|0.25|1"),
         "SavedLine 5,4.5 to 6,3.5; SavedSquare 5,4.5 to 6,5.5; Circle 5,4.5 r 0.5", 2},
        {"a half circle does not scale", script("SemiCircle|1|0|0.5|0|0"), "SemiCircle 5,4 r 0.5",
         2},
        {"a dot keeps its size", script("SolidCircle|1|0|0.5|1\nDot|1|0|9"),
         "SolidCircle 6,4 r 1; SolidCircle 6,4 r 0.025", 2},
        {"a text", script("Text|K1|0.5|-1|255|Arial|8|True|false"),
         "Text 'K1' 5,2 Arial 16 bold color 255", 2},
        {"a text's size is held", script("Text|a|0|0|0|Arial|900|0|-1\nText|b|0|0|0|Arial|x|?|1"),
         "Text 'a' 4,4 Arial 400 italic color 0; Text 'b' 4,4 Arial 1 italic color 0"},
        {"a text breaks at its separator", "Text:12:30:1:2:0:Arial:8:True:False\r\n",
         "Text '12' 34,5 0 1 bold color 2"},
    };
    for (const Case& c : cases) {
        test::SymbolBench bench;
        EXPECT_EQ(placedAt(bench, c.text, c.scale), c.placed) << c.name;
        EXPECT_EQ(bench.snapshots, c.placed.empty() ? 0 : 1) << c.name;
        EXPECT_TRUE(bench.machine.reports.empty()) << c.name;
        EXPECT_FALSE(bench.drawing.NoSnapshot) << c.name;
    }
}

TEST(ScriptTest, AnEmptyScriptIsStillAnUndoStepAndAnOversizedOneIsRefused) {
    test::SymbolBench bench;
    EXPECT_EQ(placedAt(bench, "", 1), "");
    EXPECT_EQ(bench.snapshots, 1);
    std::string most;
    for (std::size_t i = 0; i < MostScriptLines; ++i)
        most += "a:\r\n";
    EXPECT_EQ(test::failureNumber([&] { requireScriptWithinLimits(most); }), 0);
    for (const std::string& text : {most + "a:\r\n", std::string(LargestScript + 1, ' ')}) {
        bench.machine.reports.clear();
        placedAt(bench, text, 1);
        ASSERT_EQ(bench.machine.reports.size(), 1u);
        EXPECT_EQ(bench.machine.reports[0].number, failure::Overflow);
    }
    EXPECT_EQ(bench.snapshots, 1);
}

TEST(ScriptTest, TheGhostShowsEverythingOnTheTemporaryLayerAndRecordsNothing) {
    test::SymbolBench bench;
    bench.drawing.DrawingPreview = true;
    bench.machine.picLX.AutoRedraw = false;
    EXPECT_EQ(placedAt(bench,
                       script("Line|0|0|1|1\nSquare|0|0|1|1\nArc|0|0|1|1|2\nText|a|0|0|9|Arial|8|"
                              "True|False"),
                       1),
              "");
    EXPECT_EQ(bench.snapshots, 0);
    EXPECT_TRUE(bench.machine.picLX.persistent.empty());
    ASSERT_EQ(bench.machine.picLX.temporary.size(), 4u);
    EXPECT_EQ(bench.machine.picLX.temporary[3].color, 9);
}

TEST(ScriptTest, ColourAndScaleComeFromTheEditorWhereTheyAreZero) {
    test::SymbolBench bench;
    bench.editor.CurrentColor = 77;
    bench.editor.SymbolScaleX = 2;
    bench.editor.SymbolScaleY = 3;
    EXPECT_EQ(placedAt(bench, script("Circle|1|1|0.5|1"), 0), "Circle 6,7 r 1 color 77");
}

TEST(ScriptTest, AFullTableEndsThePlacementWithOneReport) {
    test::SymbolBench bench;
    ClearTables(bench.drawing);
    bench.symbols.UserSymbolScript = {script("Line|0|0|1|1\nLine|0|0|1|2\nLine|0|0|1|3")};
    bench.symbols.UserSymbolCount = 1;
    bench.drawing.devices.resize(LargestCount - 1);
    SymbolPlacement placement;
    placement.obj = &bench.machine.picLX;
    InsertUserSymbol(bench.symbols, bench.editor, placement, 0);
    EXPECT_EQ(bench.drawing.devices.DeviceCount, LargestCount);
    EXPECT_EQ(bench.machine.reports.size(), 1u);
}

TEST(ScriptTest, ThePreviewReadsTheOldestFormAlone) {
    test::SymbolBench bench;
    test::RecordingPage page;
    SymbolPlacement placement;
    placement.obj = &page;
    PreviewUserSymbol(
        bench.editor, placement,
        script("Line|0|0|1|1") + "\r\nCircle:0:0:1:1\r\nText:a:0:0:0:Arial:8:0:0\r\n");
    ASSERT_EQ(page.primitives.size(), 2u);
    EXPECT_EQ(page.primitives[0].kind, test::Primitive::Kind::Circle);
    EXPECT_EQ(page.primitives[1].text, "a");
    EXPECT_EQ(bench.snapshots + bench.drawing.devices.DeviceCount, 0);
    EXPECT_FALSE(bench.drawing.DrawingPreview);
}

}  // namespace
}  // namespace ladrix
