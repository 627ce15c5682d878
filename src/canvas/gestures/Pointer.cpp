#include "canvas/gestures/Pointer.h"

#include <cmath>

#include "canvas/file/DrawingCommands.h"
#include "canvas/gestures/CopyMove.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/Selection.h"
#include "canvas/labels/LabelCommands.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/labels/Labels.h"
#include "canvas/tools/LineTool.h"
#include "canvas/tools/ToolTable.h"
#include "canvas/tools/Tools.h"
#include "canvas/view/Painting.h"
#include "canvas/view/SnapLines.h"
#include "canvas/view/Zoom.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr Single GripReach = 0.05f;     // inches on the screen
constexpr Single GripOffset = 0.0375f;  // half the grip's side

// below it lines are computed, not counted

bool zoomPending(const Editor& editor) {
    return editor.gesture.ZoomInPending || editor.gesture.ZoomOutPending;
}

bool isLineTool(const Editor& editor) {
    return toolInHand(editor).kind == ToolKind::Line;
}

bool isSquareTool(const Editor& editor) {
    return toolInHand(editor).kind == ToolKind::Square;
}

void chooseCursor(Editor& editor) {
    MousePointer& pointer = editor.form.pointer.Pointer;
    if (editor.gesture.ZoomInPending)
        pointer = MousePointer::ZoomIn;
    else if (editor.gesture.ZoomOutPending)
        pointer = MousePointer::ZoomOut;
    else
        pointer = editor.gesture.ToolCursor ? MousePointer::Cross : MousePointer::Default;
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
    if (editor.gesture.ToolActive || editor.gesture.CopyArmed || editor.gesture.SymbolPointFound)
        return;
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
    if (!editor.gesture.BandArmed || button != LeftButton) return;
    editor.gesture.BandShown = true;
    if (editor.gesture.BandX[1] <= editor.gesture.BandX[0] ||
        editor.gesture.BandY[1] <= editor.gesture.BandY[0])
        return;
    PointerState& pointer = editor.form.pointer;
    Overlay& band = editor.BlackBackground ? pointer.shpSelectLight : pointer.shpSelect;
    band = {true, editor.gesture.BandX[0], editor.gesture.BandY[0],
            editor.gesture.BandX[1] - editor.gesture.BandX[0],
            editor.gesture.BandY[1] - editor.gesture.BandY[0]};
}

bool pointIsWanted(const Editor& editor) {
    return editor.gesture.SavingUserSymbol || editor.gesture.CopyStage > 0 ||
           editor.gesture.CurrentTool != -1 || editor.gesture.CopyArmed;
}

void endBand(Editor& editor) {
    editor.gesture.MouseIsDown = editor.gesture.BandArmed = editor.gesture.BandShown = false;
    editor.form.pointer.shpSelect.Visible = editor.form.pointer.shpSelectLight.Visible = false;
}

void findSnap(Editor& editor, Single x, Single y) {
    const auto lineX = snapLineAt(x, editor.SnapStep, editor.PageWidth);
    const auto lineY = snapLineAt(y, editor.SnapStep, editor.PageHeight);
    editor.gesture.SnapXFound = lineX.has_value();
    editor.gesture.SnapYFound = lineY.has_value();
    if (lineX) editor.SnapX = *lineX;
    if (lineY) editor.SnapY = *lineY;
}

void drawRubber(Editor& editor) {
    if (editor.gesture.LineStartX == NoPoint || !(isLineTool(editor) || isSquareTool(editor)))
        return;
    beginTemporaryGraphics(editor);
    editor.platform.picLX->Line(editor.gesture.LineStartX, editor.gesture.LineStartY, editor.SnapX,
                                editor.SnapY, Magenta,
                                isLineTool(editor) ? LineForm::Plain : LineForm::Box);
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
    if (toolInHand(editor).kind == ToolKind::Text) {
        drawTextGhost(editor, ghostX, ghostY, color);
    } else {
        fillToolBlock(editor, ghostX, ghostY, color);
        DrawDevice(editor.symbols, editor.drawing, editor.platform);
    }
    editor.drawing.DrawingPreview = false;
    editor.platform.picLX->AutoRedraw = true;
}

void placeText(Editor& editor, Single x, Single y) {
    editor.gesture.TextGhostShown = false;
    const bool snapped = editor.gesture.SnapXFound && editor.gesture.SnapYFound;
    placeTextLabel(editor, snapped ? editor.SnapX : x, snapped ? editor.SnapY : y);
    editor.form.lblMessage.Caption = "Continuing with Text Selection - Press ESC to reset.";
}

void placeLine(Editor& editor) {
    editor.gesture.DashedMode = toolInHand(editor).dashed ? 1 : 0;
    const bool thick = editor.gesture.DashedMode == 0 && editor.ThickLineTool;
    InsertSavedLine(editor, editor.CurrentColor, thick ? "DrawWidth=2" : "");
    editor.form.lblMessage.Caption =
        "Continuing with Line Control. Click again for next point. Double-Click for end point. "
        "Press ESC when finished with this device.";
}

