#include "canvas/view/View.h"

#include <algorithm>
#include <cmath>

#include "canvas/view/Painting.h"
#include "document/PageLayout.h"

namespace ladrix {

namespace {

// inches on the screen; a finer grid would be a grey page

// of the grid

// inches, while the grid does not follow the snap

void arrangeBar(ScrollBar& bar, Single page, Single visible, Single& target) {
    const bool needed = page > visible;
    bar.Max = needed ? static_cast<int>((page - visible) * 100 + 0.5f) : 0;
    bar.LargeChange = std::max(1, static_cast<int>(visible * 100));
    bar.SmallChange = std::max(1, static_cast<int>(visible * 10));
    target = std::clamp(target, 0.0f, static_cast<Single>(bar.Max));
    bar.Value = static_cast<int>(std::lround(target));
    bar.Visible = needed;
}

// The next move finds the pointer over another point of the page, or its ghost wiped.
void setScale(Editor& editor) {
    editor.PreviousX = editor.PreviousY = NoPoint;
    editor.platform.picLX->SetScale(editor.ScaleLeft, editor.ScaleTop, editor.ZoomFactor);
}

void takePageSize(Editor& editor) {
    const auto size = pageSize(editor.drawing.PageLayoutKey);
    if (!size) return;
    editor.PageWidth = editor.CanvasScaleWidth = size->PageWidth;
    editor.PageHeight = editor.CanvasScaleHeight = size->PageHeight;
}

void takeScroll(const ScrollBar& bar, Single& target, Single& scale) {
    target = static_cast<Single>(bar.Value);
    scale = target / 100;
}

void applyScroll(Editor& editor) {
    takeScroll(editor.form.HScroll1, editor.HScrollTarget, editor.ScaleLeft);
    takeScroll(editor.form.VScroll1, editor.VScrollTarget, editor.ScaleTop);
    setScale(editor);
}

void returnToFullSize(Editor& editor) {
    editor.ZoomFactor = 1;
    editor.ZoomStepCount = 0;
    editor.CanvasScaleWidth = editor.PageWidth;
    editor.CanvasScaleHeight = editor.PageHeight;
    editor.HScrollTarget = editor.VScrollTarget = 0;
    ArrangeScrollBars(editor);
    applyScroll(editor);
}

void scroll(Editor& editor, const ScrollBar& bar, Single& target, Single& scale) {
    editor.symbols.SkipUserSymbolOnce =
        !editor.gesture.ZoomInPending && !editor.gesture.ZoomOutPending;
    takeScroll(bar, target, scale);
    setScale(editor);
    paintDrawing(editor);
    editor.form.FocusRequest = Focus::Canvas;
}

Single heldWithin(Single position, Single page, Single visible) {
    return std::clamp(position, 0.0f, std::max(0.0f, page - visible));
}

void followView(ScrollBar& bar, Single& target, Single scale) {
    target = std::min(scale * 100, static_cast<Single>(bar.Max));
    bar.Value = static_cast<int>(std::lround(target));
}

}  // namespace

void Form_Resize(Editor& editor, Single frameWidth, Single frameHeight) {
    editor.form.FrameWidth = frameWidth;
    editor.form.FrameHeight = frameHeight;
    ArrangeScrollBars(editor);
    showScrolledView(editor);
}

void ApplyPageLayout(Editor& editor) {
    takePageSize(editor);
    ArrangeScrollBars(editor);
    applyScroll(editor);
    RedrawDrawing(editor);
}

void layOutNewPage(Editor& editor) {
    takePageSize(editor);
    returnToFullSize(editor);
}

void keepViewOnNewPage(Editor& editor) {
    takePageSize(editor);
    editor.CanvasScaleWidth = editor.PageWidth / editor.ZoomFactor;
    editor.CanvasScaleHeight = editor.PageHeight / editor.ZoomFactor;
    ArrangeScrollBars(editor);
    placeView(editor, editor.ScaleLeft, editor.ScaleTop);
}

void ResetZoom(Editor& editor) {
    returnToFullSize(editor);
    paintDrawing(editor);
}

void measureFrame(Editor& editor) {
    editor.VisibleWidth = editor.form.FrameWidth / TwipsPerInch / editor.ZoomFactor;
    editor.VisibleHeight = editor.form.FrameHeight / TwipsPerInch / editor.ZoomFactor;
}

void ArrangeScrollBars(Editor& editor) {
    measureFrame(editor);
    if (editor.gesture.ZoomInPending || editor.gesture.ZoomOutPending)
        editor.form.lblMessage.Caption = zoomScaleText(editor);
    ScrollBar& across = editor.form.HScroll1;
    ScrollBar& down = editor.form.VScroll1;
    arrangeBar(across, editor.PageWidth, editor.VisibleWidth, editor.HScrollTarget);
    arrangeBar(down, editor.PageHeight, editor.VisibleHeight, editor.VScrollTarget);
    if (editor.SimulationMode) across.Visible = down.Visible = false;
    if (editor.StretchMode) down.Visible = false;
}

void HScroll1_Change(Editor& editor) {
    scroll(editor, editor.form.HScroll1, editor.HScrollTarget, editor.ScaleLeft);
}

void VScroll1_Change(Editor& editor) {
    scroll(editor, editor.form.VScroll1, editor.VScrollTarget, editor.ScaleTop);
}

void MovePageDown(Editor& editor) {
    editor.form.VScroll1.Value = editor.form.VScroll1.Max;
    VScroll1_Change(editor);
}

void MovePageUp(Editor& editor) {
    editor.form.VScroll1.Value = 0;
    VScroll1_Change(editor);
}

void showScrolledView(Editor& editor) {
    applyScroll(editor);
    paintDrawing(editor);
}

void placeView(Editor& editor, Single left, Single top) {
    editor.ScaleLeft = heldWithin(left, editor.PageWidth, editor.VisibleWidth);
    editor.ScaleTop = heldWithin(top, editor.PageHeight, editor.VisibleHeight);
    followView(editor.form.HScroll1, editor.HScrollTarget, editor.ScaleLeft);
    followView(editor.form.VScroll1, editor.VScrollTarget, editor.ScaleTop);
    setScale(editor);
}

void ScrollTo(Editor& editor, Single left, Single top) {
    const Single formerLeft = editor.ScaleLeft, formerTop = editor.ScaleTop;
    placeView(editor, left, top);
    if (editor.ScaleLeft != formerLeft || editor.ScaleTop != formerTop) paintDrawing(editor);
}

}  // namespace ladrix
