// Labels: those that come with a device, the text tool, and typing.
#include "canvas/Labels.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// The default font, Arial 8: of the fake fonts' widths, and half a line's height.
constexpr Single CharacterWidth = 0.6f * 8 / 72;
constexpr Single HalfHeight = 1.2f * 8 / 72 / 2;

struct LabelBench : Bench {
    LabelBench() { drawing.AttachLabels = true; }

    // As the text box reports a person's typing.
    void type(const char* text) {
        editor.TextBoxFocused = true;
        editor.form.txtEdit.Text = text;
        txtEdit_Change(editor);
    }
    void enter() { txtEdit_EnterPressed(editor); }
    Single centre(std::size_t i) const {
        return drawing.labels.LabelX.at(i) +
               static_cast<Single>(drawing.labels.LabelText[i].size()) * CharacterWidth / 2;
    }
};

TEST(AttachedLabel, StandsFromThePlacingOnWithItsPrefixToTypeOn) {
    LabelBench bench;
    bench.play("tool Normally Open Contact; click 2 3");
    ASSERT_EQ(bench.labels().size(), 1u);
    EXPECT_EQ(bench.drawing.labels.LabelText[0], "CR");
    EXPECT_FLOAT_EQ(bench.centre(0), 2.25f);
    EXPECT_FLOAT_EQ(bench.drawing.labels.LabelY[0], 3 - 0.275f - HalfHeight);
    EXPECT_EQ(bench.drawing.labels.LabelColor[0], Black);
    EXPECT_TRUE(bench.editor.form.picText.Visible);
    EXPECT_EQ(bench.editor.form.txtEdit.Text, "CR");
    EXPECT_EQ(bench.editor.form.txtEdit.SelectAllRequests, 0) << "the number goes behind it";
    EXPECT_EQ(bench.editor.form.FocusRequest, Focus::TextEdit);
    ASSERT_EQ(bench.editor.form.lbl.size(), 1u);
    EXPECT_EQ(bench.editor.form.lbl[0].ForeColor, bench.editor.SelectionColor);
    EXPECT_TRUE(bench.drawing.LabelPending);
}

TEST(AttachedLabel, FollowsScaleAndAddSpace) {
    LabelBench bench;
    bench.editor.SymbolScaleX = 2;
    bench.editor.SymbolScaleY = 0.5f;
    bench.editor.AddSpace = true;
    bench.play("tool Fuse; click 1 3");
    EXPECT_EQ(bench.drawing.labels.LabelText.at(0), "FU ");
    EXPECT_FLOAT_EQ(bench.centre(0), 1.5f);
    EXPECT_FLOAT_EQ(bench.drawing.labels.LabelY[0], 3 - 0.125f - HalfHeight);
}

TEST(AttachedLabel, ComesToLabelledDevicesOnlyAndOnlyWhileTheOptionIsOn) {
    LabelBench bench;
    bench.play("tool Ground; click 1 1; tool Line; click 1 1; click 2 1");
    EXPECT_THAT(bench.labels(), IsEmpty());
    EXPECT_FALSE(bench.drawing.LabelPending);
    EXPECT_FALSE(bench.editor.form.picText.Visible);
    bench.drawing.AttachLabels = false;
    bench.play("tool Fuse; click 3 3");
    EXPECT_THAT(bench.labels(), IsEmpty());
    EXPECT_FALSE(bench.drawing.LabelPending);
    bench.editor.LabelColorOn = true;
    bench.editor.CurrentColor = 255;
    bench.drawing.AttachLabels = true;
    bench.play("click 4 4");
    EXPECT_EQ(bench.drawing.labels.LabelColor.at(0), 255) << "the label colour option";
}