void placeSquare(Editor& editor) {
    editor.gesture.DashedMode = toolInHand(editor).dashed ? 1 : 0;
    InsertSavedSquare(editor, editor.CurrentColor, editor.gesture.DashedMode != 0 ? "3" : "");
    editor.gesture.SquareStarted = !editor.gesture.SquareStarted;
    editor.form.lblMessage.Caption =
        editor.gesture.SquareStarted
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
    keepLabelEdit(editor);
    refreshToolName(editor);
    editor.drawing.LabelPending = false;
    WriteTempDrawing(editor);
    editor.ZoomPointX = editor.SnapX;
    editor.ZoomPointY = editor.SnapY;
    if (toolInHand(editor).kind == ToolKind::Text) return placeText(editor, x, y);
    if (isLineTool(editor)) return placeLine(editor);
    if (isSquareTool(editor)) return placeSquare(editor);
    placeSymbol(editor);
}

// The release comes to the menu: no button is held from here on, and a band is gone.
void pressRightButton(Editor& editor) {
    endBand(editor);
    if (editor.gesture.CopyStage == 0) {
        editor.form.menu[Menu::mnuEditCopy].Enabled = true;
        editor.form.menu[Menu::mnuEditMove].Enabled = true;
    }
    wipeTemporaryGraphics(editor);
    if (editor.gesture.CurrentTool == DashedLineTool)
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
    editor.gesture.MouseIsDown = false;
    editor.gesture.SymbolPointFound = true;
    editor.gesture.SymbolPointPending = false;
    if (editor.SymbolPointTaken) editor.SymbolPointTaken(x, y, label);
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
    editor.gesture.BandX[1] = x;
    editor.gesture.BandY[1] = y;
    stretchBand(editor, button);
    if (!pointIsWanted(editor)) return;

    findSnap(editor, x, y);
    const bool found = editor.gesture.SnapXFound && editor.gesture.SnapYFound;
    if (editor.gesture.CurrentTool != TextTool && found)
        showPosition(editor, editor.SnapX, editor.SnapY);
    drawRubber(editor);
    if (found) showCrossHair(editor);
    refreshToolName(editor);
    if (isLineTool(editor) || isSquareTool(editor) || !editor.gesture.ToolCursor) return;
    drawGhost(editor, x, y);
}

void picLX_PointerRests(Editor& editor, Short button, Single x, Single y) {
    editor.PreviousX = editor.PreviousY = NoPoint;
    picLX_MouseMove(editor, button, 0, x, y);
}

void picLX_MouseDown(Editor& editor, Short button, Short, Single x, Single y) {
    if (editor.gesture.TextAlignPending) return alignSelectedLabels(editor, x, y);
    editor.form.pointer.picGrip.Visible = false;
    if (zoomPending(editor)) return zoomAtPress(editor, x, y);
    editor.gesture.MouseIsDown = true;
    if (editor.SimulationMode) return pressSimulation(editor, button);
    if (button == RightButton) return pressRightButton(editor);
    if (editor.gesture.SavingUserSymbol && editor.gesture.SymbolPointPending)
        return takeSymbolPoint(editor, editor.SnapX, editor.SnapY, -1);
    if (editor.gesture.CopyArmed && editor.gesture.CopyStage == 2) return takeCopyEnd(editor);
    if (editor.gesture.CopyArmed && editor.gesture.CopyStage == 1) {
        takeCopyStart(editor);
        if (!editor.gesture.MoveMode) return;
    }
    if (!editor.gesture.ToolBlocksBand && button == LeftButton) {
        editor.gesture.BandX[0] = x;
        editor.gesture.BandY[0] = y;
        editor.gesture.BandArmed = true;
    }
    if (editor.gesture.CurrentTool != -1) return place(editor, x, y);
    if (!editor.gesture.CopyArmed) pickLines(editor, x, y);
}

void picLX_MouseUp(Editor& editor, Short button, Short, Single, Single) {
    const bool band = editor.gesture.BandShown;
    endBand(editor);
    if (zoomPending(editor)) return;
    if (editor.SimulationMode) return releaseSimulation(editor, button);
    if (band) pickInBand(editor);
    if (editor.gesture.CopyArmed && editor.gesture.CopyStage == 1)
        editor.form.lblMessage.Caption = "Select copy start point.";
}

void picLX_DblClick(Editor& editor) {
    if (zoomPending(editor)) return;
    if (editor.SimulationMode) return pressSimulation(editor, LeftButton);
    const Short tool = editor.gesture.DashedMode != 0 ? DashedLineTool : LineTool;
    ResetEditor(editor);
    cmdSym_Click(editor, tool);
}

}  // namespace ladrix
