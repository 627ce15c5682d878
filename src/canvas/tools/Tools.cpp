#include "canvas/tools/Tools.h"

#include "canvas/gestures/Gesture.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/state/Panels.h"
#include "canvas/tools/ToolTable.h"
#include "platform/Numbers.h"
#include "symbols/DeviceNames.h"

namespace ladrix {

namespace {

PaletteButton& button(Editor& editor, Short index) {
    return editor.form.cmdSym.at(static_cast<std::size_t>(index));
}

// What the tool tables know a button by. A user symbol may bear the name of a built-in one.
std::string toolTag(const Editor& editor, Short index) {
    const std::string& tag = editor.form.cmdSym.at(static_cast<std::size_t>(index)).Tag;
    return index > editor.LastBuiltInButton ? "US " + tag : tag;
}

void presetAngles(Editor& editor, const Tool& tool) {
    const char mark = editor.platform.locale.decimalMark;
    editor.ArcStartAngle = tool.startAngle;
    editor.ArcEndAngle = tool.endAngle;
    editor.form.txtCircleStart.Text = degreesText(editor.ArcStartAngle, mark);
    editor.form.txtCircleEnd.Text = degreesText(editor.ArcEndAngle, mark);
}

void presetRadius(Editor& editor, const Tool& tool) {
    const Single typed = tool.typedRadius ? editor.*tool.typedRadius : 0;
    const Single radius = typed != 0 ? typed : tool.radius;
    (tool.kind == ToolKind::Arc ? editor.ArcRadius : editor.CircleRadius) = radius;
    editor.form.txtRadius.Text = singleText(radius, editor.platform.locale.decimalMark);
}

void openToolPanel(Editor& editor, const Tool& tool) {
    const bool arc = tool.kind == ToolKind::Arc;
    if (!arc && tool.kind != ToolKind::Circle) return showPanel(editor, Panel::None);
    layOutRadiusPanel(editor, arc ? RadiusPanel::WithAngles : RadiusPanel::RadiusAlone);
    if (arc) presetAngles(editor, tool);
    presetRadius(editor, tool);
    showPanel(editor, Panel::Radius);
}

void storeDevice(Editor& editor, PaletteButton& pressed, std::string_view tag) {
    const std::string_view device = deviceOfPaletteText(tag);
    if (device != "InsertUserSymbol") pressed.DeviceName = device;
    editor.symbols.block.CurDevice = device;
}

}  // namespace

void cmdSym_Click(Editor& editor, Short index) {
    if (editor.Arranging) return;
    if (editor.SelectedCount != 0) {
        ClearCopyState(editor);
        ResetEditor(editor);
    }
    keepLabelEdit(editor);
    endGesture(editor);
    releaseButton(editor, editor.PreviousTool);
    editor.PreviousTool = editor.gesture.CurrentTool = index;
    editor.gesture.ToolActive = editor.gesture.ToolCursor = editor.gesture.ToolBlocksBand = true;
    refreshToolName(editor);
    editor.RepeatTool = index;
    editor.RepeatName = editor.gesture.ToolName;
    editor.form.menu[Menu::mnuEditRepeat].Enabled = true;

    PaletteButton& pressed = button(editor, index);
    const Tool& tool = toolInHand(editor);
    editor.form.lblMessage.Caption = pressed.Tag + " Selected" + std::string(promptTail(tool.kind));
    pressButton(editor, index);
    openToolPanel(editor, tool);
    storeDevice(editor, pressed, editor.gesture.ToolName);
    editor.form.FocusRequest = tool.kind == ToolKind::Text ? Focus::TextEdit : Focus::Canvas;
}

void cmdSym_MouseMove(Editor& editor, Short index, Single dx, Single dy) {
    const PaletteButton& under = button(editor, index);
    const auto within = [](Single distance) { return distance >= 100 && distance <= 335; };
    if (!under.HasOrientations || !within(dx) || !within(dy)) return;
    editor.form.picMoreSym = {true, index, under.OrientationCount};
}

void cmdMoreSym_Click(Editor& editor, Short orientation) {
    const Short index = editor.form.picMoreSym.Index;
    editor.form.picMoreSym.Visible = false;
    if (index < 0 || orientation < 0 || orientation >= button(editor, index).OrientationCount)
        return;
    button(editor, index).ButtonOrientation = orientation;
    cmdSym_Click(editor, index);
}

void mnuEditRepeat_Click(Editor& editor) {
    if (editor.RepeatTool != -1) cmdSym_Click(editor, editor.RepeatTool);
}

void findRepeatTool(Editor& editor) {
    editor.RepeatTool = -1;
    for (Short i = 0; i < static_cast<Short>(editor.form.cmdSym.size()); ++i)
        if (!button(editor, i).Tag.empty() && toolTag(editor, i) == editor.RepeatName)
            editor.RepeatTool = i;
    editor.form.menu[Menu::mnuEditRepeat].Enabled = editor.RepeatTool != -1;
}

void refreshToolName(Editor& editor) {
    editor.gesture.ToolName.clear();
    if (editor.gesture.TestSymbolMode) {
        editor.gesture.ToolName = "Test Symbol";
        return;
    }
    if (editor.gesture.CurrentTool == -1) return;
    editor.gesture.ToolName = toolTag(editor, editor.gesture.CurrentTool);
}

void fillToolBlock(Editor& editor, Single x, Single y, Long color) {
    const PaletteButton& pressed = button(editor, editor.gesture.CurrentTool);
    DeviceBlock& block = editor.symbols.block;
    block.obj = editor.platform.picLX;
    const std::string tag = toolTag(editor, editor.gesture.CurrentTool);
    block.CurDevice = deviceOfPaletteText(tag);
    block.CurX = x;
    block.CurY = y;
    block.CurColor = color;
    block.CurWidthTag = editor.SymbolWidthTag;
    block.CurScaleX = editor.SymbolScaleX;
    block.CurScaleY = editor.SymbolScaleY;
    block.CurStartAngle = editor.ArcStartAngle;
    block.CurEndAngle = editor.ArcEndAngle;
    block.CurRadius = editor.ArcRadius;
    block.CurRadius2 = editor.CircleRadius;
    block.CurAspect = 1;
    block.CurDirection = toolOfName(tag).direction;
    block.CurOrientation = pressed.ButtonOrientation;
    block.CurFlip = editor.SymbolFlip;
}

}  // namespace ladrix
