#include "canvas/view/Painting.h"

#include <algorithm>
#include <cmath>

#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr std::string_view FittingSample =
    "AaBb CcDd EeFf GgHh IiJj KkLl MmNn OoPp QqRr SsTt UuVv WwXx YyZz 1234567890";

constexpr Single FinestGrid = 0.02f;
constexpr int LinesPerBright = 4;
constexpr Single OwnPitch = 0.25f;

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

bool isEdited(const Editor& editor, std::size_t i) {
    return editor.labelEdit.index == static_cast<Short>(i);
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

// The grid lines from the first to the last that lie inside the page, its edges left out, and in
// the view.
struct LineRange {
    int first, last;
};

LineRange linesInView(Single pitch, Single page, Single viewFrom, Single viewTo) {
    const Single first = std::ceil(viewFrom / pitch);
    const Single last =
        std::max(0.0f, std::min(std::ceil(page / pitch) - 1, std::floor(viewTo / pitch)));
    return {first > 1 ? static_cast<int>(std::min(first, last + 1)) : 1, static_cast<int>(last)};
}

Long gridColor(const Editor& editor, int line) {
    const bool bright = line % LinesPerBright == 0;
    if (editor.BlackBackground) return bright ? RGB(64, 64, 64) : RGB(32, 32, 32);
    return bright && !editor.GridFollowsSnap ? editor.GridColor : RGB(239, 239, 239);
}

void paintLayer(Editor& editor) {
    if (editor.GridOn && !editor.SimulationMode)
        DrawGrid(editor);
    else
        editor.platform.picLX->Cls();
    paintDevices(editor);
    paintPictures(editor);
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
    LabelControl control{labels.LabelText[i],   labels.LabelX[i], labels.LabelY[i],
                         shownColor(editor, i), std::move(font),  true};
    if (!isEdited(editor, i)) return control;
    control.Caption = editor.labelEdit.text;
    control.Left = editor.labelEdit.left;
    return control;
}

}  // namespace

Long shownColor(const Editor& editor, std::size_t i) {
    const LabelTable& labels = editor.drawing.labels;
    return isEdited(editor, i) || labels.LabelSelected[i] != 0 ? editor.SelectionColor
                                                               : labels.LabelColor[i];
}

void placeLabel(Editor& editor, std::size_t i) {
    if (i >= editor.form.lbl.size()) return placeLabels(editor);
    editor.form.lbl[i] = labelControl(editor, i);
    ++editor.form.LabelVersion;
}

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

void beginTemporaryGraphics(Editor& editor) {
    editor.platform.picLX->AutoRedraw = false;
    editor.platform.picLX->Cls();
}

void wipeTemporaryGraphics(Editor& editor) {
    beginTemporaryGraphics(editor);
    editor.platform.picLX->AutoRedraw = true;
}

void DrawGrid(Editor& editor) {
    Canvas& canvas = *editor.platform.picLX;
    canvas.Cls();
    const Single pitch = editor.GridFollowsSnap ? editor.SnapStep * 2 : OwnPitch;
    if (!(pitch * editor.ZoomFactor >= FinestGrid)) return;
    const Extent view = canvas.visible();
    const Short width = canvas.DrawWidth;
    canvas.DrawWidth = 1;
    const LineRange across = linesInView(pitch, editor.PageWidth, view.left, view.right);
    for (int i = across.first; i <= across.last; ++i) {
        const Single x = static_cast<Single>(i) * pitch;
        canvas.Line(x, 0, x, editor.PageHeight, gridColor(editor, i), LineForm::Plain);
    }
    const LineRange down = linesInView(pitch, editor.PageHeight, view.top, view.bottom);
    for (int i = down.first; i <= down.last; ++i) {
        const Single y = static_cast<Single>(i) * pitch;
        canvas.Line(0, y, editor.PageWidth, y, gridColor(editor, i), LineForm::Plain);
    }
    canvas.DrawWidth = width;
}

void paintPlace(Editor& editor, const Extent& place) {
    Canvas& canvas = *editor.platform.picLX;
    canvas.AutoRedraw = true;
    canvas.repaint(place, [&] { paintLayer(editor); });
}

void paintDrawing(Editor& editor) {
    editor.Redrawing = true;
    editor.form.pointer.LineV.Visible = editor.form.pointer.LineH.Visible = false;
    repairLabelFonts(editor.drawing);
    const bool formerly = editor.drawing.NoRecord;
    editor.drawing.NoRecord = true;
    editor.platform.picLX->AutoRedraw = true;
    paintLayer(editor);
    placeLabels(editor);
    editor.drawing.NoRecord = formerly;
    editor.Redrawing = false;
}

void RedrawDrawing(Editor& editor) {
    paintDrawing(editor);
    editor.drawing.NoRecord = false;
    RebuildDeviceString(editor.drawing, editor.platform);
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
