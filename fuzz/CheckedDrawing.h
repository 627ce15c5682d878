// What both fuzz targets of the document share: a platform without a machine behind it, and the
// promise that a drawing that was read, whatever it was read from, is written in a form that reads
// back to the same tables.
#pragma once

#include <cstdlib>

#include "document/Records.h"
#include "platform/Platform.h"

namespace ladrix::fuzz {

// One folder, "Pictures", with one file, "logo.bmp".
class TinyFiles final : public Files {
  public:
    char separator() const override { return '/'; }
    std::vector<FileEntry> list(const std::string& folder) override {
        FileEntry entry;
        if (folder == "/drawings/") {
            entry.name = "Pictures";
            entry.isFolder = true;
        } else if (folder == "/drawings/Pictures/") {
            entry.name = "logo.bmp";
        } else {
            throw Failure{failure::PathNotFound, "No such folder"};
        }
        return {entry};
    }
    std::optional<FileEntry> status(const std::string&) override { return std::nullopt; }
    std::string read(const std::string&, std::uintmax_t) override { refuse(); }
    void replace(const std::string&, std::string_view, bool) override { refuse(); }
    void append(const std::string&, std::string_view) override { refuse(); }
    void copy(const std::string&, const std::string&) override { refuse(); }
    void remove(const std::string&) override { refuse(); }
    void rename(const std::string&, const std::string&) override { refuse(); }
    void makeFolder(const std::string&) override { refuse(); }
    void removeFolder(const std::string&) override { refuse(); }
    bool writable(const std::string&) override { return false; }

  private:
    // A parser only ever looks.
    [[noreturn]] static void refuse() { std::abort(); }
};

class SilentDialogs final : public Dialogs {
  public:
    Answer message(std::string_view, std::string_view, Buttons) override { return Answer::Ok; }
    std::optional<std::string> input(std::string_view, std::string_view,
                                     std::string_view) override {
        return std::nullopt;
    }
    void show(Form) override {}
    void open(Form) override {}
    void popUp(std::string_view) override {}
};

struct TinyPlatform {
    TinyFiles files;
    SilentDialogs dialogs;
    int reports = 0;
    Platform platform;

    explicit TinyPlatform(char decimalMark) {
        platform.files = &files;
        platform.dialogs = &dialogs;
        platform.locale.decimalMark = decimalMark;
        platform.ReportError = [this](std::string_view, const Failure&) { ++reports; };
    }
    TinyPlatform(const TinyPlatform&) = delete;
    TinyPlatform& operator=(const TinyPlatform&) = delete;
};

inline void require(bool promise) {
    if (!promise) std::abort();
}

inline void parseAll(Drawing& drawing, const Platform& platform) {
    drawing.PictureParentFolder = "/drawings/";
    drawing.PictureFolderName = "Pictures";
    ParseDeviceString(drawing, platform);
    ParseLabelString(drawing, platform);
    ParsePictureString(drawing, platform);
}

inline void rebuildAll(Drawing& drawing, const Platform& platform) {
    RebuildDeviceString(drawing, platform);
    RebuildLabelString(drawing, platform);
    RebuildPictureString(drawing, platform);
}

// Counts, columns and records tell of the same number of rows, a label's record begins with its
// text, and no picture lies outside its folder.
inline void checkTables(const Drawing& drawing) {
    const auto devices = static_cast<std::size_t>(drawing.devices.DeviceCount);
    const auto labels = static_cast<std::size_t>(drawing.labels.LabelCount);
    require(drawing.devices.DeviceName.size() == devices);
    require(drawing.devices.DeviceFlip.size() == devices);
    require(drawing.devices.DeviceSelected.size() == devices);
    require(drawing.DeviceRecords.start.size() == devices);
    require(drawing.labels.LabelText.size() == labels);
    require(drawing.labels.LabelSelected.size() == labels);
    require(drawing.LabelRecords.start.size() == labels);
    require(drawing.PictureTable.size() == static_cast<std::size_t>(drawing.PictureCount));
    for (std::size_t i = 0; i < labels; ++i) {
        const auto record = drawing.LabelRecord(static_cast<Short>(i));
        require(record.starts_with(drawing.labels.LabelText[i]));
    }
    for (const PictureRow& row : drawing.PictureTable) {
        require(row.FullPath == "/drawings/Pictures/logo.bmp");
    }
}

inline bool sameDevices(const DeviceTable& a, const DeviceTable& b) {
    return a.DeviceName == b.DeviceName && a.DeviceX == b.DeviceX && a.DeviceY == b.DeviceY &&
           a.DeviceX2 == b.DeviceX2 && a.DeviceY2 == b.DeviceY2 &&
           a.DeviceRadius == b.DeviceRadius && a.DeviceDirection == b.DeviceDirection &&
           a.DeviceColor == b.DeviceColor && a.DeviceWidthTag == b.DeviceWidthTag &&
           a.DeviceAspect == b.DeviceAspect && a.DeviceStartAngle == b.DeviceStartAngle &&
           a.DeviceEndAngle == b.DeviceEndAngle && a.DeviceScaleX == b.DeviceScaleX &&
           a.DeviceScaleY == b.DeviceScaleY && a.DeviceOrientation == b.DeviceOrientation &&
           a.DeviceFlip == b.DeviceFlip;
}

inline bool sameLabels(const LabelTable& a, const LabelTable& b) {
    return a.LabelText == b.LabelText && a.LabelX == b.LabelX && a.LabelY == b.LabelY &&
           a.LabelColor == b.LabelColor && a.LabelFontName == b.LabelFontName &&
           a.LabelFontSize == b.LabelFontSize && a.LabelBold == b.LabelBold &&
           a.LabelItalic == b.LabelItalic;
}

// The first writing rounds numbers to seven digits; from then on nothing may change any more.
inline void checkRewriting(Drawing drawing, const Platform& platform) {
    rebuildAll(drawing, platform);
    parseAll(drawing, platform);
    Drawing again = drawing;
    rebuildAll(again, platform);
    parseAll(again, platform);
    checkTables(again);
    require(sameDevices(drawing.devices, again.devices));
    require(sameLabels(drawing.labels, again.labels));
    require(drawing.PictureCount == again.PictureCount);
}

}  // namespace ladrix::fuzz
