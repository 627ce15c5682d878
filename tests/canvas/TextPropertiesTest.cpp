// frmTextProps: what it shows, what it applies, and what it refuses.
#include "canvas/gestures/Gesture.h"
#include "canvas/labels/TextProperties.h"

#include "Bench.h"
#include "canvas/gestures/Keys.h"

namespace ladrix::test {
namespace {

struct PropertiesBench : Bench {
    TextProperties form;

    PropertiesBench() {
        load("", line("K1|1|1|7|Arial|10|False|False") + line("K2|2|2|8|Gone Sans|12.5|True|True") +
                     line("K3|3|3|9|Symbol|8|False|True"));
    }
    void open(std::initializer_list<std::size_t> selected) {
        for (const std::size_t i : selected)
            drawing.labels.LabelSelected[i] = 1;
        RecountSelection(editor);
        mnuEditTextProps_Click(form, editor);
    }
};

struct TextPropertiesTest : testing::Test, PropertiesBench {};

TEST_F(TextPropertiesTest, TextPropertiesShowOneLabelWithItsTextAndOfSeveralTheLast) {
    machine.fonts.names.push_back("Bad\xFFName");
    open({});
    EXPECT_THAT(machine.dialogs.forms, IsEmpty());
    open({1});
    EXPECT_THAT(machine.dialogs.forms, ElementsAre(Form::frmTextProps));
    EXPECT_THAT(form.cmbFonts.List,
                ElementsAre("Gone Sans", "Arial", "Courier New", "Symbol", "Times New Roman"))
        << "the label's own though it is not installed, none that a record cannot hold";
    EXPECT_EQ(form.cmbFonts.Text, "Gone Sans");
    EXPECT_THAT(form.cmbFontSize.List,
                ElementsAre("8", "9", "10", "12", "14", "16", "18", "20", "24"));
    EXPECT_EQ(form.cmbFontSize.Text, "12.5");
    EXPECT_TRUE(form.chkFontStyle[0].Value && form.chkFontStyle[1].Value);
    EXPECT_TRUE(form.txtCaption.Visible);
    EXPECT_EQ(form.txtCaption.Text, "K2");
    EXPECT_EQ(form.txtCaption.SelectAllRequests, 1);
    open({2});
    EXPECT_FALSE(form.txtCaption.Visible) << "they share no text";
    EXPECT_EQ(form.cmbFonts.Text, "Symbol");
    EXPECT_EQ(form.cmbFontSize.Text, "8");
    form.cmbFonts.Text = "Courier New";
    cmbFonts_Click(form, editor);
    EXPECT_EQ(form.cmbFontSize.List.size(), 8u) << "of a fixed width";
}

TEST_F(TextPropertiesTest, TextPropertiesAreAppliedToWhatIsSelectedInOneStepAndEndTheSelection) {
    open({0, 2});
    form.cmbFonts.Text = "Courier New";
    cmbFontSize_Change(form, "10,5");
    form.chkFontStyle[0].Value = true;
    form.txtCaption.Text = "not theirs";
    cmdOKTextProps_Click(form, editor);
    EXPECT_THAT(labels(), ElementsAre("K1|1|1|7|Courier New|10.5|True|True",
                                      "K2|2|2|8|Gone Sans|12.5|True|True",
                                      "K3|3|3|9|Courier New|10.5|True|True"));
    EXPECT_FALSE(form.Visible);
    EXPECT_EQ(snapshots, 1);
    EXPECT_TRUE(drawing.DrawingChanged);
    EXPECT_EQ(editor.SelectedCount, 0);
    EXPECT_THAT(drawing.labels.LabelSelected, ElementsAre(0, 0, 0));
    EXPECT_EQ(editor.form.lbl[0].Font.name, "Courier New");

    open({1});
    txtCaption_Change(form, "M");
    txtCaption_KeyDown(form, editor, 'M');
    EXPECT_EQ(drawing.labels.LabelText[1], "K2") << "taken only when applied";
    txtCaption_KeyDown(form, editor, key::Enter);
    EXPECT_EQ(labels()[1], "M|2|2|8|Gone Sans|12.5|True|True");
    open({1});
    txtCaption_Change(form, "lost");
    frmTextProps_Cancel(form);
    EXPECT_EQ(drawing.labels.LabelText[1], "M");
}

TEST_F(TextPropertiesTest, TextPropertiesMakeTheDefaultFontAndChangeNoLabel) {
    open({1});
    const std::string before = drawing.LabelString;
    cmdSet_Click(form, editor);
    EXPECT_EQ(drawing.DefaultFontName, "Gone Sans");
    EXPECT_EQ(drawing.DefaultFontSize, 12);
    EXPECT_TRUE(drawing.DefaultFontBold && drawing.DefaultFontItalic);
    EXPECT_TRUE(form.Visible);
    EXPECT_EQ(drawing.LabelString, before);
    EXPECT_FALSE(drawing.DrawingChanged);
}

TEST(TextProperties, RefuseASizeThatIsNone) {
    for (const char* size : {"", "big", "0", "-8", "0.99", "400.1", "1e99", "nan"}) {
        SCOPED_TRACE(size);
        PropertiesBench bench;
        bench.open({0});
        const std::string before = bench.drawing.LabelString;
        cmbFontSize_Change(bench.form, size);
        SaveAndExit(bench.form, bench.editor);
        cmdSet_Click(bench.form, bench.editor);
        ASSERT_EQ(bench.machine.reports.size(), 2u);
        EXPECT_THAT(bench.machine.reports[0].text, HasSubstr("from 1 to 400"));
        EXPECT_THAT(bench.form.lblNote.Caption, HasSubstr("from 1 to 400"));
        EXPECT_TRUE(bench.form.Visible);
        EXPECT_EQ(bench.drawing.LabelString, before);
        EXPECT_EQ(bench.editor.SelectedLabelCount, 1);
        EXPECT_EQ(bench.drawing.DefaultFontSize, 8);
        EXPECT_EQ(bench.snapshots, 0);
        cmbFontSize_Change(bench.form, " 400 ");
        EXPECT_EQ(bench.form.lblNote.Caption, "");
        SaveAndExit(bench.form, bench.editor);
        EXPECT_EQ(bench.drawing.labels.LabelFontSize[0], 400);
    }
}

}  // namespace
}  // namespace ladrix::test
