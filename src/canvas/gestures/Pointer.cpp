#include "canvas/gestures/Pointer.h"

#include <cmath>

#include "canvas/file/DrawingCommands.h"
#include "canvas/gestures/CopyMove.h"
#include "canvas/gestures/Selection.h"
#include "canvas/labels/LabelCommands.h"
#include "canvas/labels/Labels.h"
#include "canvas/tools/LineTool.h"
#include "canvas/tools/Tools.h"
#include "canvas/view/Redraw.h"
#include "canvas/view/Zoom.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr Single GripReach = 0.05f;           // inches on the screen
constexpr Single GripOffset = 0.0375f;        // half the grip's side
constexpr Single FinestCountedStep = 0.001f;  // below it lines are computed, not counted

bool zoomPending(const Editor& editor) {
    return editor.ZoomInPending || editor.ZoomOutPending;
}

bool isLineTool(const Editor& editor) {
    return editor.ToolName == "Line" || editor.ToolName == "Dashed Line";
}

bool isSquareTool(const Editor& editor) {
    return editor.ToolName == "Square" || editor.ToolName == "Dashed Square";
}

void chooseCursor(Editor& editor) {
    MousePointer& pointer = editor.form.pointer.Pointer;
    if (editor.ZoomInPending)
        pointer = MousePointer::ZoomIn;
    else if (editor.ZoomOutPending)
        pointer = MousePointer::ZoomOut;
    else
        pointer = editor.ToolCursor ? MousePointer::Cross : MousePointer::Default;
}

void outlinePictureUnder(Editor& editor, Single x, Single y) {
    if (editor.ZoomFactor != 1 || editor.drawing.PictureCount == 0) return;
    beginTemporaryGraphics(editor);
    for (const PictureRow& row : editor.drawing.PictureTable) {
        const bool inside =
            x >= row.Left && x <= row.Left + row.Width && y >= row.Top && y <= row.Top + row.Height;
        if (inside && !zoomPending(editor))
            editor.platform.picLX->Line(row.Left, row.Top, row.Left + row.Width,
                                        row.Top + row.Height, Cyan, LineForm::Box);
    }
    editor.platform.picLX->AutoRedraw = true;
}

void showGrip(Editor& editor, Single x, Single y) {
    Overlay& grip = editor.form.pointer.picGrip;
    grip.Visible = false;
    if (editor.ToolActive || editor.CopyArmed || editor.SymbolPointFound) return;
    const Single reach = GripReach / editor.ZoomFactor;
    const Single offset = GripOffset / editor.ZoomFactor;
    const DeviceTable& devices = editor.drawing.devices;
    for (std::size_t i = 0; i < static_cast<std::size_t>(devices.DeviceCount); ++i) {
        if (std::fabs(devices.DeviceX[i] - x) > reach || std::fabs(devices.DeviceY[i] - y) > reach)
            continue;
        grip = {true, devices.DeviceX[i] - offset, devices.DeviceY[i] - offset, 2 * offset,
                2 * offset};
    }
}

void showPosition(Editor& editor, Single x, Single y) {
    const char mark = editor.platform.locale.decimalMark;
    editor.form.lblCoords.Caption =
        "X = " + coordinateText(x, mark) + ", Y = " + coordinateText(y, mark);
}

void stretchBand(Editor& editor, Short button) {
    if (!editor.BandArmed || button != LeftButton) return;
    editor.BandShown = true;
    if (editor.BandX[1] <= editor.BandX[0] || editor.BandY[1] <= editor.BandY[0]) return;
    PointerState& pointer = editor.form.pointer;
    Overlay& band = editor.BlackBackground ? pointer.shpSelectLight : pointer.shpSelect;
    band = {true, editor.BandX[0], editor.BandY[0], editor.BandX[1] - editor.BandX[0],
            editor.BandY[1] - editor.BandY[0]};
}

bool pointIsWanted(const Editor& editor) {
    return editor.SavingUserSymbol || editor.CopyStage > 0 || editor.CurrentTool != -1 ||
           editor.CopyArmed;
}

void findSnap(Editor& editor, Single x, Single y) {
    const auto lineX = snapLineAt(x, editor.SnapStep, editor.PageWidth);
    const auto lineY = snapLineAt(y, editor.SnapStep, editor.PageHeight);
    editor.SnapXFound = lineX.has_value();
    editor.SnapYFound = lineY.has_value();
    if (lineX) editor.SnapX = *lineX;
    if (lineY) editor.SnapY = *lineY;
}

