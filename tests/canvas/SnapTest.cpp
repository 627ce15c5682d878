// The snap pitch, typed and by its buttons, and the grid's options.
#include "canvas/Snap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"
#include "canvas/Pointer.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Box = FakeDialogs::Box;
using InputBox = FakeDialogs::InputBox;

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
            EXPECT_THAT(bench.machine.dialogs.boxes, IsEmpty()) << typed;
        EXPECT_EQ(bench.editor.form.FocusRequest == Focus::Canvas, c.step != 2) << typed;
    }
}

TEST(SnapInput, OffersAndTellsThePitchInTheUsersMark) {
    Bench bench;
    bench.machine.platform.locale.decimalMark = ',';
    bench.machine.dialogs.inputAnswers = {"0.75"};
    cmdSnap_Click(bench.editor);
    EXPECT_EQ(bench.machine.dialogs.inputBoxes[0].value, "0,25");
    EXPECT_EQ(bench.editor.form.cmdSnap.Caption, "Snap: 0,75");
}

TEST(SnapButtons, DoubleHalveAndGoBackToTheDefault) {
    Bench bench;
    cmdSnapLower_Click(bench.editor);
    EXPECT_EQ(bench.editor.form.cmdSnap.Caption, "Snap: 0.125");
    cmdSnapHigher_Click(bench.editor);
    cmdSnapHigher_Click(bench.editor);
    EXPECT_EQ(bench.editor.SnapStep, 0.5f);
    cmdSnap_MouseDown(bench.editor, LeftButton);
    EXPECT_EQ(bench.editor.SnapStep, 0.5f);
    cmdSnap_MouseDown(bench.editor, RightButton);
    EXPECT_EQ(bench.editor.form.cmdSnap.Caption, "Snap: 0.25");
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

TEST(SnapPitch, WithAGridThatFollowsResetsAndPaintsOnce) {
    Bench bench;
    bench.play("tool Lamp; move 1 1");
    cmdSnapHigher_Click(bench.editor);
    EXPECT_NE(bench.editor.CurrentTool, -1);
    EXPECT_EQ(bench.canvas.persistentCls, 0) << "nothing to repaint";
    bench.editor.GridOn = bench.editor.GridFollowsSnap = true;
    cmdSnapHigher_Click(bench.editor);
    EXPECT_EQ(bench.editor.CurrentTool, -1);
    EXPECT_EQ(bench.canvas.persistentCls, 1);
    EXPECT_FLOAT_EQ(bench.canvas.persistent.at(0).x1, 2) << "a line at every second step";
}

TEST(GridOptions, ShowTheGridAndLetItFollowTheSnap) {
    Bench bench;
    const auto shown = [&] { return bench.canvas.persistent.size(); };
    const auto checked = [&](Menu entry) { return bench.editor.form.menu[entry].Checked; };
    bench.editor.SnapStep = 1;
    mnuOptionGrid_Click(bench.editor);
    EXPECT_TRUE(checked(Menu::mnuOptionGrid));
    EXPECT_EQ(shown(), 33u + 43u) << "a line at every quarter of an inch";
    mnuOptMatchGridToSnap_Click(bench.editor);
    EXPECT_TRUE(checked(Menu::mnuOptMatchGridToSnap));
    EXPECT_EQ(shown(), 4u + 5u);
    mnuOptMatchGridToSnap_Click(bench.editor);
    EXPECT_FALSE(checked(Menu::mnuOptMatchGridToSnap));
    EXPECT_EQ(shown(), 33u + 43u);
    mnuOptionGrid_Click(bench.editor);
    EXPECT_FALSE(checked(Menu::mnuOptionGrid));
    EXPECT_EQ(shown(), 0u);
    EXPECT_FALSE(bench.drawing.DrawingChanged);
    EXPECT_EQ(bench.drawing.DeviceString, "");
}

}  // namespace
}  // namespace ladrix::test
