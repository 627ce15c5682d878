#include "usersymbols/Compiler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "SymbolBench.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/Pointer.h"

namespace ladrix {
namespace {

using test::Primitive;
using test::SymbolBench;

Device device(std::string_view name, Single x, Single y) {
    Device made;
    made.name = name;
    made.x = x;
    made.y = y;
    made.aspect = 1;
    return made;
}
Device straight(std::string_view name, Single x, Single y, Single x2, Single y2) {
    Device made = device(name, x, y);
    made.x2 = x2;
    made.y2 = y2;
    return made;
}
Device round(std::string_view name, Single x, Single y, Single r, Short direction = 0,
             Single start = 0, Single end = 0) {
    Device made = device(name, x, y);
    made.radius = r;
    made.direction = direction;
    made.startAngle = start;
    made.endAngle = end;
    return made;
}

void select(SymbolBench& bench, const Device& item) {
    bench.drawing.devices.append(item);
    bench.drawing.devices.DeviceSelected.back() = 1;
}
void select(SymbolBench& bench, const Label& label) {
    bench.drawing.labels.append(label);
    bench.drawing.labels.LabelSelected.back() = 1;
}

void compileAt(SymbolBench& bench, Single x, Single y, char mark = '.') {
    bench.symbols.compiler.InsertionX = x;
    bench.symbols.compiler.InsertionY = y;
    CollectSelectedItems(bench.symbols.compiler, bench.drawing);
    compileScript(bench.symbols.compiler, mark);
}

struct Case {
    Device item;
    std::string script, exported, placed;
};

// Compiled about (1, 1), placed at (4, 4).
TEST(CompilerTest, EachKindOfPrimitiveIsWrittenAndPlacedAgain) {
    const std::vector<Case> cases = {
        {straight("InsertSavedLine", 1.5f, 1.25f, 2, 0.75f), "Line|0.5|0.25|1|-0.25",
         "obj.Line (X + (MyScaleX * 0.5), Y + (MyScaleY * 0.25)) - (X + (MyScaleX * 1), Y + "
         "(MyScaleY * -0.25)), MyColor",
         "SavedLine 4.5,4.25 to 5,3.75"},
        {straight("InsertSavedSquare", 1.5f, 1.25f, 2, 1.75f), "Square|0.5|0.25|1|0.75",
         "obj.Line (X + (MyScaleX * 0.5), Y + (MyScaleY * 0.25)) - (X + (MyScaleX * 1), Y + "
         "(MyScaleY * 0.75)), MyColor, B",
         "SavedSquare 4.5,4.25 to 5,4.75"},
        {round("InsertCircle", 1.5f, 1.25f, 0.25f), "Circle|0.5|0.25|0.25|1",
         "obj.Circle (X + (MyScaleX * 0.75), Y + (MyScaleY * 0.25)), (MyScaleX * 0.25), MyColor",
         "Circle 4.5,4.25 r 0.25"},
        {round("InsertSolidCircle", 1.5f, 1.25f, 0.25f), "SolidCircle|0.5|0.25|0.25|1",
         "obj.Circle (X + (MyScaleX * 0.5), Y + (MyScaleY * 0.25)), (MyScaleX * 0.25), MyColor, 1",
         "SolidCircle 4.5,4.25 r 0.25"},
        {round("InsertConnectionPoint", 1.5f, 1.25f, 0.1f), "Dot|0.5|0.25|0.025",
         "obj.Circle (X + (MyScaleX * 0.5, Y + (MyScaleY * 0.25)), 0.025, MyColor",
         "SolidCircle 4.5,4.25 r 0.025"},
        {round("InsertArc", 1.5f, 1.25f, 0.25f, 0, 0.5f, 2), "Arc|0.5|0.25|0.25|0.5|2",
         "obj.Circle (X + (MyScaleX * 0.5), Y + (MyScaleY * 0.25)),  (MyScaleX * 0.25), MyColor, "
         "0.5, 2",
         "Arc 4.5,4.25 r 0.25 from 0.5 to 2"},
        {round("InsertArc", 1.5f, 1.25f, 0.25f, 1),
         "Arc|0.75|0.25|0.25|(Pi * 3) / 4|(Pi * 5) / 4|1",
         "obj.Circle (X + 0.75, Y + 0.25), 0.25, MyColor, (Pi * 3) / 4, (Pi * 5) / 4",
         "Arc 4.75,4.25 r 0.25 from 1e-06 to 1"},
        {round("InsertArc", 1.5f, 1.25f, 0.25f, 2), "Arc|0.25|0.25|0.25|0|(Pi * 7) / 4|Pi / 4|1",
         "obj.Circle (X + 0.25, Y + 0.25), 0.25, MyColor, (Pi * 7) / 4, Pi / 4",
         "Arc 4.25,4.25 r 0.25 from 1e-06 to 1"},
        {round("InsertArc", 1.5f, 1.25f, 0.25f, 3), "Arc|0.5|0.5|0.25|0|Pi / 4|(Pi * 3) / 4|1",
         "obj.Circle (X + 0.5, Y + 0.5), 0.25, MyColor, Pi / 4, (Pi * 3) / 4",
         "Arc 4.5,4.5 r 0.25 from 1e-06 to 1"},
        {round("InsertArc", 1.5f, 1.25f, 0.25f, 4), "Arc|0.5|0|0.25|0|(Pi * 5) / 4|(Pi * 7) / 4|1",
         "obj.Circle (X + 0.5, Y + 0), 0.25, MyColor, (Pi * 5) / 4, (Pi * 7) / 4",
         "Arc 4.5,4 r 0.25 from 1e-06 to 1"},
        {round("InsertSemiCircle", 1.5f, 1.25f, 0.25f, 1), "Arc|0.75|0.25|0.25|1.5708|4.712388",
         "obj.Circle (X + 0.5, Y + 0.25), 0.25, MyColor, Pi / 2, (Pi * 3) / 2",
         "Arc 4.75,4.25 r 0.25 from 1.5708 to 4.71239"},
        {round("InsertSemiCircle", 1.5f, 1.25f, 0.25f, 2), "Arc|0.25|0.25|0.25|4.712388|1.5708",
         "obj.Circle (X + 0.5, Y + 0.25), 0.25, MyColor, (Pi * 3) / 2, Pi / 2",
         "Arc 4.25,4.25 r 0.25 from 4.71239 to 1.5708"},
        {round("InsertSemiCircle", 1.5f, 1.25f, 0.25f, 3), "Arc|0.5|0.5|0.25|6.283185|3.1415927",
         "obj.Circle (X + 0.5, Y + 0.25), 0.25, MyColor, Pi * 2, Pi",
         "Arc 4.5,4.5 r 0.25 from 6.28319 to 3.14159"},
        {round("InsertSemiCircle", 1.5f, 1.25f, 0.25f, 4), "Arc|0.5|0|0.25|3.1415927|6.283185",
         "obj.Circle (X + 0.5, Y + 0.25- 0.25), 0.25, MyColor, Pi, Pi * 2",
         "Arc 4.5,4 r 0.25 from 3.14159 to 6.28319"},
        {device("InsertGround", 1.5f, 1.25f), "", "", ""},
    };
    for (const Case& c : cases) {
        SymbolBench bench;
        select(bench, c.item);
        compileAt(bench, 1, 1);
        const std::string text = bench.symbols.compiler.SymbolScriptText;
        EXPECT_EQ(test::readable(text), c.script) << c.item.name;
        EXPECT_EQ(test::readable(bench.symbols.compiler.SymbolExportText), c.exported);
        EXPECT_EQ(placedAt(bench, text, 1), c.placed) << c.script;
    }
}

TEST(CompilerTest, TextsFollowTheDevicesAndNumbersTakeTheLocalesMark) {
    SymbolBench bench;
    select(bench, device("InsertGround", 3, 3));
    select(bench, straight("InsertSavedLine", 1.00004f, 1, 2.33336f, 1));
    Label label;
    label.text = "K1";
    label.x = 1.5f;
    label.y = 0.75f;
    label.color = 255;
    label.fontName = "Arial";
    label.fontSize = 8.25f;
    label.bold = true;
    select(bench, label);
    label.text = "";
    select(bench, label);  // left out
    label.text = "K2";
    bench.drawing.labels.append(label);  // not selected, as the next
    bench.drawing.devices.append(device("InsertGround", 5, 5));
    compileAt(bench, 1, 1, ',');
    EXPECT_EQ(test::readable(bench.symbols.compiler.SymbolScriptText),
              "\nLine|0|0|1,3334|0\nText|K1|0,5|-0,25|255|Arial|8,25|True|False");
    EXPECT_TRUE(bench.symbols.compiler.SymbolExportText.starts_with("\r\nobj.Line "));
}

// The pictures as they are after the icon has been drawn.
struct Icon {
    std::vector<Primitive> normal, shown, cyan;
    Single left, size;
};

Icon iconOf(SymbolBench& bench) {
    makeIconPictures(bench.symbols, bench.machine.platform);
    drawSymbolIcons(bench.symbols);
    const auto drawn = [](const std::unique_ptr<PictureBox>& picture) -> test::RecordingPicture& {
        return dynamic_cast<test::RecordingPicture&>(*picture);
    };
    FormUS& form = bench.symbols.frmUS;
    return {drawn(form.picIcon).primitives, drawn(form.picIconShow).primitives,
            drawn(form.picCyanIcon).primitives, drawn(form.picIcon).scaleLeft,
            drawn(form.picIcon).scaleWidth};
}

TEST(CompilerTest, TheIconIsSquareAndCentresWhatIsNot) {
    SymbolBench bench;
    bench.symbols.ButtonForeColor = 5;
    select(bench, straight("InsertSavedLine", 3, 2, 1, 2));
    compileAt(bench, 1, 2);
    const Icon icon = iconOf(bench);
    ASSERT_EQ(icon.normal.size(), 1u);
    EXPECT_EQ(icon.normal[0].color, 5);
    EXPECT_EQ(icon.cyan[0].color, Black);
    EXPECT_NEAR(icon.size, 2.4, 1e-5);
    EXPECT_NEAR(icon.left, 0.034 * 2.4 - 0.2, 1e-5);
    EXPECT_NEAR(icon.normal[0].x1, 2.05, 1e-5);
    EXPECT_NEAR(icon.normal[0].x2, 0.05, 1e-5);
    EXPECT_NEAR(icon.normal[0].y1, 1.05, 1e-5);
}

TEST(CompilerTest, TheBoxOfEachKindIsItsGeometry) {
    struct Box {
        Device item;
        Single left, top, right, bottom;
    };
    const std::vector<Box> boxes = {
        {round("InsertCircle", 2, 2, 0.5f), 2, 1.5f, 3, 2.5f},
        {round("InsertSolidCircle", 2, 2, 0.5f), 2, 2, 2, 2},
        {straight("InsertSavedSquare", 3, 3, 2, 1), 2, 1, 3, 3},
        {round("InsertArc", 2, 2, 0.5f, 0), 1.5f, 1.5f, 2.5f, 2.5f},
        {round("InsertArc", 2, 2, 0.5f, 1), 2, 1.5f, 2.5f, 2.5f},
        {round("InsertSemiCircle", 2, 2, 0.5f, 2), 1.5f, 1.5f, 2, 2.5f},
        {round("InsertArc", 2, 2, 0.5f, 3), 1.5f, 2, 2.5f, 2.5f},
        {round("InsertSemiCircle", 2, 2, 0.5f, 4), 1.5f, 1.5f, 2.5f, 2},
        {device("InsertGround", 2, 2), 8.5f, 11, 0, 0},
        {round("InsertCircle", 12, 14, 0.5f), 12, 13.5f, 13, 14.5f},
    };
    for (const Box& box : boxes) {
        SymbolBench bench;
        select(bench, box.item);
        compileAt(bench, 0, 0);
        const SymbolCompiler& found = bench.symbols.compiler;
        EXPECT_EQ(found.SymbolLeft, box.left) << box.item.name << box.item.direction;
        EXPECT_EQ(found.SymbolTop, box.top) << box.item.name << box.item.direction;
        EXPECT_EQ(found.SymbolRight, box.right) << box.item.name << box.item.direction;
        EXPECT_EQ(found.SymbolBottom, box.bottom) << box.item.name << box.item.direction;
        iconOf(bench);  // no box is too odd for an icon
    }
}

TEST(CompilerTest, HalfCirclesAreNotShownAndLabelsOnlyWhereTheyAreAlone) {
    SymbolBench bench;
    select(bench, round("InsertSemiCircle", 2, 2, 0.5f, 1));
    Label label;
    label.text = "K1";
    label.x = label.y = 2;
    label.fontName = "Arial";
    label.fontSize = 8;
    select(bench, label);
    compileAt(bench, 2, 2);
    Icon icon = iconOf(bench);
    EXPECT_EQ(icon.normal.size(), 1u);
    EXPECT_EQ(icon.shown.size(), 0u);
    EXPECT_EQ(icon.cyan.size(), 1u);

    CollectSelectedLabels(bench.symbols.compiler, bench.drawing, bench.machine.fonts);
    EXPECT_EQ(bench.symbols.compiler.items.DeviceCount, 0);
    icon = iconOf(bench);
    ASSERT_EQ(icon.shown.size(), 1u);
    EXPECT_EQ(icon.shown[0].kind, Primitive::Kind::Text);
}

struct PassesTest : testing::Test {
    SymbolBench bench;
    std::vector<Form>& forms = bench.machine.dialogs.forms;

