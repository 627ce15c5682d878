// The snap pitch, typed and by its buttons, and the grid's options.
#include "canvas/view/Snap.h"

#include "Bench.h"

namespace ladrix::test {
namespace {

using Box = FakeDialogs::Box;
using InputBox = FakeDialogs::InputBox;

using SnapTest = BenchTest;

TEST(SnapInput, TakesNumbersInEitherMarkAndRefusesTheRest) {
    struct Case {
        std::optional<std::string> typed;
        Single step;
        bool refused;
    };
    const Case cases[] = {
        {"0.5", 0.5f, false},    {"0,125", 0.125f, false}, {"0", 0.25f, false},
        {"-0", 0.25f, false},    {"1e30", 1e30f, false},   {"1e-30", 1e-30f, false},
        {"-1", 2, true},         {"nan", 2, true},         {"inf", 2, true},
        {"1e99", 2, true},       {"a quarter", 2, true},   {"", 2, false},
        {std::nullopt, 2, false}};
    for (const Case& c : cases) {
        Bench bench;
        bench.editor.SnapStep = 2;
        showSnapStep(bench.editor);
        bench.machine.dialogs.inputAnswers = {c.typed};
        mnuOptionSnap_Click(bench.editor);
        const std::string typed = c.typed.value_or("cancelled");
        EXPECT_EQ(bench.editor.SnapStep, c.step) << typed;
        EXPECT_THAT(bench.machine.dialogs.inputBoxes,
                    ElementsAre(InputBox{"Enter Snap Below", "Adjusting Snap", "2"}));
        if (c.refused)
            EXPECT_THAT(bench.machine.dialogs.boxes,
                        ElementsAre(Box{"Expected a numeric value.", "Ladrix"}))
                << typed;
        else
            EXPECT_THAT(bench.boxes(), IsEmpty()) << typed;
        EXPECT_EQ(bench.editor.form.FocusRequest == Focus::Canvas, c.step != 2) << typed;
    }
}

TEST_F(SnapTest, ThePitchIsToldInTheUsersMarkDoubledHalvedAndPutBackToTheDefault) {
    machine.platform.locale.decimalMark = ',';
    machine.dialogs.inputAnswers = {"0.75"};
    cmdSnap_Click(editor);
    EXPECT_EQ(machine.dialogs.inputBoxes[0].value, "0,25");
    EXPECT_EQ(editor.form.cmdSnap.Caption, "Snap: 0,75");
    play("tool Lamp; move 1 1");
    cmdSnapHigher_Click(editor);
    EXPECT_EQ(editor.SnapStep, 1.5f);
    cmdSnapLower_Click(editor);
    EXPECT_EQ(editor.form.cmdSnap.Caption, "Snap: 0,75");
    cmdSnap_MouseDown(editor, LeftButton);
    EXPECT_EQ(editor.SnapStep, 0.75f);
    cmdSnap_MouseDown(editor, RightButton);
    EXPECT_EQ(editor.form.cmdSnap.Caption, "Snap: 0,25");
    EXPECT_NE(editor.gesture.CurrentTool, -1);
    EXPECT_EQ(canvas.persistentCls, 0) << "nothing to repaint";
    editor.GridOn = editor.GridFollowsSnap = true;
    cmdSnapHigher_Click(editor);
    EXPECT_EQ(editor.gesture.CurrentTool, -1);
    EXPECT_EQ(canvas.persistentCls, 1);
    EXPECT_FLOAT_EQ(canvas.persistent.at(0).x1, 1) << "a line at every second step";
}

TEST(SnapButtons, AtTheEndsOfAllNumbersThePitchStaysAndTheEditorWorks) {
    for (const auto& [handler, key] : {std::pair{&cmdSnapHigher_Click, "key 39 2"},
                                       std::pair{&cmdSnapLower_Click, "key 37 2"}}) {
        Bench bench;
        bench.editor.GridOn = bench.editor.GridFollowsSnap = true;
        for (int i = 0; i < 200; ++i)
            handler(bench.editor);
        const Single last = bench.editor.SnapStep;
        EXPECT_GT(last, 0);
        bench.play(key);
        EXPECT_EQ(bench.editor.SnapStep, last);
        bench.play("tool Lamp; click 3 3; tool Text; move 4 4; tool Line; click 1 1; click 2 2");
        EXPECT_FALSE(bench.devices().empty());
    }
}

TEST_F(SnapTest, GridOptionsShowTheGridAndLetItFollowTheSnap) {
    editor.SnapStep = 1;
    struct Case {
        void (*toggle)(Editor&);
        bool grid, follows;
        std::size_t lines;
    };
    for (const Case& c : {Case{mnuOptionGrid_Click, true, false, 33 + 43},
                          {mnuOptMatchGridToSnap_Click, true, true, 4 + 5},
                          {mnuOptMatchGridToSnap_Click, true, false, 33 + 43},
                          {mnuOptionGrid_Click, false, false, 0}}) {
        c.toggle(editor);
        EXPECT_EQ(checked(Menu::mnuOptionGrid), c.grid);
        EXPECT_EQ(checked(Menu::mnuOptMatchGridToSnap), c.follows);
        EXPECT_THAT(canvas.persistent, SizeIs(c.lines));
    }
    EXPECT_FALSE(drawing.DrawingChanged);
    EXPECT_EQ(drawing.DeviceString, "");
}

}  // namespace
}  // namespace ladrix::test
