#include "canvas/history/Undo.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "canvas/file/DrawingIO.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/history/History.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/state/Panels.h"
#include "canvas/view/Painting.h"
#include "document/Records.h"

namespace ladrix {

namespace {

struct Sections {
    std::string_view devices, labels, pictures;
};

// A label may read like any marker. That of the labels comes before all of them and begins a line,
// as no field of a device but its name does; that of the pictures comes behind all labels, and no
// name of a picture file can read like it.
std::optional<Sections> sectionsOf(std::string_view text) {
    constexpr auto None = std::string_view::npos;
    if (!text.starts_with(DevicesMark)) return std::nullopt;
    const auto devicesStart = DevicesMark.size();
    auto labels = text.find(LabelsMark, devicesStart);
    while (labels != None && labels != devicesStart && !text.substr(0, labels).ends_with(LineEnd))
        labels = text.find(LabelsMark, labels + 1);
    const auto pictures = text.rfind(PicturesMark);
    if (labels == None || pictures == None) return std::nullopt;
    const auto labelsStart = labels + LabelsMark.size();
    if (pictures < labelsStart) return std::nullopt;
    return Sections{text.substr(devicesStart, labels - devicesStart),
                    text.substr(labelsStart, pictures - labelsStart),
                    text.substr(pictures + PicturesMark.size())};
}

// Pictures that the step leaves alone are not parsed again, so that one whose file is missing is
// not told at every step.
void parsePictures(Editor& editor, std::string_view text) {
    if (editor.drawing.PictureString == text) return;
    editor.drawing.PictureString = text;
    PicturePaths paths;
    for (const auto& [name, known] : editor.HistoryPictures)
        paths.emplace(name, known.FullPath);
    ParsePictureString(editor.drawing, editor.platform, paths);
    loadPictures(editor);
}

// A field of a record; "" where it has fewer.
std::string_view fieldOf(std::string_view record, int index) {
    for (; index > 0; --index) {
        const auto separator = record.find(FieldSeparator);
        if (separator == std::string_view::npos) return {};
        record.remove_prefix(separator + 1);
    }
    return record.substr(0, record.find(FieldSeparator));
}

// A file's reader passes over the width tag of circles and semicircles; a step back and forth must
// not lose it.
void restoreWidthTags(Drawing& drawing) {
    DeviceTable& devices = drawing.devices;
    const auto rows = std::min(devices.DeviceName.size(), drawing.DeviceRecords.start.size());
    for (std::size_t i = 0; i < rows; ++i) {
        const RecordLayout layout = recordLayout(devices.DeviceName[i]);
        if (layout != RecordLayout::Circle && layout != RecordLayout::SemiCircle) continue;
        const int tagField = layout == RecordLayout::Circle ? 5 : 6;
        devices.DeviceWidthTag[i] = fieldOf(drawing.DeviceRecord(static_cast<Short>(i)), tagField);
    }
}

void parseSections(Editor& editor, const Sections& sections) {
    Drawing& drawing = editor.drawing;
    drawing.DeviceString = sections.devices;
    drawing.LabelString = sections.labels;
    ParseDeviceString(drawing, editor.platform);
    restoreWidthTags(drawing);
    ParseLabelString(drawing, editor.platform);
    parsePictures(editor, sections.pictures);
}

void goBy(Editor& editor, int steps) {
    keepLabelEdit(editor);
    keepShownTexts(editor);
    editor.UndoPosition = static_cast<Short>(editor.UndoPosition + steps);
    RestoreSnapshot(editor);
}

}  // namespace

void RestoreSnapshot(Editor& editor) {
    if (editor.UndoPosition < 0) {
        editor.UndoPosition = 0;
        return editor.platform.tell("Nothing more can be undone.");
    }
    if (editor.UndoPosition > editor.UndoTop) {
        editor.UndoPosition = editor.UndoTop;
        return editor.platform.tell("Nothing more can be re-done.");
    }
    editor.form.menu[Menu::mnuEditRedo].Enabled = editor.UndoPosition < editor.UndoTop;
    endGesture(editor, Keep::Tool);
    const std::string snapshot = editor.history.text(editor.UndoPosition);
    const auto sections = sectionsOf(snapshot);
    if (!sections) return;
    editor.UndoShown = editor.UndoPosition;
    editor.SnapshotPending = false;
    ClearSelection(editor);
    if (editor.gesture.CurrentTool == -1) showPanel(editor, Panel::None);
    parseSections(editor, *sections);
    editor.drawing.DrawingChanged = true;
    RecountSelection(editor);
    RedrawDrawing(editor);
    editor.form.lblMessage.Caption = "Action has been undone.";
}

void ParseShownDevices(Editor& editor) {
    endGesture(editor, Keep::Tool);
    ParseDeviceString(editor.drawing, editor.platform);
    restoreWidthTags(editor.drawing);
    RecountSelection(editor);
    RedrawDrawing(editor);
}

void mnuEditUndo_Click(Editor& editor) {
    goBy(editor, -1);
}

void mnuEditRedo_Click(Editor& editor) {
    goBy(editor, 1);
}

}  // namespace ladrix