    PassesTest() {
        bench.editor.SymbolPointTaken = [this](Single x, Single y, Short label) {
            takeInsertionPoint(bench.symbols, bench.editor, x, y, label);
        };
    }
    void begin() {
        RecountSelection(bench.editor);
        mnuEditSaveUserSymbol_Click(bench.symbols, bench.editor);
    }
    void click(Single x, Single y) {
        picLX_MouseMove(bench.editor, 0, 0, x, y);
        picLX_MouseDown(bench.editor, LeftButton, 0, x, y);
        picLX_MouseUp(bench.editor, LeftButton, 0, x, y);
    }
};

TEST_F(PassesTest, OneClickAfterTheColourMakesTheSymbolAndRecordsNothing) {
    begin();
    EXPECT_EQ(bench.machine.dialogs.boxes.back().text, "Nothing has been selected.");
    select(bench, straight("InsertSavedLine", 1, 1, 2, 1));
    begin();
    EXPECT_EQ(forms, std::vector<Form>{Form::frmButtonColor});
    EXPECT_EQ(bench.editor.form.lblMessage.Caption,
              "1 devices have been selected for Inclusion as a User Symbol.");
    begin();  // asked for again before the click
    click(1.01f, 1.24f);
    EXPECT_EQ(forms.back(), Form::frmUS);
    EXPECT_EQ(test::readable(bench.symbols.compiler.SymbolScriptText), "Line|0|-0.25|1|-0.25");
    EXPECT_EQ(bench.machine.clipboard.text, bench.symbols.compiler.SymbolExportText);
    EXPECT_EQ(bench.drawing.devices.DeviceCount, 1);
    EXPECT_FALSE(bench.editor.gesture.SymbolPointPending || bench.editor.gesture.SymbolPointFound);
    EXPECT_EQ(bench.drawing.devices.DeviceSelected[0], 1);
}

TEST_F(PassesTest, AClickOnALabelMakesASymbolOfTheLabelsAlone) {
    select(bench, straight("InsertSavedLine", 1, 1, 2, 1));
    Label label;
    label.text = "K1";
    label.x = 1.5f;
    label.y = 1;
    label.fontName = "Arial";
    label.fontSize = 8;
    select(bench, label);
    begin();
    bench.drawing.devices.DeviceSelected[0] = 0;
    bench.editor.SymbolPointTaken(1.25f, 1, -1);
    EXPECT_EQ(forms.back(), Form::frmButtonColor) << "a click beside the labels finds nothing";
    EXPECT_THAT(bench.editor.form.lblMessage.Caption, testing::HasSubstr("labels alone"));
    bench.drawing.devices.DeviceSelected[0] = -1;
    bench.editor.SymbolPointTaken(1.25f, 1, 0);
    EXPECT_EQ(test::readable(bench.symbols.compiler.SymbolScriptText),
              "Text|K1|0.25|0|0|Arial|8|False|False");
    EXPECT_EQ(bench.machine.clipboard.text, "");
    EXPECT_EQ(forms.back(), Form::frmUS);
}

TEST_F(PassesTest, AnExportFileTakesEachSavedSymbol) {
    auto& dialogs = bench.machine.dialogs;
    dialogs.inputAnswers = {"what?", "Mine"};
    mnuAdminCreateSymbolExportFile_Click(bench.symbols, bench.editor);
    EXPECT_EQ(dialogs.boxes.back().title, "Illegal Filename");
    mnuAdminCreateSymbolExportFile_Click(bench.symbols, bench.editor);
    EXPECT_EQ(bench.machine.folder.read("program/Mine.txt"), "");
    bench.symbols.compiler.SymbolExportText = "obj.Line\r\n";
    appendToExportFile(bench.symbols.compiler, bench.machine.files, "Motor");
    EXPECT_EQ(bench.machine.folder.read("program/Mine.txt"), "'Motor\r\nobj.Line\r\n\r\n\r\n");
    dialogs.inputAnswers = {"mine"};
    mnuAdminCreateSymbolExportFile_Click(bench.symbols, bench.editor);
    EXPECT_EQ(dialogs.boxes.back().text,
              "A file with that name already exists. Choose a new name.");
}

}  // namespace
}  // namespace ladrix
