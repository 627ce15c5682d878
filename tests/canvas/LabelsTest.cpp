// Labels: those that come with a device, the text tool, and typing.
#include "canvas/labels/Labels.h"

#include "Bench.h"
#include "canvas/labels/LabelCommands.h"

namespace ladrix::test {
namespace {

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

struct LabelsTest : testing::Test, LabelBench {};

TEST_F(LabelsTest, AttachedLabelStandsFromThePlacingOnWithItsPrefixToTypeOn) {
    play("tool Normally Open Contact; click 2 3");
    ASSERT_EQ(labels().size(), 1u);
    EXPECT_EQ(drawing.labels.LabelText[0], "CR");
    EXPECT_FLOAT_EQ(centre(0), 2.25f);
    EXPECT_FLOAT_EQ(drawing.labels.LabelY[0], 3 - 0.275f - HalfHeight);
    EXPECT_EQ(drawing.labels.LabelColor[0], Black);
    EXPECT_TRUE(editor.form.picText.Visible);
    EXPECT_EQ(editor.form.txtEdit.Text, "CR");
    EXPECT_EQ(editor.form.txtEdit.SelectAllRequests, 0) << "the number goes behind it";
    EXPECT_EQ(editor.form.FocusRequest, Focus::TextEdit);
    ASSERT_EQ(editor.form.lbl.size(), 1u);
    EXPECT_EQ(editor.form.lbl[0].ForeColor, editor.SelectionColor);
    EXPECT_TRUE(drawing.LabelPending);
}

TEST_F(LabelsTest, AttachedLabelComesToLabelledDevicesOnlyAndOnlyWhileTheOptionIsOn) {
    play("tool Ground; click 1 1; tool Line; click 1 1; click 2 1");
    drawing.AttachLabels = false;
    play("tool Fuse; click 3 3");
    EXPECT_THAT(labels(), IsEmpty());
    EXPECT_FALSE(drawing.LabelPending || editor.form.picText.Visible);
    mnuOptionLabelColor_Click(editor);
    editor.AddSpace = drawing.AttachLabels = true;
    editor.CurrentColor = 255;
    editor.SymbolScaleX = 2;
    editor.SymbolScaleY = 0.5f;
    play("click 1 3");
    EXPECT_EQ(drawing.labels.LabelText.at(0), "FU ");
    EXPECT_EQ(drawing.labels.LabelColor[0], 255) << "the label colour option";
    EXPECT_TRUE(editor.form.menu[Menu::mnuOptionLabelColor].Checked);
    mnuOptionLabelColor_Click(editor);
    play("click 1 6");
    EXPECT_EQ(drawing.labels.LabelColor.at(1), Black);
    EXPECT_FALSE(editor.form.menu[Menu::mnuOptionLabelColor].Checked);
    EXPECT_FLOAT_EQ(centre(0), 1.5f);
    EXPECT_FLOAT_EQ(drawing.labels.LabelY[0], 3 - 0.125f - HalfHeight);
}

TEST_F(LabelsTest, LabelEditTypingReplacesTheTextAboutItsCentreAndEnterFinishesIt) {
    play("tool Relay/Timer Coil; click 2 3; move 5 5");
    type("1");
    type("1CR17");
    EXPECT_EQ(message(), "Type desired text and press ENTER. Press Esc when finished.");
    EXPECT_EQ(editor.form.lbl.at(0).Caption, "1CR17");
    EXPECT_EQ(drawing.labels.LabelText.at(0), "CR") << "until it is kept";
    snapshots = 0;
    drawing.DrawingChanged = false;
    enter();
    EXPECT_EQ(snapshots, 1);
    EXPECT_TRUE(drawing.DrawingChanged);
    EXPECT_FLOAT_EQ(centre(0), 2.25f);
    EXPECT_EQ(editor.gesture.CurrentTool, -1) << "the device has its name: back to idle";
    EXPECT_EQ(editor.form.lbl.at(0).ForeColor, Black);
    EXPECT_FALSE(editor.form.picText.Visible);
    EXPECT_EQ(editor.form.FocusRequest, Focus::Canvas);
    EXPECT_TRUE(labels().at(0).starts_with("1CR17|"));
}

// Nothing that was typed is lost, whatever comes next, but by ESC.
TEST(LabelEdit, KeepsWhatWasTypedWhenSomethingElseBegins) {
    for (const char* script : {"click 5 5", "tool Ground", "tool Text; move 4 4", "double 6 6"}) {
        SCOPED_TRACE(script);
        LabelBench bench;
        bench.play("tool Relay/Timer Coil; click 2 3");
        bench.type("CR9");
        bench.editor.TextBoxFocused = false;
        bench.snapshots = 0;
        bench.play(script);
        EXPECT_TRUE(bench.labels().at(0).starts_with("CR9|"));
        EXPECT_EQ(bench.editor.form.lbl.at(0).ForeColor, Black);
        EXPECT_GE(bench.snapshots, 1);
        bench.type("other");
        EXPECT_EQ(bench.drawing.labels.LabelText.at(0), "CR9");
    }
    for (const char* typed : {"CR9", ""}) {
        LabelBench bench;
        bench.play("tool Relay/Timer Coil; click 2 3");
        if (*typed != 0) bench.type(typed);
        bench.snapshots = 0;
        bench.play("key 27 0");
        EXPECT_EQ(bench.drawing.labels.LabelText.at(0), "CR") << "the prefix stays";
        EXPECT_EQ(bench.editor.form.lbl.at(0).Caption, "CR");
        EXPECT_EQ(bench.snapshots, 0);
    }
}

TEST_F(LabelsTest, TextToolOffersAHintAndPrintsAGhostCentredOnThePointer) {
    play("tool Text; move 2.1 3.1");
    const std::string hint = "Enter new text and hit return.";
    EXPECT_EQ(editor.form.txtEdit.Text, hint);
    EXPECT_EQ(message(), "Move to desired location and edit as required.");
    EXPECT_TRUE(editor.form.picText.Visible);
    ASSERT_EQ(canvas.temporary.size(), 1u);
    const Primitive& ghost = canvas.temporary[0];
    EXPECT_EQ(ghost.text, hint);
    EXPECT_EQ(ghost.color, Red);
    EXPECT_NEAR(ghost.x1, 2.1f - 15 * CharacterWidth, 1e-5);
    EXPECT_NEAR(ghost.y1, 3.1f - HalfHeight, 1e-5);
    type("PUMP");
    ASSERT_EQ(canvas.temporary.size(), 1u);
    EXPECT_EQ(canvas.temporary[0].text, "PUMP");
    EXPECT_THAT(labels(), IsEmpty());
}

TEST_F(LabelsTest, TextToolPlacesOnTheSnapPointOrUnderThePointer) {
    editor.CurrentColor = 255;
    play("tool Text; move 2.1 3.1");
    type("AB");
    play("click 2.02 3.01; click 4.1 3.01; click 4.13 3.12");
    EXPECT_THAT(drawing.labels.LabelText, ElementsAre("AB", "AB", "AB"));
    EXPECT_THAT(drawing.labels.LabelColor, ElementsAre(255, 255, 255));
    EXPECT_FLOAT_EQ(centre(0), 2);
    EXPECT_FLOAT_EQ(drawing.labels.LabelY[0], 3 - HalfHeight);
    EXPECT_FLOAT_EQ(centre(1), 4.1f) << "on a line of one axis only";
    EXPECT_FLOAT_EQ(drawing.labels.LabelY[1], 3.01f - HalfHeight);
    EXPECT_FLOAT_EQ(centre(2), 4.13f);
    EXPECT_EQ(message(), "Continuing with Text Selection - Press ESC to reset.");
    EXPECT_EQ(editor.gesture.ToolName, "Text");
}

TEST_F(LabelsTest, TextToolGivesAnEmptyTextOneEnterPlacesItAndEscapeDropsIt) {
    play("tool Text; move 2 3");
    type("");
    play("click 2 3");
    EXPECT_THAT(drawing.labels.LabelText, ElementsAre("Type New Text"));
    type("L1");
    play("move 4 4");
    enter();
    EXPECT_THAT(drawing.labels.LabelText, ElementsAre("Type New Text", "L1"));
    EXPECT_FLOAT_EQ(centre(1), 4);
    play("tool Text; move 5 5");
    type("lost");
    play("key 27 0");
    EXPECT_THAT(canvas.temporary, IsEmpty());
    EXPECT_EQ(editor.gesture.TextBuffer, "");
    enter();
    EXPECT_EQ(labels().size(), 2u) << "there is no ghost";
}

TEST_F(LabelsTest, AutoIncrementAdvancesNumbersAndSingleLetters) {
    const std::pair<const char*, const char*> cases[] = {
        {"9", "10"},
        {"1.5", "2.5"},
        {"-1", "0"},
        {"A", "B"},
        {"Y", "Z"},
        {"Z", "Z"},
        {"y", "z"},
        {"z", "z"},
        {"@", "@"},
        {"PB1", "PB1"},
        {"`", "`"},
        {"", ""},
        // Whole numbers of any length.
        {"16777216", "16777217"},
        {"99999999", "100000000"},
        {"-100", "-99"},
        {"-10000000000000000", "-9999999999999999"},
        {"9999999999999999999999999999999999999999", "10000000000000000000000000000000000000000"},
        {"099", "100"},
        {"007", "8"},
        {"-0", "1"},
        {" 41 ", "42"},
        {"-", "-"},
        {"--1", "--1"},
        {"1-2", "1-2"}};
    for (const auto& [text, next] : cases)
        EXPECT_EQ(incrementedText(text, '.'), next) << text;
    EXPECT_EQ(incrementedText("1,5", ','), "2,5");

    editor.AutoIncrement = true;
    play("tool Text; move 1 1");
    type("9");
    const int marked = editor.form.txtEdit.SelectAllRequests;
    play("click 1 1; click 2 1; click 3 1");
    EXPECT_THAT(drawing.labels.LabelText, ElementsAre("9", "10", "11"));
    EXPECT_EQ(editor.form.txtEdit.Text, "12");
    EXPECT_GT(editor.form.txtEdit.SelectAllRequests, marked);
}

}  // namespace
}  // namespace ladrix::test
