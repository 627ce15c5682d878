#include "canvas/view/Redraw.h"

#include <algorithm>

#include "canvas/gestures/CopyMove.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/gestures/Selection.h"
#include "canvas/labels/Labels.h"
#include "canvas/tools/Tools.h"
#include "canvas/view/View.h"
#include "canvas/view/Zoom.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr std::string_view FittingSample =
    "AaBb CcDd EeFf GgHh IiJj KkLl MmNn OoPp QqRr SsTt UuVv WwXx YyZz 1234567890";

Single fittingStep(Single zoom) {
    if (zoom >= 6) return 0.6f;
    if (zoom >= 5) return 0.5f;
    if (zoom >= 4) return 0.4f;
    if (zoom >= 3) return 0.3f;
    if (zoom >= 2) return 0.2f;
    return 0.1f;
}

Single searchFontSize(const Platform& platform, const FontSpec& font, Single zoom) {
    const Single reference = platform.fonts->textWidth(font, FittingSample);
    const Single step = fittingStep(zoom);
    FontSpec fitted = font;
    const auto width = [&] { return platform.fonts->textWidth(fitted, FittingSample) / zoom; };
    if (width() < reference) {
        while (width() < reference && fitted.size < font.size * zoom * 2)
            fitted.size += step;
    } else {
        while (width() > reference && fitted.size > step)
            fitted.size -= step;
    }
    return fitted.size;
}

void repairLabelFonts(Drawing& drawing) {
    LabelTable& labels = drawing.labels;
    if (labels.LabelCount == 0) return;
    if (labels.LabelFontName[0].empty()) labels.LabelFontName[0] = drawing.DefaultFontName;
    if (labels.LabelFontSize[0] == 0) labels.LabelFontSize[0] = drawing.DefaultFontSize;
    for (std::size_t i = 0; i < static_cast<std::size_t>(labels.LabelCount); ++i) {
        if (!labels.LabelFontName[i].empty()) continue;
        labels.LabelFontName[i] = "Arial";
        labels.LabelFontSize[i] = 8;
    }
}

void paintDevices(Editor& editor) {
    Drawing& drawing = editor.drawing;
    const Extent view = editor.platform.picLX->visible();
    for (Short i = 0; i < drawing.devices.DeviceCount; ++i) {
        if (!deviceExtent(drawing.devices, i).meets(view)) continue;
        const auto row = static_cast<std::size_t>(i);
        const bool selected = drawing.devices.DeviceSelected[row] != 0;
        drawRow(editor.symbols, drawing, editor.platform, *editor.platform.picLX, drawing.devices,
                i, selected ? editor.SelectionColor : drawing.devices.DeviceColor[row]);
    }
}

void paintPictures(Editor& editor) {
    const Drawing& drawing = editor.drawing;
    for (std::size_t i = 0; i < drawing.PictureTable.size() && i < editor.img.size(); ++i) {
        const PictureRow& row = drawing.PictureTable[i];
        if (editor.img[i])
            editor.platform.picLX->PaintPicture(*editor.img[i], row.Left, row.Top, row.Width,
                                                row.Height);
    }
}

void endBand(Editor& editor) {
    editor.BandArmed = editor.BandShown = false;
    editor.form.pointer.shpSelect.Visible = false;
    editor.form.pointer.shpSelectLight.Visible = false;
}

void resetMenus(Editor& editor) {
    MenuStates& menu = editor.form.menu;
    menu[Menu::mnuEditText].Enabled = false;
    menu[Menu::mnuEditTextAlignLeft].Enabled = false;
    menu[Menu::mnuEditTextAlignRight].Enabled = false;
    menu[Menu::mnuEditTextAlignTop].Enabled = false;
    menu[Menu::mnuEditCopy].Enabled = false;
    menu[Menu::mnuEditMove].Enabled = false;
    menu[Menu::mnuEditDelete].Enabled = false;
    menu[Menu::mnuEditSelectAll].Enabled = true;
    menu[Menu::mnuEditPaste].Enabled = editor.CopyStage > 0;
}

void endTool(Editor& editor) {
    releaseButton(editor, editor.CurrentTool);
    beginTemporaryGraphics(editor);
    editor.platform.picLX->AutoRedraw = true;
    editor.LineStartX = editor.LineEndX = NoPoint;
    editor.CurrentTool = -1;
    editor.ToolBlocksBand = false;
    editor.form.picColors.Visible = false;
}

}  // namespace

Single fittedFontSize(Editor& editor, const FontSpec& font) {
    const Single zoom = editor.ZoomFactor;
    if (zoom == 1) return font.size;
    const FittedFonts::Key key{font.name, font.size, font.bold, font.italic, zoom};
    if (const auto found = editor.fittedFonts.sizes.find(key);
        found != editor.fittedFonts.sizes.end())
        return found->second;
    return editor.fittedFonts.sizes[key] = searchFontSize(editor.platform, font, zoom);
}