void drawRubber(Editor& editor) {
    if (editor.LineStartX == NoPoint || !(isLineTool(editor) || isSquareTool(editor))) return;
    beginTemporaryGraphics(editor);
    editor.platform.picLX->Line(editor.LineStartX, editor.LineStartY, editor.SnapX, editor.SnapY,
                                Magenta, isLineTool(editor) ? LineForm::Plain : LineForm::Box);
    editor.platform.picLX->AutoRedraw = true;
}

void showCrossHair(Editor& editor) {
    editor.form.pointer.LineV = {true, editor.SnapX, 0, 0, editor.PageHeight};
    editor.form.pointer.LineH = {true, 0, editor.SnapY, editor.PageWidth, 0};
    drawRubber(editor);
}

void drawGhost(Editor& editor, Single x, Single y) {
    editor.drawing.DrawingPreview = true;
    beginTemporaryGraphics(editor);
    const Single near = snapTolerance(editor.SnapStep) / 2;
    const bool onPoint = std::fabs(x - editor.SnapX) <= near && std::fabs(y - editor.SnapY) <= near;
    const Single ghostX = onPoint ? editor.SnapX : x;
    const Single ghostY = onPoint ? editor.SnapY : y;
    const Long color = onPoint ? Blue : Red;
    if (editor.ToolName == "Text") {
        drawTextGhost(editor, ghostX, ghostY, color);
    } else {
        fillToolBlock(editor, ghostX, ghostY, color);
        DrawDevice(editor.symbols, editor.drawing, editor.platform);
    }
    editor.drawing.DrawingPreview = false;
    editor.platform.picLX->AutoRedraw = true;
}

void placeText(Editor& editor, Single x, Single y) {
    editor.TextGhostShown = false;
    const bool snapped = editor.SnapXFound && editor.SnapYFound;
    placeTextLabel(editor, snapped ? editor.SnapX : x, snapped ? editor.SnapY : y);
    editor.form.lblMessage.Caption = "Continuing with Text Selection - Press ESC to reset.";
}

void placeLine(Editor& editor) {
    editor.DashedMode = editor.ToolName == "Dashed Line" ? 1 : 0;
    const bool thick = editor.DashedMode == 0 && editor.ThickLineTool;
    InsertSavedLine(editor, editor.CurrentColor, thick ? "DrawWidth=2" : "");
    editor.form.lblMessage.Caption =
        "Continuing with Line Control. Click again for next point. Double-Click for end point. "
        "Press ESC when finished with this device.";
}

void placeSquare(Editor& editor) {
    editor.DashedMode = editor.ToolName == "Dashed Square" ? 1 : 0;
    InsertSavedSquare(editor, editor.CurrentColor, editor.DashedMode != 0 ? "3" : "");
    editor.SquareStarted = !editor.SquareStarted;
    editor.form.lblMessage.Caption =
        editor.SquareStarted
            ? "Continuing with Square. Move mouse and click end point. Press ESC when finished "
              "with "
              "this device."
            : "End point for Square found. Move mouse and click to begin a new start point. Press "
              "ESC when finished with this device.";
}

void placeSymbol(Editor& editor) {
    fillToolBlock(editor, editor.SnapX, editor.SnapY, editor.CurrentColor);
    editor.platform.picLX->AutoRedraw = true;
    DrawDevice(editor.symbols, editor.drawing, editor.platform);
}

void place(Editor& editor, Single x, Single y) {
    const char mark = editor.platform.locale.decimalMark;
    editor.form.lblCoords.Caption =
        coordinateText(editor.SnapX, mark) + ", " + coordinateText(editor.SnapY, mark);
    finishLabelEdit(editor);
    refreshToolName(editor);
    editor.drawing.LabelPending = false;
    WriteTempDrawing(editor);
    editor.ZoomPointX = editor.SnapX;
    editor.ZoomPointY = editor.SnapY;
    if (editor.ToolName == "Text") return placeText(editor, x, y);
    if (isLineTool(editor)) return placeLine(editor);
    if (isSquareTool(editor)) return placeSquare(editor);
    placeSymbol(editor);
}

void pressRightButton(Editor& editor) {
    if (editor.CopyStage == 0) {
        editor.form.menu[Menu::mnuEditCopy].Enabled = true;
        editor.form.menu[Menu::mnuEditMove].Enabled = true;
    }
    beginTemporaryGraphics(editor);
    editor.platform.picLX->AutoRedraw = true;
    if (editor.CurrentTool == DashedLineTool)
        cmdReset_Click(editor);
    else
        editor.platform.dialogs->popUp("mnuEditDrawing");
}

// The right button works no device of the simulated circuit.
void pressSimulation(Editor& editor, Short button) {
    if (button != RightButton && editor.simulation.press) editor.simulation.press();
}

void releaseSimulation(Editor& editor, Short button) {
    if (button != RightButton && editor.simulation.release) editor.simulation.release();
}

}  // namespace