TEST(LabelEdit, TypingReplacesTheTextAboutItsCentreAndEnterFinishesIt) {
    LabelBench bench;
    bench.play("tool Relay/Timer Coil; click 2 3; move 5 5");
    bench.type("1");
    bench.type("1CR17");
    EXPECT_EQ(bench.message(), "Type desired text and press ENTER. Press Esc when finished.");
    EXPECT_EQ(bench.drawing.labels.LabelText.at(0), "1CR17");
    EXPECT_FLOAT_EQ(bench.centre(0), 2.25f);
    EXPECT_EQ(bench.editor.form.lbl.at(0).Caption, "1CR17");
    bench.snapshots = 0;
    bench.enter();
    EXPECT_EQ(bench.snapshots, 1);
    EXPECT_EQ(bench.editor.CurrentTool, -1) << "the device has its name: back to idle";
    EXPECT_EQ(bench.editor.form.lbl.at(0).ForeColor, Black);
    EXPECT_FALSE(bench.editor.form.picText.Visible);
    EXPECT_EQ(bench.editor.form.FocusRequest, Focus::Canvas);
    EXPECT_EQ(bench.labels().at(0).substr(0, 6), "1CR17|");
}

// Nothing that was typed is lost, whichever way the edit ends.
TEST(LabelEdit, KeepsWhatWasTypedWhenSomethingElseBegins) {
    for (const char* script :
         {"key 27 0", "click 5 5", "tool Ground", "tool Text; move 4 4", "double 6 6"}) {
        LabelBench bench;
        bench.play("tool Relay/Timer Coil; click 2 3");
        bench.type("CR9");
        bench.editor.TextBoxFocused = false;
        bench.snapshots = 0;
        bench.play(script);
        EXPECT_EQ(bench.drawing.labels.LabelText.at(0), "CR9") << script;
        EXPECT_EQ(bench.labels().at(0).substr(0, 4), "CR9|") << script;
        EXPECT_EQ(bench.editor.form.lbl.at(0).ForeColor, Black) << script;
        EXPECT_GE(bench.snapshots, 1) << script;
        bench.type("other");
        EXPECT_EQ(bench.drawing.labels.LabelText.at(0), "CR9") << script;
    }
    LabelBench untouched;
    untouched.play("tool Relay/Timer Coil; click 2 3");
    untouched.snapshots = 0;
    untouched.play("key 27 0");
    EXPECT_EQ(untouched.drawing.labels.LabelText.at(0), "CR");
    EXPECT_EQ(untouched.snapshots, 0) << "nothing was typed";
}

TEST(TextTool, OffersAHintAndPrintsAGhostCentredOnThePointer) {
    LabelBench bench;
    bench.play("tool Text; move 2.1 3.1");
    const std::string hint = "Enter new text and hit return.";
    EXPECT_EQ(bench.editor.form.txtEdit.Text, hint);
    EXPECT_EQ(bench.message(), "Move to desired location and edit as required.");
    EXPECT_TRUE(bench.editor.form.picText.Visible);
    ASSERT_EQ(bench.canvas.temporary.size(), 1u);
    const Primitive& ghost = bench.canvas.temporary[0];
    EXPECT_EQ(ghost.text, hint);
    EXPECT_EQ(ghost.color, Red);
    EXPECT_NEAR(ghost.x1, 2.1f - 15 * CharacterWidth, 1e-5);
    EXPECT_NEAR(ghost.y1, 3.1f - HalfHeight, 1e-5);
    bench.type("PUMP");
    ASSERT_EQ(bench.canvas.temporary.size(), 1u);
    EXPECT_EQ(bench.canvas.temporary[0].text, "PUMP");
    EXPECT_THAT(bench.labels(), IsEmpty());
}

