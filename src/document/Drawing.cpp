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

// A text cut off in the middle of a line would swallow the record that comes behind it.
void dropUnfinishedLine(std::string& master) {
    if (master.ends_with(LineEnd)) return;
    const std::size_t lastEnd = master.rfind(LineEnd);
    master.resize(lastEnd == std::string::npos ? 0 : lastEnd + LineEnd.size());
}

// Adds the record of the table's last row. A row that cannot be written is taken back.
template <class Table, class AppendRecord>
void appendLastRow(std::string& master, RecordOffsets& records, Table& table, Short index,
                   const AppendRecord& appendRecord) {
    dropUnfinishedLine(master);
    const std::size_t start = master.size();
    try {
        appendRecord(master, index);
    } catch (const Failure&) {
        master.resize(start);
        table.resize(index);
        throw;
    }
    master += LineEnd;
    records.start.push_back(start);
}

void appendDevice(Drawing& drawing, const Device& device, char decimalMark) {
    drawing.devices.append(recordedFields(device));
    appendLastRow(drawing.DeviceString, drawing.DeviceRecords, drawing.devices,
                  static_cast<Short>(drawing.devices.DeviceCount - 1),
                  [&](std::string& master, Short index) {
                      appendDeviceRecord(master, drawing.devices, index, decimalMark);
                  });
}

// Where the text does not hold the rows before this one, and nothing else, it is made anew.
void appendLabel(Drawing& drawing, const Platform& platform, const Label& label) {
    const auto before = static_cast<std::size_t>(drawing.labels.LabelCount);
    drawing.labels.append(label);
    const bool agreed =
        drawing.LabelRecords.start.size() == before && (before > 0 || drawing.LabelString.empty());
    if (!agreed) return RebuildLabelString(drawing, platform);
    appendLastRow(drawing.LabelString, drawing.LabelRecords, drawing.labels,
                  static_cast<Short>(before), [&](std::string& master, Short index) {
                      appendLabelRecord(master, drawing.labels, index, platform.locale.decimalMark);
                  });
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
    return master;
}

template <class AppendRecord>
void rebuild(std::string& text, RecordOffsets& records, Short count,
             const AppendRecord& appendRecord) {
    if (count == 0 && records.start.empty()) return;
    MasterText master =
        masterText(count, text.size() + static_cast<std::size_t>(count), appendRecord);
    text = std::move(master.text);
    records = std::move(master.records);
}

}  // namespace

std::string_view Drawing::DeviceRecord(Short index) const {
    return DeviceRecords.record(DeviceString, static_cast<std::size_t>(index));
}

std::string_view Drawing::LabelRecord(Short index) const {
    return LabelRecords.record(LabelString, static_cast<std::size_t>(index));
}

bool isFreeLineOrSquare(std::string_view name) {
    return recordLayout(name) == RecordLayout::FreeLineOrSquare;
}

bool isCircleName(std::string_view name) {
    return recordLayout(name) == RecordLayout::Circle;
}

void RecordDevice(Drawing& drawing, const Platform& platform, Device& device) {
    platform.attempt("Record Device", [&] {
        drawing.NewAfterSave = false;
        const auto slot = static_cast<std::size_t>(drawing.devices.DeviceCount);
        const auto& names = drawing.devices.DeviceName;
        if (slot < names.size() && names[slot] == device.name) return;
        drawing.DrawingChanged = true;
        correctFields(device);
        if (!isFreeLineOrSquare(device.name) && device.x == 0) {
            platform.tell("Bad Device X position.");
        }
        appendDevice(drawing, device, platform.locale.decimalMark);
        drawing.DeviceRecorded = true;
        if (deviceNeedsSnapshot(drawing, device.name) && drawing.TakeUndoSnapshot) {
            drawing.TakeUndoSnapshot();
        }
    });
}

void RecordLabel(Drawing& drawing, const Platform& platform, Label label) {
    platform.attempt("Record Label", [&] {
        drawing.NewAfterSave = false;
        if (label.text.empty()) label.text = "Type New Text";
        if (drawing.FixedLabelColorOn) label.color = drawing.FixedLabelColor;
        if (drawing.DrawingPreview) {
            printOnCanvas(platform, label);
            return;
        }
        appendLabel(drawing, platform, label);
        drawing.CurrentLabel = static_cast<Short>(drawing.labels.LabelCount - 1);
        drawing.DrawingChanged = true;
        if (!drawing.NoSnapshot && drawing.TakeUndoSnapshot) drawing.TakeUndoSnapshot();
    });
}

void RebuildDeviceString(Drawing& drawing, const Platform& platform) {
    platform.attempt("Rebuild Device String", [&] {
        rebuild(drawing.DeviceString, drawing.DeviceRecords, drawing.devices.DeviceCount,
                [&](std::string& text, Short index) {
                    appendDeviceRecord(text, drawing.devices, index, platform.locale.decimalMark);
                });
    });
}

void RebuildLabelString(Drawing& drawing, const Platform& platform) {
    platform.attempt("Rebuild Label String", [&] {
        rebuild(drawing.LabelString, drawing.LabelRecords, drawing.labels.LabelCount,
                [&](std::string& text, Short index) {
                    appendLabelRecord(text, drawing.labels, index, platform.locale.decimalMark);
                });
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
