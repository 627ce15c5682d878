#include "canvas/tools/RadiusFields.h"

#include "canvas/gestures/Keys.h"
#include "canvas/history/History.h"
#include "canvas/tools/ToolTable.h"
#include "canvas/view/Painting.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr Single DegreesPerRadian = 57.29577951f;
constexpr Single FirstCircleRadius = 0.0375f, FirstArcRadius = 0.125f;  // inches

void storeRadius(Editor& editor, Single radius) {
    const Tool& tool = toolInHand(editor);
    if (tool.kind == ToolKind::Circle) editor.CircleRadius = radius;
    if (tool.kind == ToolKind::Arc) editor.ArcRadius = radius;
    if (tool.typedRadius) editor.*tool.typedRadius = radius;
}

// Which of the two radii a device takes; nullptr: it has none.
const Single* radiusFor(const Editor& editor, std::string_view name) {
    if (isCircleName(name)) return &editor.CircleRadius;
    return name == "InsertArc" || name == "InsertSemiCircle" ? &editor.ArcRadius : nullptr;
}

bool reshape(Editor& editor, std::size_t i) {
    DeviceTable& devices = editor.drawing.devices;
    const Single* radius = radiusFor(editor, devices.DeviceName[i]);
    if (!radius) return false;
    devices.DeviceRadius[i] = *radius;
    editor.form.txtRadius.Text = singleText(*radius, editor.platform.locale.decimalMark);
    if (isCircleName(devices.DeviceName[i])) return true;
    devices.DeviceStartAngle[i] = editor.ArcStartAngle;
    devices.DeviceEndAngle[i] = editor.ArcEndAngle;
    return true;
}

}  // namespace

void txtRadius_Change(Editor& editor) {
    const std::string& text = editor.form.txtRadius.Text;
    if (text.empty() || editor.gesture.CurrentTool == -1) return;
    editor.platform.attempt("Radius information invalid.",
                            [&] { storeRadius(editor, toSingle(text)); });
}

void txtCircleStart_Change(Editor& editor) {
    if (const auto degrees = typedNumber(editor.form.txtCircleStart.Text))
        editor.ArcStartAngle = *degrees / DegreesPerRadian;
}

void txtCircleEnd_Change(Editor& editor) {
    if (const auto degrees = typedNumber(editor.form.txtCircleEnd.Text))
        editor.ArcEndAngle = *degrees / DegreesPerRadian;
}

bool numberKeyAllowed(Short keyAscii) {
    return (keyAscii >= '0' && keyAscii <= '9') || keyAscii == '.' || keyAscii == ',' ||
           keyAscii == key::Backspace;
}

void txtCircleStart_KeyDown(Editor& editor, Short keyCode) {
    if (keyCode == key::Enter) editor.form.FocusRequest = Focus::CircleEnd;
}

void cmdCircle_Click(Editor& editor) {
    const auto radius = typedNumber(editor.form.txtRadius.Text);
    editor.CircleRadius = radius.value_or(FirstCircleRadius);
    editor.ArcRadius = radius.value_or(FirstArcRadius);
    const auto& marks = editor.drawing.devices.DeviceSelected;
    bool any = false;
    for (std::size_t i = 0; i < marks.size(); ++i)
        if (marks[i] != 0) any = reshape(editor, i) || any;
    editor.form.FocusRequest = Focus::Canvas;
    if (!any) return;
    paintDrawing(editor);
    recordStep(editor);
}

}  // namespace ladrix
