#include "canvas/view/Zoom.h"

#include <cmath>

#include "canvas/gestures/Gesture.h"
#include "canvas/view/Painting.h"
#include "canvas/view/View.h"

namespace ladrix {

namespace {

constexpr Short FewestSteps = -5, MostSteps = 14;
constexpr double StepFactor = 1.25;

Short stepsAfter(const Editor& editor, ZoomStep step) {
    return static_cast<Short>(editor.ZoomStepCount + (step == ZoomStep::In ? 1 : -1));
}

bool withinRange(Short steps) {
    return steps >= FewestSteps && steps <= MostSteps;
}

const char* limitText(ZoomStep step) {
    return step == ZoomStep::In ? "Cannot zoom in further." : "Cannot zoom out further.";
}

// The share of the view, from its upper left, at which the zoom point stands.
void takeFractions(Editor& editor) {
    editor.ZoomFractionX = (editor.ZoomPointX - editor.ScaleLeft) / editor.VisibleWidth;
    editor.ZoomFractionY = (editor.ZoomPointY - editor.ScaleTop) / editor.VisibleHeight;
}

// The factor follows from the count, so that as many steps back give exactly 1 again.
void setSteps(Editor& editor, Short steps) {
    editor.ZoomStepCount = steps;
    editor.ZoomFactor = static_cast<Single>(std::pow(StepFactor, steps));
    editor.CanvasScaleWidth = editor.PageWidth / editor.ZoomFactor;
    editor.CanvasScaleHeight = editor.PageHeight / editor.ZoomFactor;
    measureFrame(editor);
}

void zoom(Editor& editor, ZoomStep step) {
    const Short steps = stepsAfter(editor, step);
    if (!withinRange(steps)) {
        editor.platform.tell(limitText(step));
        return ResetEditor(editor);
    }
    measureFrame(editor);
    if (editor.ZoomFactor == 1) takeFractions(editor);
    setSteps(editor, steps);
    editor.HScrollTarget = (editor.ZoomPointX - editor.VisibleWidth * editor.ZoomFractionX) * 100;
    editor.VScrollTarget = (editor.ZoomPointY - editor.VisibleHeight * editor.ZoomFractionY) * 100;
    ArrangeScrollBars(editor);
    showScrolledView(editor);
    editor.form.lblMessage.Caption = readyMessage(editor);
}

void armZoom(Editor& editor, ZoomStep step) {
    if (editor.gesture.CurrentTool != -1) ResetEditor(editor);
    endGesture(editor);
    const bool in = step == ZoomStep::In;
    editor.gesture.ZoomInPending = in;
    editor.gesture.ZoomOutPending = !in;
    editor.form.cmdZoomIn.BackColor = in ? Cyan : ButtonFace;
    editor.form.cmdZoomOut.BackColor = in ? ButtonFace : Cyan;
}

}  // namespace

void ZoomIn(Editor& editor) {
    zoom(editor, ZoomStep::In);
}

void ZoomOut(Editor& editor) {
    zoom(editor, ZoomStep::Out);
}

void cmdZoomIn_Click(Editor& editor) {
    armZoom(editor, ZoomStep::In);
}

void cmdZoomOut_Click(Editor& editor) {
    armZoom(editor, ZoomStep::Out);
}

void mnuEditZoomIn_Click(Editor& editor) {
    ZoomIn(editor);
}

void mnuEditZoomOut_Click(Editor& editor) {
    ZoomOut(editor);
}

void zoomToPageWidth(Editor& editor) {
    const double fits = editor.form.FrameWidth / TwipsPerInch / editor.PageWidth;
    Short steps = FewestSteps;
    while (steps < MostSteps && std::pow(StepFactor, steps + 1) <= fits)
        ++steps;
    setSteps(editor, steps);
    ArrangeScrollBars(editor);
    placeView(editor, 0, 0);
    paintDrawing(editor);
    editor.form.lblMessage.Caption = zoomScaleText(editor);
}

void zoomAtPress(Editor& editor, Single x, Single y) {
    editor.ZoomPointX = x;
    editor.ZoomPointY = y;
    zoom(editor, editor.gesture.ZoomInPending ? ZoomStep::In : ZoomStep::Out);
}

void zoomByWheel(Editor& editor, ZoomStep step, Single x, Single y) {
    const Short steps = stepsAfter(editor, step);
    if (!withinRange(steps)) {
        editor.form.lblMessage.Caption = limitText(step);
        return;
    }
    const Single formerZoom = editor.ZoomFactor;
    editor.ZoomPointX = x;
    editor.ZoomPointY = y;
    measureFrame(editor);
    if (formerZoom == 1) takeFractions(editor);
    setSteps(editor, steps);
    ArrangeScrollBars(editor);
    const Single shrunk = formerZoom / editor.ZoomFactor;
    placeView(editor, x - (x - editor.ScaleLeft) * shrunk, y - (y - editor.ScaleTop) * shrunk);
    paintDrawing(editor);
    editor.form.lblMessage.Caption = zoomScaleText(editor);
}

}  // namespace ladrix
