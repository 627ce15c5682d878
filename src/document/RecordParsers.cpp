// The three parsers of the master texts. Each goes through its text once: a line is a view into it,
// a field a view into the line, and the columns are sized before the first line is read.
#include <algorithm>
#include <array>
#include <optional>
#include <unordered_map>
#include <utility>

#include "document/RecordLines.h"
#include "platform/Encoding.h"

namespace ladrix {

namespace {

// How the lines of one master text are to be read.
struct TextForm {
    std::string_view separator;
    bool oldForm = false;     // neither the byte 255 nor "=FF"
    bool repairMark = false;  // written under a locale with the other decimal mark
    char writtenMark = '.', ownMark = '.';
};

Short countLines(std::string_view text) {
    std::size_t count = 0;
    for (Lines lines(text); lines.next();)
        ++count;
    if (count > static_cast<std::size_t>(LargestCount)) {
        throw Failure{failure::Overflow, "The text has " + std::to_string(count) +
                                             " lines. A drawing holds at most 32767 items of a "
                                             "kind."};
    }
    return static_cast<Short>(count);
}

// nullopt if the text holds none of the separators.
std::optional<TextForm> textForm(std::string_view text, bool decimalComma) {
    const auto separator = separatorOf(text);
    if (!separator) return std::nullopt;
    TextForm form;
    form.separator = *separator;
    form.oldForm = *separator == OldSeparator;
    form.ownMark = decimalComma ? ',' : '.';
    form.writtenMark = decimalComma ? '.' : ',';
    if (const auto first = Lines(text).next()) {
        form.repairMark = hasDecimal(*first, form.separator, form.writtenMark);
    }
    return form;
}

// A text behind the first field. Numbers need no repair: they read with either mark.
void takeText(std::string& column, std::string_view field, const TextForm& form) {
    column.assign(field);
    if (form.repairMark) std::replace(column.begin(), column.end(), form.writtenMark, form.ownMark);
}

// The words as they are written, before any other spelling.
bool truth(std::string_view field) {
    if (field == "False") return false;
    return field == "True" || toBoolean(field);
}

Failure inLine(const Failure& failure, Short index) {
    return {failure.number, "Line " + std::to_string(index + 1) + ": " + failure.text};
}

// Gives each line to `readLine` with its index. A line that fails ends the reading: the table, its
// columns sized for all lines before, is cut to the rows that are whole.
template <class Table, class ReadLine>
void readLines(std::string_view text, Table& table, RecordOffsets& records, Short count,
               const ReadLine& readLine) {
    table.resize(count);
    records.start.reserve(static_cast<std::size_t>(count));
    Lines lines(text);
    for (Short index = 0; index < count; ++index) {
        const std::string_view line = *lines.next();
        try {
            readLine(static_cast<std::size_t>(index), line);
        } catch (const Failure& failure) {
            table.resize(index);
            throw inLine(failure, index);
        }
        records.start.push_back(lines.lineStart());
    }
}

std::string_view presentName(std::string_view name) {
    if (name == "InsertNormallyOpenSwitch") return "InsertNormallyOpenAux";
    if (name == "InsertNormallyClosedSwitch") return "InsertNormallyClosedAux";
    return name;
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

struct Renaming {
    std::string_view written, present;
    Short orientation;
};
constexpr std::array<Renaming, 4> ShortLineRenamings = {{
    {"InsertTransformerLowerCoil", "InsertTransformerCoil", 1},
    {"InsertTransformerUpperCoil", "InsertTransformerCoil", 0},
    {"InsertTransformer", "InsertTransformer", 2},
    {"InsertTransformer2", "InsertTransformer", 0},
}};

Short semiCircleDirection(std::string_view field) {
    constexpr std::array<std::string_view, 4> Words = {"Left", "Right", "Up", "Down"};
    const auto* const word = std::find(Words.begin(), Words.end(), field);
    if (word != Words.end()) return static_cast<Short>(word - Words.begin() + 1);
    return typedNumber(field) ? toShort(field) : Short{0};
}

// One line of the device table, by the layout of its name.
class DeviceReader {
  public:
    DeviceReader(DeviceTable& table, const TextForm& form) : table_(table), form_(form) {}

    void operator()(std::size_t i, std::string_view line) const {
        Fields fields(line, form_.separator);
        const std::string_view name = presentName(fields.next());
        table_.DeviceName[i].assign(name);
        table_.DeviceX[i] = fields.single();
        table_.DeviceY[i] = fields.single();
        switch (recordLayout(name)) {
            case RecordLayout::FreeLineOrSquare:
                readFreeShape(i, fields);
                break;
            case RecordLayout::Circle:
                // Width tag and aspect are left alone: every ellipse comes back as a circle.
                table_.DeviceRadius[i] = fields.single();
                table_.DeviceColor[i] = fields.number();
                break;
            case RecordLayout::Arc:
                readArc(i, fields);
                break;
            case RecordLayout::SemiCircle:
                table_.DeviceRadius[i] = fields.single();
                table_.DeviceDirection[i] = semiCircleDirection(fields.next());
                table_.DeviceColor[i] = fields.number();
                break;
            case RecordLayout::Ordinary:
                table_.DeviceColor[i] = fields.number();
                if (fields.hasMore()) {
                    readOrdinary(i, fields);
                } else {
                    readShortLine(i, fields);
                }
                break;
        }
    }

  private:
    void readFreeShape(std::size_t i, Fields& fields) const {
        table_.DeviceX2[i] = fields.single();
        table_.DeviceY2[i] = fields.single();
        table_.DeviceColor[i] = fields.number();
        const std::string_view tag = fields.rest();
        if (tag != "20" && tag != "0") takeText(table_.DeviceWidthTag[i], tag, form_);
    }

    void readArc(std::size_t i, Fields& fields) const {
        table_.DeviceRadius[i] = fields.single();
        table_.DeviceDirection[i] = toShort(fields.next());
        table_.DeviceColor[i] = fields.number();
        takeText(table_.DeviceWidthTag[i], fields.next(), form_);
        table_.DeviceStartAngle[i] = fields.single();
        table_.DeviceEndAngle[i] = fields.single();
        table_.DeviceAspect[i] = toSingle(fields.rest());
    }

    void readOrdinary(std::size_t i, Fields& fields) const {
        takeText(table_.DeviceWidthTag[i], fields.next(), form_);
        table_.DeviceScaleX[i] = fields.single();
        table_.DeviceScaleY[i] = fields.single();
        if (!fields.hasMore()) return;
        table_.DeviceOrientation[i] = toShort(fields.next());
        table_.DeviceFlip[i] = truth(fields.rest());
    }

    // The first generation of lines ends in one field that is a width tag or an orientation.
    void readShortLine(std::size_t i, const Fields& fields) const {
        std::string& tag = table_.DeviceWidthTag[i];
        takeText(tag, fields.rest(), form_);
        const std::string_view value = trimmed(tag);
        if (!value.empty() && value != "DrawWidth=2") table_.DeviceOrientation[i] = toShort(value);
        std::string& name = table_.DeviceName[i];
        for (const Renaming& renaming : ShortLineRenamings) {
            if (name != renaming.written) continue;
            name.assign(renaming.present);
            table_.DeviceOrientation[i] = renaming.orientation;
            return;
        }
    }

    DeviceTable& table_;
    const TextForm& form_;
};

class LabelReader {
  public:
    LabelReader(Drawing& drawing, const TextForm& form)
        : drawing_(drawing), table_(drawing.labels), form_(form) {}

    void operator()(std::size_t i, std::string_view line) const {
        if (line.empty() && !form_.oldForm) return;
        Fields fields(line, form_.separator);
        table_.LabelText[i].assign(fields.next());
        table_.LabelX[i] = fields.single();
        table_.LabelY[i] = fields.single();
        const bool hasFont = !form_.oldForm && fields.hasMore();
        table_.LabelColor[i] = fields.number();
        if (hasFont) {
            takeText(table_.LabelFontName[i], fields.next(), form_);
            table_.LabelFontSize[i] = fields.single();
            table_.LabelBold[i] = truth(fields.next());
            table_.LabelItalic[i] = truth(fields.rest());
        } else if (!form_.oldForm) {
            table_.LabelFontName[i] = drawing_.DefaultFontName;
            table_.LabelFontSize[i] = drawing_.DefaultFontSize;
            table_.LabelBold[i] = drawing_.DefaultFontBold;
            table_.LabelItalic[i] = drawing_.DefaultFontItalic;
        }
    }

  private:
    Drawing& drawing_;
    LabelTable& table_;
    const TextForm& form_;
};

void refuse(Drawing& drawing, const Platform& platform, std::string_view text) {
    drawing.ReadIncomplete = true;
    platform.tell(text);
}

void readDevices(Drawing& drawing, const Platform& platform) {
    drawing.devices.clear();
    drawing.DeviceRecords.clear();
    if (drawing.DeviceString == LineEnd) drawing.DeviceString.clear();
    const std::string_view text = drawing.DeviceString;
    if (text.empty()) return;
    const Short count = countLines(text);
    const std::optional<TextForm> form = textForm(text, platform.DecimalComma());
    if (!form) return refuse(drawing, platform, "Could not parse devices.");
    readLines(text, drawing.devices, drawing.DeviceRecords, count,
              DeviceReader(drawing.devices, *form));
}

void readLabels(Drawing& drawing, const Platform& platform) {
    drawing.labels.clear();
    drawing.LabelRecords.clear();
    const std::string_view text = drawing.LabelString;
    if (text.empty()) return;
    const Short count = countLines(text);
    const std::optional<TextForm> form = textForm(text, platform.DecimalComma());
    if (!form) return refuse(drawing, platform, "Could not parse labels.");
    readLines(text, drawing.labels, drawing.LabelRecords, count, LabelReader(drawing, *form));
}

// The folder of a drawing's pictures, read once. Names are found whatever their case, an exact one
// before others.
class PictureFolder {
  public:
    // nullopt if the parent has no such folder.
    static std::optional<PictureFolder> find(Files& files, const std::string& parent,
                                             std::string_view name) {
        std::string actual;
        for (const FileEntry& entry : files.list(parent)) {
            if (!entry.isFolder || !equalIgnoringCase(entry.name, name)) continue;
            actual = entry.name;
            if (actual == name) break;
        }
        if (actual.empty()) return std::nullopt;
        return PictureFolder(files, withSeparator(files, withSeparator(files, parent) + actual));
    }

    // Where the file lies; nullopt if it is missing. A name that leads out of the folder is.
    std::optional<std::string> pathOf(std::string_view name) const {
        if (!isBareName(name)) return std::nullopt;
        auto found = names_.find(std::string(name));
        if (found == names_.end()) found = names_.find(lowerCase(name));
        if (found == names_.end()) return std::nullopt;
        return path_ + found->second;
    }

  private:
    PictureFolder(Files& files, std::string path) : path_(std::move(path)) {
        for (const FileEntry& entry : files.list(path_)) {
            if (entry.isFolder) continue;
            names_.insert_or_assign(entry.name, entry.name);
            names_.try_emplace(lowerCase(entry.name), entry.name);
        }
    }

    std::string path_;
    std::unordered_map<std::string, std::string> names_;  // exact and lower case to actual
};

PictureRow readPicture(Fields& fields, std::string_view name, std::string path) {
    PictureRow row;
    row.FileName.assign(name);
    row.FullPath = std::move(path);
    row.Left = fields.single();
    row.Top = fields.single();
    row.Width = fields.single();
    row.Height = toSingle(fields.rest());
    return row;
}

void tellMissing(const Platform& platform, int missing) {
    if (missing == 1) platform.tell("1 picture could not be found.");
    if (missing > 1) platform.tell(std::to_string(missing) + " pictures could not be found.");
}

void readPictures(Drawing& drawing, const Platform& platform, const PicturePaths& known) {
    drawing.PictureTable.clear();
    drawing.PictureCount = 0;
    drawing.PictureRecords = 0;
    std::string_view text = drawing.PictureString;
    // The end of a section's head that was kept with it.
    constexpr std::string_view HeadEnd = "\r\n///";
    if (const auto head = text.find(HeadEnd); head != std::string_view::npos) {
        text.remove_prefix(head + HeadEnd.size());
    }
    if (text.empty()) return;
    const Short count = countLines(text);
    const std::optional<TextForm> form = textForm(text, platform.DecimalComma());
    if (!form) return refuse(drawing, platform, "Could not parse pictures.");
    std::optional<PictureFolder> folder;
    if (known.empty()) {
        folder = PictureFolder::find(*platform.files, drawing.PictureParentFolder,
                                     drawing.PictureFolderName);
        if (!folder)
            return platform.tell(
                "Picture files could not be found. Associated picture folder is missing.");
    }
    if (form->oldForm) return;
    int missing = 0;
    Lines lines(text);
    for (Short index = 0; index < count; ++index) {
        const std::string_view line = *lines.next();
        if (line.empty()) continue;
        Fields fields(line, form->separator);
        const std::string_view name = fields.next();
        std::optional<std::string> path;
        if (const auto found = known.find(name); found != known.end())
            path = found->second;
        else if (folder)
            path = folder->pathOf(name);
        if (!path) {
            ++missing;
            continue;
        }
        try {
            drawing.PictureTable.push_back(readPicture(fields, name, std::move(*path)));
        } catch (const Failure& failure) {
            throw inLine(failure, index);
        }
        drawing.PictureRecords = ++drawing.PictureCount;
    }
    tellMissing(platform, missing);
}

// What could be read until a failure stays.
template <class Read>
void readGuarded(Drawing& drawing, const Platform& platform, std::string_view description,
                 const Read& read) {
    if (!platform.attempt(description, read)) drawing.ReadIncomplete = true;
}

}  // namespace

void ParseDeviceString(Drawing& drawing, const Platform& platform) {
    readGuarded(drawing, platform, "Parse Device String", [&] { readDevices(drawing, platform); });
}

void ParseLabelString(Drawing& drawing, const Platform& platform) {
    readGuarded(drawing, platform, "Parse Label String", [&] { readLabels(drawing, platform); });
}

void ParsePictureString(Drawing& drawing, const Platform& platform, const PicturePaths& known) {
    readGuarded(drawing, platform, "Parse Picture String",
                [&] { readPictures(drawing, platform, known); });
}

}  // namespace ladrix
