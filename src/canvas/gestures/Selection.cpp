#include "canvas/gestures/Selection.h"

#include <algorithm>
#include <string>
#include <vector>

#include "canvas/gestures/Gesture.h"
#include "canvas/history/History.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/state/Panels.h"
#include "canvas/tools/ToolTable.h"
#include "canvas/view/Painting.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr Single PickReach = 0.0625f;  // inches on the screen

bool between(Single value, Single a, Single b) {
    return value >= std::min(a, b) && value <= std::max(a, b);
}

void toggle(Short& mark) {
    mark = mark != 0 ? Short{0} : Short{1};
}

// Once for all items of a pick: those that lost their marks by painting their places anew, in one
// piece, those that got one over themselves.
void paintToggled(Editor& editor, const std::vector<std::size_t>& toggled) {
    const DeviceTable& devices = editor.drawing.devices;
    const auto isMarked = [&](std::size_t i) { return devices.DeviceSelected[i] != 0; };
    Extent unmarked;
    for (const std::size_t i : toggled)
        if (!isMarked(i)) unmarked.add(deviceExtent(devices, static_cast<Short>(i)));
    if (!unmarked.empty()) paintPlace(editor, unmarked);
    editor.platform.picLX->AutoRedraw = true;
    for (const std::size_t i : toggled)
        if (isMarked(i))
            drawRow(editor.symbols, editor.drawing, editor.platform, *editor.platform.picLX,
                    devices, static_cast<Short>(i), editor.SelectionColor);
}

// The panel of the tool strip, by the devices selected. `picked` is preferred for its figures.
void showFiguresOfSelection(Editor& editor, std::size_t picked) {
    const DeviceTable& devices = editor.drawing.devices;
    const auto& marks = devices.DeviceSelected;
    const auto isMarked = [](Short mark) { return mark != 0; };
    if (marks[picked] == 0)
        picked = static_cast<std::size_t>(std::find_if(marks.begin(), marks.end(), isMarked) -
                                          marks.begin());
    if (picked == marks.size()) return showPanel(editor, Panel::None);
    const std::string& name = devices.DeviceName[picked];
    for (std::size_t i = 0; i < marks.size(); ++i)
        if (marks[i] != 0 && devices.DeviceName[i] != name) return showPanel(editor, Panel::None);
    const bool arc = name == "InsertArc";
    if (!arc && !isCircleName(name)) return showPanel(editor, Panel::None);

    const char mark = editor.platform.locale.decimalMark;
    editor.CircleRadius = devices.DeviceRadius[picked];
    editor.form.txtRadius.Text = singleText(editor.CircleRadius, mark);
    if (arc) {
        editor.ArcStartAngle = devices.DeviceStartAngle[picked];
        editor.ArcEndAngle = devices.DeviceEndAngle[picked];
        editor.form.txtCircleStart.Text = degreesText(editor.ArcStartAngle, mark);
        editor.form.txtCircleEnd.Text = degreesText(editor.ArcEndAngle, mark);
    }
    layOutRadiusPanel(editor, arc ? RadiusPanel::WithAngles : RadiusPanel::RadiusAlone);
    showPanel(editor, Panel::Radius);
}

// Whether there was anything to show.
bool showToggled(Editor& editor, const std::vector<std::size_t>& toggled) {
    if (toggled.empty()) return false;
    paintToggled(editor, toggled);
    showFiguresOfSelection(editor, toggled.back());
    return true;
}

template <class IsHit>
bool pickDevices(Editor& editor, const IsHit& isHit) {
    DeviceTable& devices = editor.drawing.devices;
    std::vector<std::size_t> toggled;
    for (std::size_t i = 0; i < static_cast<std::size_t>(devices.DeviceCount); ++i) {
        if (!isHit(devices.DeviceX[i], devices.DeviceY[i])) continue;
        toggle(devices.DeviceSelected[i]);
        toggled.push_back(i);
    }
    return showToggled(editor, toggled);
}

bool pickDevicesInBand(Editor& editor) {
    const Gesture& gesture = editor.gesture;
    return pickDevices(editor, [&](Single x, Single y) {
        return gesture.BandX[0] < x && x < gesture.BandX[1] && gesture.BandY[0] < y &&
               y < gesture.BandY[1];
    });
}

bool pickLabelsInBand(Editor& editor) {
    LabelTable& labels = editor.drawing.labels;
    bool any = false;
    for (std::size_t i = 0; i < static_cast<std::size_t>(labels.LabelCount); ++i) {
        const Single x = labels.LabelX[i], y = labels.LabelY[i];
        if (!(editor.gesture.BandX[0] < x && x < editor.gesture.BandX[1])) continue;
        if (!(editor.gesture.BandY[0] < y && y < editor.gesture.BandY[1])) continue;
        toggle(labels.LabelSelected[i]);
        placeLabel(editor, i);
        any = true;
    }
    return any;
}

bool pickPicturesInBand(Editor& editor) {
    bool any = false;
    for (std::size_t i = 0; i < editor.drawing.PictureTable.size(); ++i) {
        const PictureRow& row = editor.drawing.PictureTable[i];
        if (!(editor.gesture.BandX[0] < row.Left && row.Left + row.Width < editor.gesture.BandX[1]))
            continue;
        if (!(editor.gesture.BandY[0] < row.Top && row.Top + row.Height < editor.gesture.BandY[1]))
            continue;
        markPicture(editor, i, !row.Selected);
        any = true;
    }
    return any;
}

