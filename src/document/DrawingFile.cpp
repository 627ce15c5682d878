#include "document/DrawingFile.h"

#include <algorithm>
#include <ctime>
#include <utility>

#include "document/JoinedTexts.h"
#include "document/Records.h"

namespace ladrix {

namespace {

constexpr std::string_view DescriptionStart = "///File Description///";
constexpr std::string_view DescriptionEnd = "///End File Description///";
constexpr std::string_view BlankLine = "\r\n\r\n";  // with the end of the line before it
constexpr std::size_t ExtensionLength = 4;          // ".els"

FileTime pageKeyIntroduction() {
    std::tm date{};
    date.tm_year = 2011 - 1900;
    date.tm_mon = 0;
    date.tm_mday = 10;
    date.tm_isdst = -1;
    return std::chrono::system_clock::from_time_t(std::mktime(&date));
}

std::string_view behind(std::string_view text, std::size_t position) {
    return position < text.size() ? text.substr(position) : std::string_view{};
}

std::string_view withoutLineEnd(std::string_view text) {
    if (text.starts_with(LineEnd)) text.remove_prefix(LineEnd.size());
    return text;
}

// What stands inside a line is text that somebody wrote: a record goes on behind it.
bool endsLine(std::string_view text, std::size_t position) {
    return position == text.size() || text.substr(position).starts_with(LineEnd);
}

bool isLine(std::string_view text, std::size_t position, std::string_view line) {
    const bool begins = position == 0 || text.substr(0, position).ends_with(LineEnd);
    return begins && endsLine(text, position + line.size());
}

// Where the line stands first; npos if nowhere.
std::size_t findLine(std::string_view text, std::string_view line) {
    std::size_t found = text.find(line);
    while (found != std::string_view::npos && !isLine(text, found, line))
        found = text.find(line, found + 1);
    return found;
}

std::size_t findLastLine(std::string_view text, std::string_view line) {
    std::size_t found = text.rfind(line);
    while (found != std::string_view::npos && !isLine(text, found, line))
        found = found == 0 ? std::string_view::npos : text.rfind(line, found - 1);
    return found;
}

// Moves the description out of `text`, which is then what comes behind it. A description may hold
// any line, what comes behind it has none that is a marker: the last one ends it.
std::string takeDescription(std::string_view& text) {
    const std::size_t end = findLastLine(text, DescriptionEnd);
    if (end == std::string_view::npos) return {};
    std::string_view description = text.substr(0, end);
    text = withoutLineEnd(behind(text, end + DescriptionEnd.size()));
    if (const auto start = findLine(description, DescriptionStart);
        start != std::string_view::npos) {
        description = withoutLineEnd(description.substr(start + DescriptionStart.size()));
    }
    if (description.ends_with(LineEnd)) description.remove_suffix(LineEnd.size());
    return std::string(description);
}

struct DevicesAndLabels {
    std::string_view devices, labels;
};

// The devices end with the line end before the blank line that divides them from the labels.
// Without devices the blank line is the first line of all.
DevicesAndLabels divide(std::string_view text) {
    const std::size_t blankLine = text.find(BlankLine);
    if (blankLine != std::string_view::npos) {
        return {text.substr(0, blankLine + LineEnd.size()),
                behind(text, blankLine + BlankLine.size())};
    }
    const std::size_t lineEnd = text.find(LineEnd);
    if (lineEnd == std::string_view::npos) return {};
    return {{}, behind(text, lineEnd + LineEnd.size())};
}

// Moves the picture section out of the labels. Its marker is a line, or the end of a label's that
// was cut off.
std::optional<std::string> takePictures(std::string_view& labels) {
    std::size_t marker = labels.find(PictureMarker);
    while (marker != std::string_view::npos && !endsLine(labels, marker + PictureMarker.size()))
        marker = labels.find(PictureMarker, marker + 1);
    if (marker == std::string_view::npos) return std::nullopt;
    const std::string_view pictures = withoutLineEnd(behind(labels, marker + PictureMarker.size()));
    labels = labels.substr(0, marker);
    return std::string(pictures);
}

}  // namespace

std::string mainText(const Drawing& drawing) {
    std::string text;
    if (!drawing.FileDescription.empty()) {
        text.append(DescriptionStart).append(LineEnd);
        text.append(drawing.FileDescription).append(LineEnd);
        text.append(DescriptionEnd).append(LineEnd);
    }
    return text.append(crashCopyText(drawing));
}

std::string crashCopyText(const Drawing& drawing) {
    std::string text;
    text.reserve(drawing.PageLayoutKey.size() + BlankLine.size() + drawing.DeviceString.size() +
                 LineEnd.size() + drawing.LabelString.size());
    text.append(drawing.PageLayoutKey).append(BlankLine);
    text.append(drawing.DeviceString).append(LineEnd);
    return text.append(drawing.LabelString);
}

std::string fileText(const Drawing& drawing) {
    return mainText(drawing).append(PictureMarker).append(LineEnd).append(drawing.PictureString);
}

bool isOldFile(FileTime modified, std::string_view text) {
    return text.starts_with("Insert") || modified < pageKeyIntroduction();
}

DrawingParts splitFile(std::string_view text, FileTime modified) {
    DrawingParts parts;
    parts.description = takeDescription(text);
    parts.pageKey = DefaultPageKey;
    if (!isOldFile(modified, text)) {
        const std::size_t keyEnd = text.find(BlankLine);
        if (keyEnd == std::string_view::npos) return parts;
        parts.pageKey = text.substr(0, keyEnd);
        text = behind(text, keyEnd + BlankLine.size());
    } else if (!text.starts_with(LineEnd) && text.find(BlankLine) == std::string_view::npos) {
        return parts;
    }
    DevicesAndLabels tables = divide(text);
    parts.pictures = takePictures(tables.labels);
    parts.devices = tables.devices;
    parts.labels = tables.labels;
    return parts;
}

void takeParts(Drawing& drawing, DrawingParts parts) {
    drawing.FileDescription = std::move(parts.description);
    drawing.PageLayoutKey = std::move(parts.pageKey);
    drawing.DeviceString = std::move(parts.devices);
    drawing.LabelString = std::move(parts.labels);
    if (drawing.TemplateActive) {
        drawing.TemplateActive = false;
        drawing.DeviceString = joinedDevices(drawing.TemplateDevices, drawing.DeviceString);
        drawing.LabelString = joinedLabels(drawing.TemplateLabels, drawing.LabelString);
    }
    drawing.PictureString.clear();
    if (!parts.pictures) return;
    drawing.PictureString = std::move(*parts.pictures);
    const std::string& file = drawing.CurrentFileName;
    drawing.PictureFolderName =
        file.substr(0, file.size() - std::min(file.size(), ExtensionLength));
    drawing.PictureParentFolder = drawing.CurrentFolder;
}

}  // namespace ladrix