// The release after this press may be another window's.
void takeSymbolPoint(Editor& editor, Single x, Single y, Short label) {
    editor.MouseIsDown = false;
    editor.SymbolPointFound = true;
    editor.SymbolPointPending = false;
    if (editor.SymbolPointTaken) editor.SymbolPointTaken(x, y, label);
}

Single snapTolerance(Single snapStep) {
    return snapStep >= 0.05f ? 0.2f * snapStep : 0.5f * snapStep;
}

std::optional<Single> snapLineAt(Single position, Single snapStep, Single limit) {
    const Single reach = snapTolerance(snapStep);
    std::optional<Single> found;
    if (!(snapStep > 0)) return found;
    if (snapStep < FinestCountedStep) {
        const Single line = std::floor((position + reach) / snapStep) * snapStep;
        if (line >= 0 && line <= limit && line - reach <= position) found = line;
        return found;
    }
    for (Single line = 0; line <= limit; line += snapStep)
        if (line - reach <= position && position <= line + reach) found = line;
    return found;
}

void beginTemporaryGraphics(Editor& editor) {
    editor.platform.picLX->AutoRedraw = false;
    editor.platform.picLX->Cls();
}

void picLX_MouseMove(Editor& editor, Short button, Short, Single x, Single y) {
    PointerState& pointer = editor.form.pointer;
    chooseCursor(editor);
    if (!zoomPending(editor)) editor.form.picMoreSym.Visible = false;
    if (editor.SimulationMode) {
        if (editor.simulation.move) editor.simulation.move(x, y);
        return;
    }
    if (x == editor.PreviousX && y == editor.PreviousY) return;
    editor.PreviousX = x;
    editor.PreviousY = y;
    outlinePictureUnder(editor, x, y);
    showGrip(editor, x, y);
    pointer.LineV.Visible = pointer.LineH.Visible = false;
    showPosition(editor, x, y);
    editor.BandX[1] = x;
    editor.BandY[1] = y;
    stretchBand(editor, button);
    if (!pointIsWanted(editor)) return;

    findSnap(editor, x, y);
    const bool found = editor.SnapXFound && editor.SnapYFound;
    if (editor.CurrentTool != TextTool && found) showPosition(editor, editor.SnapX, editor.SnapY);
    drawRubber(editor);
    if (found) showCrossHair(editor);
    refreshToolName(editor);
    if (isLineTool(editor) || isSquareTool(editor) || !editor.ToolCursor) return;
    drawGhost(editor, x, y);
}

void picLX_MouseDown(Editor& editor, Short button, Short, Single x, Single y) {
    if (editor.TextAlignPending) return alignSelectedLabels(editor, x, y);
    editor.form.pointer.picGrip.Visible = false;
    if (zoomPending(editor)) return zoomAtPress(editor, x, y);
    editor.MouseIsDown = true;
    if (editor.SimulationMode) return pressSimulation(editor, button);
    if (button == RightButton) return pressRightButton(editor);
    if (editor.SavingUserSymbol && editor.SymbolPointPending)
        return takeSymbolPoint(editor, editor.SnapX, editor.SnapY, -1);
    if (editor.CopyArmed && editor.CopyStage == 2) return takeCopyEnd(editor);
    if (editor.CopyArmed && editor.CopyStage == 1) {
        takeCopyStart(editor);
        if (!editor.MoveMode) return;
    }
    if (!editor.ToolBlocksBand && button == LeftButton) {
        editor.BandX[0] = x;
        editor.BandY[0] = y;
        editor.BandArmed = true;
    }
    if (editor.CurrentTool != -1) return place(editor, x, y);
    if (!editor.CopyArmed) pickLines(editor, x, y);
}

void picLX_MouseUp(Editor& editor, Short button, Short, Single, Single) {
    editor.MouseIsDown = false;
    editor.BandArmed = false;
    if (zoomPending(editor)) return;
    if (editor.SimulationMode) return releaseSimulation(editor, button);
    if (editor.BandShown) {
        editor.BandShown = false;
        editor.form.pointer.shpSelect.Visible = false;
        editor.form.pointer.shpSelectLight.Visible = false;
        pickInBand(editor);
    }
    if (editor.CopyArmed && editor.CopyStage == 1)
        editor.form.lblMessage.Caption = "Select copy start point.";
}

void picLX_DblClick(Editor& editor) {
    if (zoomPending(editor)) return;
    if (editor.SimulationMode) return pressSimulation(editor, LeftButton);
    const Short tool = editor.DashedMode != 0 ? DashedLineTool : LineTool;
    ResetEditor(editor);
    cmdSym_Click(editor, tool);
}

}  // namespace ladrix
