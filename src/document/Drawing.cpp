#include "document/Drawing.h"

#include <limits>
#include <utility>

#include "document/Records.h"

namespace ladrix {

namespace {

// The fields that the record of this name holds; the others stay at their start values.
Device recordedFields(const Device& device) {
    Device kept{.name = device.name,
                .x = device.x,
                .y = device.y,
                .color = device.color,
                .widthTag = device.widthTag};
    switch (recordLayout(device.name)) {
        case RecordLayout::FreeLineOrSquare:
            kept.x2 = device.x2;
            kept.y2 = device.y2;
            break;
        case RecordLayout::Circle:
            kept.radius = device.radius;
            kept.aspect = device.aspect;
            break;
        case RecordLayout::Arc:
            kept.radius = device.radius;
            kept.direction = device.direction;
            kept.startAngle = device.startAngle;
            kept.endAngle = device.endAngle;
            kept.aspect = device.aspect;
            break;
        case RecordLayout::SemiCircle:
            kept.radius = device.radius;
            kept.direction = device.direction;
            break;
        case RecordLayout::Ordinary:
            kept.scaleX = device.scaleX;
            kept.scaleY = device.scaleY;
            kept.orientation = device.orientation;
            kept.flip = device.flip;
            break;
    }
    return kept;
}

// What the caller sees changed in its device after recording.
void correctFields(Device& device) {
    const RecordLayout layout = recordLayout(device.name);
    if (layout == RecordLayout::FreeLineOrSquare && device.widthTag.empty()) device.widthTag = "0";
    const bool hasAspect = layout == RecordLayout::Circle || layout == RecordLayout::Arc;
    if (hasAspect && device.aspect == 0) device.aspect = 1;
}

// A table's lines made anew beside the present ones, so that a failure leaves those whole.
struct MasterText {
    std::string text;
    RecordOffsets records;
};

template <class AppendRecord>
MasterText masterText(Short count, std::size_t sizeHint, const AppendRecord& appendRecord) {
    MasterText master;
    master.text.reserve(sizeHint);
    master.records.start.reserve(static_cast<std::size_t>(count));
    for (Short index = 0; index < count; ++index) {
        master.records.start.push_back(master.text.size());
        appendRecord(master.text, index);
        master.text += LineEnd;
    }
    master.records.written = true;
    return master;
}

template <class AppendRecord>
void remake(std::string& text, RecordOffsets& records, Short count,
            const AppendRecord& appendRecord) {
    MasterText master =
        masterText(count, text.size() + static_cast<std::size_t>(count), appendRecord);
    text = std::move(master.text);
    records = std::move(master.records);
}

template <class AppendRecord>
void rebuild(std::string& text, RecordOffsets& records, Short count,
             const AppendRecord& appendRecord) {
    if (count == 0 && records.start.empty()) return;
    remake(text, records, count, appendRecord);
}

template <class AppendRecord>
void appendLine(std::string& text, RecordOffsets& records, Short index,
                const AppendRecord& appendRecord) {
    const std::size_t start = text.size();
    try {
        appendRecord(text, index);
    } catch (const Failure&) {
        text.resize(start);
        throw;
    }
    text += LineEnd;
    records.start.push_back(start);
}

// Adds a row to the table that has `count` of them, and its record. A text that was read may be of
// another form, and may hold lines that could not be read: it is made anew from the rows. A row
// that cannot be written is taken back.
template <class Table, class Row, class AppendRecord>
void addRow(std::string& text, RecordOffsets& records, Table& table, Short count, const Row& row,
            const AppendRecord& appendRecord) {
    const bool fits = records.written && records.start.size() == static_cast<std::size_t>(count);
    table.append(row);
    try {
        if (fits)
            appendLine(text, records, count, appendRecord);
        else
            remake(text, records, static_cast<Short>(count + 1), appendRecord);
    } catch (const Failure&) {
        table.resize(count);
        throw;
    }
}

// What writes the record of a row into a text.
auto deviceWriter(const Drawing& drawing, const Platform& platform) {
    return [&drawing, mark = platform.locale.decimalMark](std::string& text, Short index) {
        appendDeviceRecord(text, drawing.devices, index, mark);
    };
}

auto labelWriter(const Drawing& drawing, const Platform& platform) {
    return [&drawing, mark = platform.locale.decimalMark](std::string& text, Short index) {
        appendLabelRecord(text, drawing.labels, index, mark);
    };
}

// The segments of a dashed line are meant to be one step of the history.
bool dashNeedsSnapshot(Drawing& drawing) {
    if (drawing.DashesRecorded < std::numeric_limits<Short>::max()) ++drawing.DashesRecorded;
    if (drawing.DashesRecorded != drawing.DashesCounted) return false;
    drawing.DashesRecorded = 0;
    return true;
}

bool deviceNeedsSnapshot(Drawing& drawing, std::string_view name) {
    if (drawing.NoSnapshot) return false;
    if (name != "InsertSavedLine") return !drawing.LabelPending;
    return !drawing.DashedLine || dashNeedsSnapshot(drawing);
}

void printOnCanvas(const Platform& platform, const Label& label) {
    platform.picLX->Text(label.x, label.y,
                         {.name = label.fontName,
                          .size = label.fontSize,
                          .bold = label.bold,
                          .italic = label.italic},
                         label.text, label.color);
}

}  // namespace

std::string_view Drawing::DeviceRecord(Short index) const {
    return DeviceRecords.record(DeviceString, static_cast<std::size_t>(index));
}

std::string_view Drawing::LabelRecord(Short index) const {
    return LabelRecords.record(LabelString, static_cast<std::size_t>(index));
}

void forgetAfterSave(Drawing& drawing, After after) {
    if (drawing.AfterSave == after) drawing.AfterSave = After::Nothing;
}

bool isFreeLineOrSquare(std::string_view name) {
    return recordLayout(name) == RecordLayout::FreeLineOrSquare;
}

bool isCircleName(std::string_view name) {
    return recordLayout(name) == RecordLayout::Circle;
}

void RecordDevice(Drawing& drawing, const Platform& platform, Device& device) {
    platform.attempt("Record Device", [&] {
        forgetAfterSave(drawing, After::New);
        const auto slot = static_cast<std::size_t>(drawing.devices.DeviceCount);
        const auto& names = drawing.devices.DeviceName;
        if (slot < names.size() && names[slot] == device.name) return;
        drawing.DrawingChanged = true;
        correctFields(device);
        if (!isFreeLineOrSquare(device.name) && device.x == 0) {
            platform.tell("Bad Device X position.");
        }
        addRow(drawing.DeviceString, drawing.DeviceRecords, drawing.devices,
               drawing.devices.DeviceCount, recordedFields(device),
               deviceWriter(drawing, platform));
        drawing.DeviceRecorded = true;
        if (deviceNeedsSnapshot(drawing, device.name)) drawing.TakeUndoSnapshot();
    });
}

Label newLabel(const Drawing& drawing, Label label) {
    if (label.text.empty()) label.text = "Type New Text";
    if (drawing.FixedLabelColor != nullptr) label.color = *drawing.FixedLabelColor;
    return label;
}

void RecordLabel(Drawing& drawing, const Platform& platform, Label label) {
    platform.attempt("Record Label", [&] {
        forgetAfterSave(drawing, After::New);
        label = newLabel(drawing, std::move(label));
        if (drawing.DrawingPreview) {
            printOnCanvas(platform, label);
            return;
        }
        addRow(drawing.LabelString, drawing.LabelRecords, drawing.labels, drawing.labels.LabelCount,
               label, labelWriter(drawing, platform));
        drawing.CurrentLabel = static_cast<Short>(drawing.labels.LabelCount - 1);
        drawing.DrawingChanged = true;
        if (!drawing.NoSnapshot) drawing.TakeUndoSnapshot();
    });
}

void RebuildDeviceString(Drawing& drawing, const Platform& platform) {
    platform.attempt("Rebuild Device String", [&] {
        rebuild(drawing.DeviceString, drawing.DeviceRecords, drawing.devices.DeviceCount,
                deviceWriter(drawing, platform));
    });
}

void RebuildLabelString(Drawing& drawing, const Platform& platform) {
    platform.attempt("Rebuild Label String", [&] {
        rebuild(drawing.LabelString, drawing.LabelRecords, drawing.labels.LabelCount,
                labelWriter(drawing, platform));
    });
}

void RebuildPictureString(Drawing& drawing, const Platform& platform) {
    if (drawing.PictureCount == 0 && drawing.PictureRecords == 0) return;
    platform.attempt("Rebuild Picture String", [&] {
        MasterText master = masterText(
            drawing.PictureCount, drawing.PictureString.size(),
            [&](std::string& text, Short index) {
                appendPictureRecord(text, drawing.PictureTable[static_cast<std::size_t>(index)],
                                    platform.locale.decimalMark);
            });
        drawing.PictureString = std::move(master.text);
        drawing.PictureRecords = drawing.PictureCount;
    });
}

void ClearTables(Drawing& drawing) {
    drawing.devices.clear();
    drawing.labels.clear();
    drawing.PictureTable.clear();
    drawing.PictureCount = 0;
    drawing.DeviceString.clear();
    drawing.LabelString.clear();
    drawing.PictureString.clear();
    drawing.DeviceRecords.clear();
    drawing.LabelRecords.clear();
    drawing.PictureRecords = 0;
    drawing.CurrentLabel = -1;
}

}  // namespace ladrix
