#include "canvas/View.h"

#include <algorithm>

#include "canvas/Redraw.h"
#include "document/PageLayout.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr Single FinestGrid = 0.02f;  // inches on the screen; a finer grid would be a grey page

void measureFrame(Editor& editor) {
    if (editor.form.FrameWidth <= 0 || editor.form.FrameHeight <= 0) return;
    editor.VisibleWidth = editor.form.FrameWidth / TwipsPerInch / editor.ZoomFactor;
    editor.VisibleHeight = editor.form.FrameHeight / TwipsPerInch / editor.ZoomFactor;
}

void arrangeBar(ScrollBar& bar, Single page, Single visible) {
    bar.Visible = page > visible;
    bar.Max = bar.Visible ? static_cast<int>((page - visible) * 100 + 0.5f) : 0;
    bar.LargeChange = std::max(1, static_cast<int>(visible * 100));
    bar.SmallChange = std::max(1, static_cast<int>(visible * 10));
    bar.Value = std::clamp(bar.Value, 0, bar.Max);
}

void applyScroll(Editor& editor) {
    editor.ScaleLeft = static_cast<Single>(editor.form.HScroll1.Value) / 100;
    editor.ScaleTop = static_cast<Single>(editor.form.VScroll1.Value) / 100;
    editor.platform.picLX->SetScale(editor.ScaleLeft, editor.ScaleTop, editor.ZoomFactor);
}

void takePageSize(Editor& editor) {
    const auto size = pageSize(editor.drawing.PageLayoutKey);
    if (!size) return;
    editor.PageWidth = editor.CanvasScaleWidth = size->PageWidth;
    editor.PageHeight = editor.CanvasScaleHeight = size->PageHeight;
}

void returnToFullSize(Editor& editor) {
    editor.ZoomFactor = 1;
    editor.ZoomStepCount = 0;
    editor.form.HScroll1.Value = editor.form.VScroll1.Value = 0;
    ArrangeScrollBars(editor);
    applyScroll(editor);
}

void scroll(Editor& editor) {
    editor.symbols.SkipUserSymbolOnce = !editor.ZoomInPending && !editor.ZoomOutPending;
    applyScroll(editor);
    paintDrawing(editor);
}

}  // namespace

void Form_Resize(Editor& editor, Single frameWidth, Single frameHeight) {
    editor.form.FrameWidth = frameWidth;
    editor.form.FrameHeight = frameHeight;
    measureFrame(editor);
    ArrangeScrollBars(editor);
    applyScroll(editor);
    paintDrawing(editor);
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

void ResetZoom(Editor& editor) {
    returnToFullSize(editor);
    paintDrawing(editor);
}

void ArrangeScrollBars(Editor& editor) {
    measureFrame(editor);
    arrangeBar(editor.form.HScroll1, editor.PageWidth, editor.VisibleWidth);
    arrangeBar(editor.form.VScroll1, editor.PageHeight, editor.VisibleHeight);
}

void HScroll1_Change(Editor& editor) {
    scroll(editor);
}

void VScroll1_Change(Editor& editor) {
    scroll(editor);
}

void DrawGrid(Editor& editor) {
    Canvas& canvas = *editor.platform.picLX;
    canvas.Cls();
    const Single pitch = editor.GridFollowsSnap ? editor.SnapStep * 2 : 0.25f;
    if (!(pitch * editor.ZoomFactor >= FinestGrid)) return;
    const Long color = editor.BlackBackground ? RGB(32, 32, 32) : RGB(239, 239, 239);
    const Short width = canvas.DrawWidth;
    canvas.DrawWidth = 1;
    for (Single x = pitch; x < editor.PageWidth; x += pitch)
        canvas.Line(x, 0, x, editor.PageHeight, color, LineForm::Plain);
    for (Single y = pitch; y < editor.PageHeight; y += pitch)
        canvas.Line(0, y, editor.PageWidth, y, color, LineForm::Plain);
    canvas.DrawWidth = width;
}

void showSnapStep(Editor& editor) {
    editor.form.cmdSnap.Caption =
        "Snap: " + singleText(editor.SnapStep, editor.platform.locale.decimalMark);
}

}  // namespace ladrix
