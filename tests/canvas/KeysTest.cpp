// What the keys mean, on the form and on the canvas.
#include "canvas/gestures/Keys.h"

#include "Bench.h"
#include "canvas/view/View.h"
#include "document/Records.h"

namespace ladrix::test {
namespace {

using KeysTest = BenchTest;

TEST(Escape, LeavesEveryStateTheSameWay) {
    for (const char* script :
         {"tool Ground; move 1 1", "tool Line; click 1 1; click 2 1", "tool Square; click 1 1",
          "tool Text; move 1 1", "press 1 1; drag 2 2"}) {
        SCOPED_TRACE(script);
        Bench bench;
        Editor& editor = bench.editor;
        editor.gesture.ZoomInPending = editor.gesture.TextAlignPending = true;
        bench.play(script);
        editor.gesture.CopyArmed = editor.gesture.MoveMode = true;
        editor.gesture.CopyStage = 2;
        bench.play("key 27 0");
        EXPECT_EQ(editor.gesture.CurrentTool, -1);
        EXPECT_FALSE(editor.gesture.ToolActive || editor.gesture.ToolCursor ||
                     editor.gesture.ToolBlocksBand);
        EXPECT_FALSE(editor.gesture.ZoomInPending || editor.gesture.TextAlignPending);
        EXPECT_FALSE(editor.gesture.CopyArmed || editor.gesture.MoveMode ||
                     editor.gesture.CopyStage != 0);
        EXPECT_FALSE(editor.gesture.SquareStarted || editor.gesture.BandArmed ||
                     editor.gesture.MouseIsDown);
        EXPECT_EQ(editor.gesture.LineStartX, NoPoint);
        EXPECT_THAT(bench.canvas.temporary, IsEmpty());
        EXPECT_FALSE(editor.form.picText.Visible || editor.form.picRadius.Visible);
    }
    EXPECT_FALSE(Form_KeyPress(key::Escape)) << "its character reaches no text box";
    EXPECT_TRUE(Form_KeyPress('a'));
}

TEST(PageKeys, StepByTheVisibleHeightAndStopAtTheEnds) {
    struct Case {
        const char* page;
        Single visible;  // inches
        int from;
        const char* key;
        int to;
    };
    const Case cases[] = {
        {"8.5x11Portrait", 3, 0, "key 34 0", 300},       // down
        {"8.5x11Portrait", 3, 300, "key 34 0", 600},     //
        {"8.5x11Portrait", 3, 600, "key 34 0", 800},     // the rest is less than a page
        {"8.5x11Portrait", 3, 800, "key 34 0", 800},     //
        {"210x297Portrait", 6.75f, 0, "key 34 0", 494},  // 4.94 inches are left
        {"8.5x11Portrait", 12, 0, "key 34 0", 0},        // all of it is visible
        {"8.5x11Portrait", 3, 800, "key 33 0", 500},     // up
        {"8.5x11Portrait", 3, 300, "key 33 0", 0},       //
        {"8.5x11Portrait", 3, 0, "key 33 0", 0},         //
    };
    for (const Case& c : cases) {
        Bench bench;
        bench.drawing.PageLayoutKey = c.page;
        ApplyPageLayout(bench.editor);
        Form_Resize(bench.editor, 8.5f * TwipsPerInch, c.visible * TwipsPerInch);
        bench.editor.form.VScroll1.Value = c.from;
        VScroll1_Change(bench.editor);
        bench.play(c.key);
        EXPECT_EQ(bench.editor.form.VScroll1.Value, c.to) << c.key << " from " << c.from;
        EXPECT_FLOAT_EQ(bench.canvas.scaleTop, static_cast<Single>(c.to) / 100);
    }
}

TEST_F(KeysTest, ControlKeysHalveAndDoubleTheSnapWithoutLimit) {
    play("key 37 2; key 37 2");
    EXPECT_EQ(editor.SnapStep, 0.0625f);
    EXPECT_EQ(editor.form.cmdSnap.Caption, "Snap: 0.0625");
    EXPECT_EQ(canvas.persistentCls, 0) << "the grid does not follow";
    editor.GridFollowsSnap = editor.GridOn = true;
    play("key 39 2");
    EXPECT_EQ(editor.SnapStep, 0.125f);
    EXPECT_EQ(editor.form.cmdSnap.Caption, "Snap: 0.125");
    EXPECT_GT(canvas.persistentCls, 0);
    EXPECT_FLOAT_EQ(canvas.persistent.at(0).x1, 0.25f) << "a line at every second step";
}

TEST(PaletteWalk, MovesByOneAndByARowWithinTheButtons) {
    struct Case {
        Short from;
        Short keyCode;
        Short to;
    };
    const Case cases[] = {
        {13, key::Down, 17}, {13, key::Up, 9},     {13, key::Right, 14}, {13, key::Left, 12},
        {88, key::Down, 88}, {87, key::Down, 91},  {91, key::Right, 91}, {3, key::Up, 3},
        {4, key::Up, 0},     {0, key::Left, 0},    {96, key::Up, 92},    {93, key::Left, 92},
        {92, key::Left, 91}, {92, key::Right, 92}, {92, key::Down, 92},
    };
    for (const Case& c : cases) {
        Bench bench;
        for (std::size_t i = 92; i < 100; ++i)
            bench.editor.form.cmdSym[i].Tag = "Mine " + std::to_string(i);
        bench.editor.gesture.CurrentTool = bench.editor.PreviousTool = c.from;
        Form_KeyDown(bench.editor, c.keyCode, NoShift);
        EXPECT_EQ(bench.editor.gesture.CurrentTool, c.to) << c.keyCode << " from " << c.from;
    }
}

TEST_F(KeysTest, PaletteWalkNeedsAToolAndAFreeKeyboardAndStopsAtAnEmptyPlace) {
    play("key 40 0");
    EXPECT_EQ(editor.gesture.CurrentTool, -1);
    play("tool Ground; key 38 1");
    EXPECT_EQ(editor.gesture.CurrentTool, buttonOf("Ground"));
    editor.TextBoxFocused = true;
    play("key 38 0");
    EXPECT_EQ(editor.gesture.CurrentTool, buttonOf("Ground"));
    editor.TextBoxFocused = false;
    button("Screw Terminal") = {};
    play("key 37 0");
    EXPECT_EQ(editor.gesture.CurrentTool, buttonOf("Ground"));
    play("key 38 0");
    EXPECT_EQ(editor.gesture.CurrentTool, buttonOf("Ground") - 4);
}

// Devices, a label and a picture, all selected as a pick would leave them.
void selectAll(Bench& bench) {
    bench.drawing.LabelString = line("Motor|1|2|0|Arial|8|False|False");
    ParseLabelString(bench.drawing, bench.machine.platform);
    bench.drawing.devices.DeviceSelected.assign(bench.drawing.devices.DeviceSelected.size(), 1);
    bench.drawing.labels.LabelSelected.assign(1, 1);
    bench.editor.SelectedCount = 1;
    bench.drawing.DrawingChanged = false;
    bench.snapshots = 0;
}

TEST(ArrowKeys, StretchLinesAlongTheirAxisAndSquaresBothWays) {
    const std::string across = "tool Line; click 1 1; click 3 1";
    const std::string down = "tool Line; click 1 1; click 1 3";
    const std::string square = "tool Square; click 1 1; click 2 3";
    struct Case {
        std::string shape;
        const char* key;
        const char* device;
    };
    const Case cases[] = {
        {across, "key 39 0", "InsertSavedLine|1|1|3.25|1|0|0"},
        {across, "key 37 0", "InsertSavedLine|1|1|2.75|1|0|0"},
        {across, "key 40 0", "InsertSavedLine|1|1|3|1|0|0"},
        {down, "key 40 0", "InsertSavedLine|1|1|1|3.25|0|0"},
        {down, "key 38 0", "InsertSavedLine|1|1|1|2.75|0|0"},
        {down, "key 39 0", "InsertSavedLine|1|1|1|3|0|0"},
        {"tool Line; click 1 1; click 2 3", "key 39 0", "InsertSavedLine|1|1|2|3|0|0"},
        {square, "key 39 0", "InsertSavedSquare|1|1|2.25|3|0|0"},
        {square, "key 38 0", "InsertSavedSquare|1|1|2|2.75|0|0"},
        {"tool Ground; click 1 1", "key 39 0", Ground},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.shape + ", " + c.key);
        Bench bench;
        bench.play(c.shape + "; key 27 0");
        const std::string before = bench.devices().at(0);
        selectAll(bench);
        bench.play(c.key);
        EXPECT_THAT(bench.devices(), ElementsAre(c.device));
        const bool changed = before != c.device;
        EXPECT_EQ(bench.drawing.DrawingChanged, changed);
        EXPECT_EQ(bench.snapshots, changed ? 1 : 0);
        EXPECT_THAT(bench.labels(), ElementsAre("Motor|1|2|0|Arial|8|False|False"));
    }
}

TEST_F(KeysTest, ArrowKeysMoveAllThatIsSelectedWithShift) {
    play("tool Line; click 1 1; click 2 3; tool Lamp; click 4 4; tool Square; click 1 5");
    play("click 2 6; tool Lamp; click 5 4; key 27 0");
    addPicture({1, 1, 2, 1, "a.png", "", true});
    selectAll(*this);
    drawing.devices.DeviceSelected[3] = 0;
    play("key 39 3; key 39 4; key 65 1");
    EXPECT_FALSE(drawing.DrawingChanged) << "other keys and other shifts";
    play("key 39 1; key 38 1");
    EXPECT_THAT(devices(), ElementsAre("InsertSavedLine|1.25|0.75|2.25|2.75|0|0",
                                       "InsertLamp|4.25|3.75|0||1|1|0|False",
                                       "InsertSavedSquare|1.25|4.75|2.25|5.75|0|0",
                                       "InsertLamp|5|4|0||1|1|0|False"));
    EXPECT_THAT(labels(), ElementsAre("Motor|1.25|1.75|0|Arial|8|False|False"));
    EXPECT_EQ(drawing.PictureString, line("a.png|1.25|0.75|2|1"));
    EXPECT_TRUE(drawing.DrawingChanged && enabled(Menu::mnuEditUndo));
    editor.SelectedCount = 0;
    play("key 39 1");
    EXPECT_FLOAT_EQ(drawing.devices.DeviceX[1], 4.25f);
}

}  // namespace
}  // namespace ladrix::test
