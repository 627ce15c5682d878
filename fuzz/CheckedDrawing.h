// What the fuzz targets of drawings share: the promise that a drawing that was read, whatever it
// was read from, is written in a form that reads back to the same tables.
#pragma once

#include "Machine.h"
#include "document/Records.h"

namespace ladrix::fuzz {

// One folder, "Pictures", with one file, "logo.bmp".
class OnePicture final : public RefusingFiles {
  public:
    std::vector<FileEntry> list(const std::string& folder) override {
        if (folder == "/drawings/") return {entryOf("Pictures", true)};
        require(folder == "/drawings/Pictures/");
        return {entryOf("logo.bmp")};
    }
};

// Counts, columns and records tell of the same number of rows.
inline void checkDevices(const Drawing& drawing) {
    const auto devices = static_cast<std::size_t>(drawing.devices.DeviceCount);
    require(drawing.devices.DeviceName.size() == devices);
    require(drawing.devices.DeviceFlip.size() == devices);
    require(drawing.devices.DeviceSelected.size() == devices);
    require(drawing.DeviceRecords.start.size() == devices);
}

// The same, and a label's record begins with its text.
inline void checkLabels(const Drawing& drawing) {
    const auto labels = static_cast<std::size_t>(drawing.labels.LabelCount);
    require(drawing.labels.LabelText.size() == labels);
    require(drawing.labels.LabelSelected.size() == labels);
    require(drawing.LabelRecords.start.size() == labels);
    for (std::size_t i = 0; i < labels; ++i) {
        const auto record = drawing.LabelRecord(static_cast<Short>(i));
        require(record.starts_with(drawing.labels.LabelText[i]));
    }
}

// The same, and no picture lies outside its folder.
inline void checkPictures(const Drawing& drawing) {
    require(drawing.PictureTable.size() == static_cast<std::size_t>(drawing.PictureCount));
    for (const PictureRow& row : drawing.PictureTable) {
        require(row.FullPath == "/drawings/Pictures/logo.bmp");
    }
}

inline bool same(const DeviceTable& a, const DeviceTable& b) {
    return a.DeviceName == b.DeviceName && a.DeviceX == b.DeviceX && a.DeviceY == b.DeviceY &&
           a.DeviceX2 == b.DeviceX2 && a.DeviceY2 == b.DeviceY2 &&
           a.DeviceRadius == b.DeviceRadius && a.DeviceDirection == b.DeviceDirection &&
           a.DeviceColor == b.DeviceColor && a.DeviceWidthTag == b.DeviceWidthTag &&
           a.DeviceAspect == b.DeviceAspect && a.DeviceStartAngle == b.DeviceStartAngle &&
           a.DeviceEndAngle == b.DeviceEndAngle && a.DeviceScaleX == b.DeviceScaleX &&
           a.DeviceScaleY == b.DeviceScaleY && a.DeviceOrientation == b.DeviceOrientation &&
           a.DeviceFlip == b.DeviceFlip;
}

inline bool same(const LabelTable& a, const LabelTable& b) {
    return a.LabelText == b.LabelText && a.LabelX == b.LabelX && a.LabelY == b.LabelY &&
           a.LabelColor == b.LabelColor && a.LabelFontName == b.LabelFontName &&
           a.LabelFontSize == b.LabelFontSize && a.LabelBold == b.LabelBold &&
           a.LabelItalic == b.LabelItalic;
}

// What no writing may change, not even the first one of a text in an older form.
inline bool sameBesidesNumbers(const DeviceTable& a, const DeviceTable& b) {
    return a.DeviceName == b.DeviceName && a.DeviceColor == b.DeviceColor &&
           a.DeviceDirection == b.DeviceDirection && a.DeviceOrientation == b.DeviceOrientation &&
           a.DeviceFlip == b.DeviceFlip;
}

inline bool sameBesidesNumbers(const LabelTable& a, const LabelTable& b) {
    return a.LabelText == b.LabelText && a.LabelColor == b.LabelColor &&
           a.LabelBold == b.LabelBold && a.LabelItalic == b.LabelItalic;
}

// One of a drawing's tables, the text it is kept in, and what writes and reads it.
template <class Table>
struct Section {
    Table& table;
    std::string& text;
    void (*write)(Drawing&, const Platform&);
    void (*read)(Drawing&, const Platform&);
    void (*check)(const Drawing&);
};

// The first writing rounds numbers to seven digits; from then on nothing may change any more. Where
// the second one gives the same text, its reading would give the same table.
template <class Table>
void checkRewriting(Drawing& drawing, const Platform& platform, const Section<Table>& section) {
    const Table first = section.table;
    section.write(drawing, platform);
    section.read(drawing, platform);
    require(sameBesidesNumbers(section.table, first));
    const std::string written = section.text;
    section.write(drawing, platform);
    if (section.text == written) return;
    const Table table = section.table;
    section.read(drawing, platform);
    section.check(drawing);
    require(same(section.table, table));
}

inline void checkDeviceRewriting(Drawing& drawing, const Platform& platform) {
    checkRewriting(drawing, platform,
                   Section<DeviceTable>{drawing.devices, drawing.DeviceString, RebuildDeviceString,
                                        ParseDeviceString, checkDevices});
}

inline void checkLabelRewriting(Drawing& drawing, const Platform& platform) {
    checkRewriting(drawing, platform,
                   Section<LabelTable>{drawing.labels, drawing.LabelString, RebuildLabelString,
                                       ParseLabelString, checkLabels});
}

// One record more leaves all others readable. A full table refuses it.
inline void checkAdding(Drawing& drawing, const Platform& platform) {
    ParseDeviceString(drawing, platform);
    ParseLabelString(drawing, platform);
    Device device{.name = "InsertFuse", .x = 1.5f, .scaleX = 1};
    RecordDevice(drawing, platform, device);
    RecordLabel(drawing, platform, {.text = "new", .x = 1.5f, .fontName = "Arial"});
    const DeviceTable devices = drawing.devices;
    const LabelTable labels = drawing.labels;
    ParseDeviceString(drawing, platform);
    ParseLabelString(drawing, platform);
    require(sameBesidesNumbers(drawing.devices, devices));
    require(sameBesidesNumbers(drawing.labels, labels));
}

}  // namespace ladrix::fuzz