void erasePictures(Editor& editor) {
    auto& rows = editor.drawing.PictureTable;
    for (std::size_t i = rows.size(); i-- > 0;) {
        if (!rows[i].Selected) continue;
        rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(i));
        if (i < editor.img.size())
            editor.img.erase(editor.img.begin() + static_cast<std::ptrdiff_t>(i));
    }
    editor.drawing.PictureCount = static_cast<Short>(rows.size());
    editor.SelectedPicture = -1;
    ++editor.form.PictureVersion;
}

}  // namespace

void markPicture(Editor& editor, std::size_t i, bool selected) {
    editor.drawing.PictureTable[i].Selected = selected;
    ++editor.form.PictureVersion;
    editor.SelectedPicture = -1;
    for (std::size_t p = 0; p < editor.drawing.PictureTable.size(); ++p)
        if (editor.drawing.PictureTable[p].Selected) editor.SelectedPicture = static_cast<Short>(p);
}

void pickLines(Editor& editor, Single x, Single y) {
    DeviceTable& devices = editor.drawing.devices;
    const auto count = static_cast<std::size_t>(devices.DeviceCount);
    const Single reach = PickReach / editor.ZoomFactor;
    std::vector<std::size_t> toggled;
    const auto pickEach = [&](auto&& isHit) {
        for (std::size_t i = 0; i < count; ++i) {
            if (devices.DeviceName[i] != "InsertSavedLine" || !isHit(i)) continue;
            toggle(devices.DeviceSelected[i]);
            toggled.push_back(i);
        }
    };
    pickEach([&](std::size_t i) {
        const Single x1 = devices.DeviceX[i], x2 = devices.DeviceX2[i];
        const Single y1 = devices.DeviceY[i], y2 = devices.DeviceY2[i];
        if (x1 == x2) return x1 >= x - reach && x2 <= x + reach && between(y, y1, y2);
        return y1 == y2 && y1 >= y - reach && y2 <= y + reach && between(x, x1, x2);
    });
    pickEach([&](std::size_t i) {
        return between(x, devices.DeviceX[i], devices.DeviceX2[i]) &&
               between(y, devices.DeviceY[i], devices.DeviceY2[i]);
    });
    if (showToggled(editor, toggled)) RecountSelection(editor);
}

void picGrip_Click(Editor& editor) {
    Overlay& grip = editor.form.pointer.picGrip;
    grip.Visible = false;
    const bool any = pickDevices(editor, [&](Single x, Single y) {
        return between(x, grip.Left, grip.Left + grip.Width) &&
               between(y, grip.Top, grip.Top + grip.Height);
    });
    if (any) RecountSelection(editor);
    editor.form.FocusRequest = Focus::Canvas;
}

void picGrip_MouseDown(Editor& editor, Short button) {
    if (button != RightButton) return;
    if (editor.SelectedCount > 0 && editor.gesture.CopyStage == 0) {
        editor.form.menu[Menu::mnuEditCopy].Enabled = true;
        editor.form.menu[Menu::mnuEditMove].Enabled = true;
    }
    wipeTemporaryGraphics(editor);
    if (editor.gesture.CurrentTool == DashedLineTool) ResetEditor(editor);
    editor.platform.dialogs->popUp("mnuEdit");
}

void pickInBand(Editor& editor) {
    const bool devices = pickDevicesInBand(editor);
    const bool labels = pickLabelsInBand(editor);
    const bool pictures = pickPicturesInBand(editor);
    if (devices || labels || pictures) RecountSelection(editor);
}

void mnuEditSelectAll_Click(Editor& editor) {
    Drawing& drawing = editor.drawing;
    std::fill(drawing.devices.DeviceSelected.begin(), drawing.devices.DeviceSelected.end(),
              Short{1});
    std::fill(drawing.labels.LabelSelected.begin(), drawing.labels.LabelSelected.end(), Short{1});
    for (std::size_t i = 0; i < drawing.PictureTable.size(); ++i)
        markPicture(editor, i, true);
    RecountSelection(editor);
    RedrawDrawing(editor);
    editor.form.FocusRequest = Focus::Canvas;
}

void mnuEditDelete_Click(Editor& editor) {
    DeleteSelection(editor);
}

void DeleteSelection(Editor& editor) {
    if (editor.SelectedCount == 0) return editor.platform.tell("Nothing selected to delete.");
    keepLabelEdit(editor);
    endGesture(editor, Keep::Tool);
    Drawing& drawing = editor.drawing;
    drawing.devices.eraseSelected();
    drawing.labels.eraseSelected();
    erasePictures(editor);
    showPanel(editor, Panel::None);
    RecountSelection(editor);
    paintDrawing(editor);
    editor.form.lblMessage.Caption = "Selected Items Deleted";
    recordStep(editor);
}

bool moveSelectedItems(Drawing& drawing, Single dx, Single dy) {
    bool moved = false;
    DeviceTable& devices = drawing.devices;
    for (std::size_t i = 0; i < static_cast<std::size_t>(devices.DeviceCount); ++i) {
        if (devices.DeviceSelected[i] == 0) continue;
        devices.DeviceX[i] += dx;
        devices.DeviceY[i] += dy;
        moved = true;
        if (!isFreeLineOrSquare(devices.DeviceName[i])) continue;
        devices.DeviceX2[i] += dx;
        devices.DeviceY2[i] += dy;
    }
    LabelTable& labels = drawing.labels;
    for (std::size_t i = 0; i < static_cast<std::size_t>(labels.LabelCount); ++i) {
        if (labels.LabelSelected[i] == 0) continue;
        labels.LabelX[i] += dx;
        labels.LabelY[i] += dy;
        moved = true;
    }
    for (PictureRow& row : drawing.PictureTable) {
        if (!row.Selected) continue;
        row.Left += dx;
        row.Top += dy;
        moved = true;
    }
    return moved;
}

}  // namespace ladrix