TEST(TextTool, PlacesOnTheSnapPointOrUnderThePointer) {
    LabelBench bench;
    bench.editor.CurrentColor = 255;
    bench.play("tool Text; move 2.1 3.1");
    bench.type("AB");
    bench.play("click 2.02 3.01; click 4.1 3.01; click 4.13 3.12");
    EXPECT_THAT(bench.drawing.labels.LabelText, ElementsAre("AB", "AB", "AB"));
    EXPECT_THAT(bench.drawing.labels.LabelColor, ElementsAre(255, 255, 255));
    EXPECT_FLOAT_EQ(bench.centre(0), 2);
    EXPECT_FLOAT_EQ(bench.drawing.labels.LabelY[0], 3 - HalfHeight);
    EXPECT_FLOAT_EQ(bench.centre(1), 4.1f) << "on a line of one axis only";
    EXPECT_FLOAT_EQ(bench.drawing.labels.LabelY[1], 3.01f - HalfHeight);
    EXPECT_FLOAT_EQ(bench.centre(2), 4.13f);
    EXPECT_EQ(bench.message(), "Continuing with Text Selection - Press ESC to reset.");
    EXPECT_EQ(bench.editor.ToolName, "Text");
}

TEST(TextTool, ESCDropsTheGhostAndRecordsNothing) {
    LabelBench bench;
    bench.play("tool Text; move 2 3");
    bench.type("lost");
    bench.play("key 27 0");
    EXPECT_THAT(bench.labels(), IsEmpty());
    EXPECT_THAT(bench.canvas.temporary, IsEmpty());
    EXPECT_EQ(bench.editor.TextBuffer, "");
    bench.enter();
    EXPECT_THAT(bench.labels(), IsEmpty());
    EXPECT_FALSE(bench.drawing.DrawingChanged);
}

TEST(TextTool, EnterPlacesTheGhostWhereItStands) {
    LabelBench bench;
    bench.play("tool Text; move 2 3");
    bench.type("L1");
    bench.enter();
    ASSERT_THAT(bench.drawing.labels.LabelText, ElementsAre("L1"));
    EXPECT_FLOAT_EQ(bench.centre(0), 2);
    bench.enter();
    EXPECT_EQ(bench.labels().size(), 1u) << "the ghost is gone";
}

TEST(TextTool, AnEmptyTextIsGivenOne) {
    LabelBench bench;
    bench.play("tool Text; move 2 3");
    bench.type("");
    bench.play("click 2 3");
    EXPECT_THAT(bench.drawing.labels.LabelText, ElementsAre("Type New Text"));
}

TEST(AutoIncrement, AdvancesNumbersAndSingleLetters) {
    struct Case {
        const char* text;
        const char* next;
    };
    for (const Case& c : {Case{"9", "10"},
                          {"1.5", "2.5"},
                          {"-1", "0"},
                          {"A", "B"},
                          {"Y", "Z"},
                          {"Z", "Z"},
                          {"y", "z"},
                          {"z", "z"},
                          {"PB1", "PB1"},
                          {"?", "?"},
                          {"@", "@"},
                          {"[", "["},
                          {"`", "`"},
                          {"{", "{"},
                          {"", ""}})
        EXPECT_EQ(incrementedText(c.text, '.'), c.next) << c.text;
    EXPECT_EQ(incrementedText("1,5", ','), "2,5");

    LabelBench bench;
    bench.editor.AutoIncrement = true;
    bench.play("tool Text; move 1 1");
    bench.type("9");
    const int marked = bench.editor.form.txtEdit.SelectAllRequests;
    bench.play("click 1 1; click 2 1; click 3 1");
    EXPECT_THAT(bench.drawing.labels.LabelText, ElementsAre("9", "10", "11"));
    EXPECT_EQ(bench.editor.form.txtEdit.Text, "12");
    EXPECT_GT(bench.editor.form.txtEdit.SelectAllRequests, marked);
}

TEST(TextBox, TellsItsFocusAndKeepsThePaletteKeysToItself) {
    LabelBench bench;
    bench.play("tool Ground");
    txtEdit_GotFocus(bench.editor);
    EXPECT_EQ(bench.message(),
              "Text edit area has the focus. Type text as required and press ENTER. Press ESC to "
              "exit.");
    bench.play("key 38 0");
    EXPECT_EQ(bench.editor.ToolName, "Ground");
    txtEdit_LostFocus(bench.editor);
    bench.play("key 38 0");
    EXPECT_NE(bench.editor.ToolName, "Ground");
}

}  // namespace
}  // namespace ladrix::test
