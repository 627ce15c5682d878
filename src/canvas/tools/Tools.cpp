#include "canvas/tools/Tools.h"

#include "canvas/gestures/CopyMove.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/labels/Labels.h"
#include "canvas/view/Redraw.h"
#include "canvas/view/Zoom.h"
#include "platform/Numbers.h"
#include "symbols/DeviceNames.h"

namespace ladrix {

namespace {

enum class ToolClass { LineOrSquare, Text, Arc, Circle, Other };

ToolClass classOf(std::string_view tag) {
    if (tag == "Line" || tag == "Dashed Line" || tag == "Square" || tag == "Dashed Square")
        return ToolClass::LineOrSquare;
    if (tag == "Text") return ToolClass::Text;
    if (tag == "Arc Up" || tag == "Arc Down" || tag == "Arc Left" || tag == "Arc Right")
        return ToolClass::Arc;
    if (tag == "Small Circle" || tag == "Large Circle" || tag == "Connection Point")
        return ToolClass::Circle;
    return ToolClass::Other;
}

std::string_view promptTail(ToolClass kind) {
    switch (kind) {
        case ToolClass::LineOrSquare:
            return " - Click a start point or press ESC to end.";
        case ToolClass::Text:
            return " - Click an insertion point. Edit text either prior or after insertion and "
                   "then "
                   "press Enter.";
        case ToolClass::Arc:
            return " - After editing the radius, start and end point in degrees, click a location.";
        case ToolClass::Circle:
            return " - After editing the radius, click a location.";
        case ToolClass::Other:
            break;
    }
    return " - After selecting location, type a name for the device if applicable.";
}

PaletteButton& button(Editor& editor, Short index) {
    return editor.form.cmdSym.at(static_cast<std::size_t>(index));
}

// What the tool tables know a button by. A user symbol may bear the name of a built-in one.
std::string toolTag(const Editor& editor, Short index) {
    const std::string& tag = editor.form.cmdSym.at(static_cast<std::size_t>(index)).Tag;
    return index > editor.LastBuiltInButton ? "US " + tag : tag;
}

Short directionOf(std::string_view tag) {
    if (tag == "Arc Left") return 1;
    if (tag == "Arc Right") return 2;
    if (tag == "Arc Up") return 3;
    if (tag == "Arc Down") return 4;
    return 0;
}

void presetAngles(Editor& editor, std::string_view tag) {
    struct Preset {
        std::string_view tag;
        double start, end;
    };
    static constexpr Preset Presets[] = {{"Arc Left", Pi / 2, 3 * Pi / 2},
                                         {"Arc Right", 3 * Pi / 2, Pi / 2},
                                         {"Arc Up", 2 * Pi, Pi},
                                         {"Arc Down", Pi, 2 * Pi}};
    for (const Preset& preset : Presets) {
        if (preset.tag != tag) continue;
        editor.ArcStartAngle = static_cast<Single>(preset.start);
        editor.ArcEndAngle = static_cast<Single>(preset.end);
        const char mark = editor.platform.locale.decimalMark;
        editor.form.txtCircleStart.Text = degreesText(editor.ArcStartAngle, mark);
        editor.form.txtCircleEnd.Text = degreesText(editor.ArcEndAngle, mark);
    }
}

void presetRadius(Editor& editor, std::string_view tag, ToolClass kind) {
    const auto kept = [](Single typed, Single preset) { return typed != 0 ? typed : preset; };
    Single radius = 0.025f;
    if (tag == "Small Circle") radius = kept(editor.LastSmallCircle, 0.0375f);
    if (tag == "Large Circle") radius = kept(editor.LastLargeCircle, 0.125f);
    if (kind == ToolClass::Arc)
        radius = editor.ArcRadius = kept(editor.LastArc, 0.125f);
    else
        editor.CircleRadius = radius;
    editor.form.txtRadius.Text = singleText(radius, editor.platform.locale.decimalMark);
}

void openToolPanel(Editor& editor, std::string_view tag, ToolClass kind) {
    if (kind == ToolClass::Arc) layOutRadiusPanel(editor, RadiusPanel::WithAngles);
    if (kind == ToolClass::Circle) layOutRadiusPanel(editor, RadiusPanel::RadiusAlone);
    presetAngles(editor, tag);
    if (kind != ToolClass::Arc && kind != ToolClass::Circle) return showPanel(editor, Panel::None);
    presetRadius(editor, tag, kind);
    showPanel(editor, Panel::Radius);
}

void storeDevice(Editor& editor, PaletteButton& pressed, std::string_view tag) {
    const std::string_view device = deviceOfPaletteText(tag);
    if (device != "InsertUserSymbol") pressed.DeviceName = device;
    editor.symbols.block.CurDevice = device;
}

}  // namespace

void releaseButton(Editor& editor, Short index) {
    if (index < 0) return;
    button(editor, index).Pressed = false;
    ++editor.form.PaletteVersion;
}

void pressButton(Editor& editor, Short index) {
    button(editor, index).Pressed = true;
    ++editor.form.PaletteVersion;
}

void cmdSym_Click(Editor& editor, Short index) {
    if (editor.Arranging) return;
    editor.MouseIsDown = false;
    endZoomMode(editor);
    if (editor.SelectedCount != 0) {
        ClearCopyState(editor);
        ResetEditor(editor);
    }
    finishLabelEdit(editor);
    editor.ToolCursor = true;
    releaseButton(editor, editor.PreviousTool);
    beginTemporaryGraphics(editor);
    editor.platform.picLX->AutoRedraw = true;
    editor.LineStartX = editor.LineStartY = NoPoint;
    editor.SquareStarted = false;
    editor.RepeatTool = editor.CurrentTool = index;
    editor.TestSymbolMode = false;
    editor.ToolActive = true;

    PaletteButton& pressed = button(editor, index);
    const std::string tag = toolTag(editor, index);
    const ToolClass kind = classOf(tag);
    editor.form.lblMessage.Caption = pressed.Tag + " Selected" + std::string(promptTail(kind));
    pressButton(editor, index);
    openToolPanel(editor, tag, kind);
    storeDevice(editor, pressed, tag);
    refreshToolName(editor);
    editor.ToolBlocksBand = true;
    editor.PreviousTool = index;
    editor.form.FocusRequest = kind == ToolClass::Text ? Focus::TextEdit : Focus::Canvas;
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

void refreshToolName(Editor& editor) {
    editor.ToolName.clear();
    if (editor.TestSymbolMode) {
        editor.ToolName = "Test Symbol";
        return;
    }
    if (editor.CurrentTool == -1) return;
    editor.ToolName = toolTag(editor, editor.CurrentTool);
}

void fillToolBlock(Editor& editor, Single x, Single y, Long color) {
    const PaletteButton& pressed = button(editor, editor.CurrentTool);
    DeviceBlock& block = editor.symbols.block;
    block.obj = editor.platform.picLX;
    const std::string tag = toolTag(editor, editor.CurrentTool);
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
    block.CurDirection = directionOf(tag);
    block.CurOrientation = pressed.ButtonOrientation;
    block.CurFlip = editor.SymbolFlip;
}

void showPanel(Editor& editor, Panel panel) {
    editor.form.picText.Visible = panel == Panel::Text;
    editor.form.picRadius.Visible = panel == Panel::Radius;
}

void layOutRadiusPanel(Editor& editor, RadiusPanel fields) {
    const bool angles = fields == RadiusPanel::WithAngles;
    editor.form.RadiusPanelWide = angles;
    editor.form.lblCircle[1].Visible = editor.form.lblCircle[2].Visible = angles;
    editor.form.txtCircleStart.Enabled = editor.form.txtCircleEnd.Enabled = angles;
}

}  // namespace ladrix