namespace {

LabelControl labelControl(Editor& editor, std::size_t i) {
    const LabelTable& labels = editor.drawing.labels;
    FontSpec font{labels.LabelFontName[i], labels.LabelFontSize[i],
                  editor.symbols.ThickDevices || labels.LabelBold[i], labels.LabelItalic[i]};
    font.size = fittedFontSize(editor, font);
    const bool edited =
        editor.form.picText.Visible && editor.LastSelectedLabel == static_cast<Short>(i);
    const Long color =
        edited || labels.LabelSelected[i] != 0 ? editor.SelectionColor : labels.LabelColor[i];
    return {labels.LabelText[i], labels.LabelX[i], labels.LabelY[i], color, std::move(font), true};
}

}  // namespace

void placeLabels(Editor& editor) {
    const auto count = static_cast<std::size_t>(editor.drawing.labels.LabelCount);
    editor.form.lbl.resize(count);
    for (std::size_t i = 0; i < count; ++i)
        editor.form.lbl[i] = labelControl(editor, i);
    ++editor.form.LabelVersion;
}

void placeLastLabel(Editor& editor) {
    const auto count = static_cast<std::size_t>(editor.drawing.labels.LabelCount);
    if (count == 0 || editor.form.lbl.size() != count - 1) return placeLabels(editor);
    editor.form.lbl.push_back(labelControl(editor, count - 1));
    ++editor.form.LabelVersion;
}

void paintDrawing(Editor& editor) {
    Canvas& canvas = *editor.platform.picLX;
    editor.Redrawing = true;
    editor.form.pointer.LineV.Visible = editor.form.pointer.LineH.Visible = false;
    repairLabelFonts(editor.drawing);
    const bool formerly = editor.drawing.NoRecord;
    editor.drawing.NoRecord = true;
    canvas.AutoRedraw = true;
    if (editor.GridOn && !editor.SimulationMode)
        DrawGrid(editor);
    else
        canvas.Cls();
    paintDevices(editor);
    paintPictures(editor);
    placeLabels(editor);
    editor.drawing.NoRecord = formerly;
    editor.Redrawing = false;
}

void RedrawDrawing(Editor& editor) {
    paintDrawing(editor);
    editor.drawing.NoRecord = false;
    RebuildDeviceString(editor.drawing, editor.platform);
}

void ResetEditor(Editor& editor) {
    editor.MouseIsDown = false;
    endBand(editor);
    editor.SnapXFound = editor.SnapYFound = false;
    endZoomMode(editor);
    editor.symbols.block.CurDevice.clear();
    editor.ToolName.clear();
    editor.SavingUserSymbol = editor.SymbolPointPending = editor.SymbolPointFound = false;
    if (editor.SnapshotPending) {
        editor.SnapshotPending = false;
        if (editor.drawing.TakeUndoSnapshot) editor.drawing.TakeUndoSnapshot();
    }
    editor.TextAlignPending = editor.SelectionColorPending = false;
    editor.textAlignment = TextAlignment::None;
    editor.draggedLabels = {};
    editor.form.picMoreSym.Visible = false;
    editor.form.cmbScale.Enabled = editor.form.cmdScaleOK.Enabled = true;
    finishLabelEdit(editor);
    showPanel(editor, Panel::None);
    editor.SquareStarted = false;
    editor.DashedMode = 0;
    editor.ToolCursor = editor.ToolActive = false;
    editor.form.pointer.Pointer = MousePointer::Default;
    editor.drawing.DrawingPreview = false;
    editor.drawing.LabelPending = editor.drawing.DeviceRecorded = false;
    resetMenus(editor);
    endCopy(editor);
    editor.TextBuffer.clear();
    editor.TextGhostShown = false;
    ClearSelection(editor);
    endTool(editor);
    RedrawDrawing(editor);
    editor.form.FocusRequest = Focus::Canvas;
    editor.form.lblMessage.Caption = readyMessage(editor);
    colorReset(editor, false);
}

void cmdReset_Click(Editor& editor) {
    ResetEditor(editor);
}

void mnuOptionReset_Click(Editor& editor) {
    cmdReset_Click(editor);
}

void colorReset(Editor& editor, bool something) {
    editor.form.cmdReset.BackColor = something ? Cyan : ButtonFace;
}

std::string readyMessage(const Editor& editor) {
    if (editor.SimulationMode)
        return "Simulation: press and hold the buttons on the drawing. User Mode, Normal ends "
               "it. " +
               zoomScaleText(editor);
    return "Drawing Reset and Ready. Click on a symbol for placement. " + zoomScaleText(editor);
}

std::string zoomScaleText(const Editor& editor) {
    return "Current Zoom Scale = " +
           singleText(editor.ZoomFactor * 100, editor.platform.locale.decimalMark) + "%";
}

}  // namespace ladrix
