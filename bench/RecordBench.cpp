// Recording, writing and parsing the records of the largest drawing, each beside a bare loop over
// the same fields; and what one placement costs in a large drawing beside a small one.
#include <charconv>
#include <cmath>
#include <cstring>

#include "EditorWindow.h"
#include "FullDrawing.h"
#include "Measure.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/labels/Labels.h"
#include "canvas/tools/Tools.h"
#include "canvas/view/Painting.h"
#include "document/Records.h"

namespace {

using namespace ladrix;
using namespace ladrix::bench;

constexpr int Rounds = 25;
constexpr double LoopLimit = 2;

// The fields of an ordinary record in plain columns.
struct Columns {
    std::vector<std::string> name, tag;
    std::vector<float> x, y, scaleX, scaleY;
    std::vector<int> color, orientation;
    std::vector<char> flip;

    void resize(std::size_t count) {
        name.resize(count), tag.resize(count), flip.resize(count);
        x.resize(count), y.resize(count), scaleX.resize(count), scaleY.resize(count);
        color.resize(count), orientation.resize(count);
    }
    void append(const Device& device) {
        name.push_back(device.name), tag.push_back(device.widthTag), flip.push_back(device.flip);
        x.push_back(device.x), y.push_back(device.y);
        scaleX.push_back(device.scaleX), scaleY.push_back(device.scaleY);
        color.push_back(device.color), orientation.push_back(device.orientation);
    }
};

template <class Number>
void writeBare(std::string& text, Number value) {
    char digits[32];
    text += FieldSeparator;
    text.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

void writeBare(std::string& text, const Device& device) {
    text += device.name;
    writeBare(text, device.x);
    writeBare(text, device.y);
    writeBare(text, device.color);
    text += FieldSeparator;
    text += device.widthTag;
    writeBare(text, device.scaleX);
    writeBare(text, device.scaleY);
    writeBare(text, device.orientation);
    text += FieldSeparator;
    text += device.flip ? "True" : "False";
    text += "\r\n";
}

// Goes through a master text field by field.
class BareReader {
  public:
    explicit BareReader(const std::string& text)
        : at_(text.data()), end_(text.data() + text.size()) {}

    bool atEnd() const { return at_ == end_; }
    std::string_view word(char separator = FieldSeparator) {
        const auto length = static_cast<std::size_t>(end_ - at_);
        const char* const stop = static_cast<const char*>(std::memchr(at_, separator, length));
        const std::string_view word(at_, static_cast<std::size_t>(stop - at_));
        at_ = stop + 1;
        return word;
    }
    template <class Number>
    void number(Number& value) {
        at_ = std::from_chars(at_, end_, value).ptr + 1;
    }
    void lineFeed() { ++at_; }

  private:
    const char *at_, *end_;
};

std::size_t parseBare(const std::string& text, Columns& columns) {
    std::size_t i = 0;
    for (BareReader reader(text); !reader.atEnd(); ++i) {
        columns.name[i] = reader.word();
        reader.number(columns.x[i]);
        reader.number(columns.y[i]);
        reader.number(columns.color[i]);
        columns.tag[i] = reader.word();
        reader.number(columns.scaleX[i]);
        reader.number(columns.scaleY[i]);
        reader.number(columns.orientation[i]);
        columns.flip[i] = reader.word('\r') == "True";
        reader.lineFeed();
    }
    return i;
}

// Places on the snap grid, as most are, or anywhere.
enum class Places { OnGrid, Anywhere };

std::vector<Device> devicesAt(Places places) {
    const DeviceTable table = fullTable(symbolsOfEight(Outlines::Lines), LargestCount, 16.5, 10.5);
    std::vector<Device> devices;
    for (Short i = 0; i < LargestCount; ++i) {
        Device device = table.row(i);
        if (places == Places::OnGrid) {
            device.x = std::round(device.x * 8) / 8 + 0.125f;
            device.y = std::round(device.y * 8) / 8;
        }
        devices.push_back(device);
    }
    return devices;
}

void require(bool good, const char* what) {
    if (!good) throw std::runtime_error(what);
}

void compareRecords(const Platform& platform, Places places) {
    const std::string where = places == Places::OnGrid ? ", on the grid" : ", anywhere";
    const std::vector<Device> devices = devicesAt(places);
    Drawing drawing;
    std::string bareText;
    const auto recordAll = [&] {
        drawing = {};
        for (Device device : devices)
            RecordDevice(drawing, platform, device);
    };
    const auto recordAllBare = [&] {
        Columns columns;
        std::string text;
        for (const Device& device : devices) {
            columns.append(device);
            writeBare(text, device);
        }
        bareText = std::move(text);
    };
    printLine("record" + where, byTurns(Rounds, recordAll, recordAllBare), LoopLimit);
    require(drawing.devices.DeviceCount == LargestCount, "not all devices were recorded");

    const auto writeAllBare = [&] {
        std::string text;
        for (const Device& device : devices)
            writeBare(text, device);
        bareText = std::move(text);
    };
    const std::string recorded = drawing.DeviceString;
    const auto writeAll = [&] { RebuildDeviceString(drawing, platform); };
    printLine("write" + where, byTurns(Rounds, writeAll, writeAllBare), LoopLimit);
    require(drawing.DeviceString == recorded, "the records differ from those recorded");

    Columns columns;
    std::size_t parsed = 0;
    const auto parseAllBare = [&] {
        columns.resize(0);
        columns.resize(devices.size());
        parsed = parseBare(recorded, columns);
    };
    const auto parseAll = [&] { ParseDeviceString(drawing, platform); };
    printLine("parse" + where, byTurns(Rounds, parseAll, parseAllBare), LoopLimit);
    require(parsed == devices.size() && drawing.devices.DeviceCount == LargestCount &&
                columns.x.back() == drawing.devices.DeviceX.back(),
            "the two parses differ");
}

enum class Labels { None, OfThePlaced, OfEachDevice };

// A placement as a click makes it, the crash copy aside, up to what the window then shows; its
// frame is not painted.
class Placements {
  public:
    static constexpr int WarmUp = 20, Batch = 80;

    Placements(EditorWindow& editorWindow, Labels labels, Short count) : window_(editorWindow) {
        Drawing& drawing = window_.editor().drawing;
        ClearTables(drawing);
        drawing.AttachLabels = labels != Labels::None;
        drawing.devices = fullTable(symbolsOfEight(Outlines::Lines), count, 5, 5);
        RebuildDeviceString(drawing, window_.machine.platform);
        if (labels == Labels::OfEachDevice) {
            for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
                drawing.labels.append({.text = "CR",
                                       .x = drawing.devices.DeviceX[i],
                                       .y = drawing.devices.DeviceY[i],
                                       .fontName = "Arial",
                                       .fontSize = 8});
            RebuildLabelString(drawing, window_.machine.platform);
        }
        start_ = drawing;
    }

    // Takes back what the former batch has placed, takes the tool, and then measures.
    double batch() {
        Editor& editor = window_.editor();
        ResetEditor(editor);
        editor.drawing = start_;
        RedrawDrawing(editor);
        cmdSym_Click(editor, contactButton());
        window_.showAll();
        place(WarmUp);
        const double time = milliseconds([&] { place(Batch); });
        require(editor.drawing.devices.DeviceCount == start_.devices.DeviceCount + WarmUp + Batch,
                "the placements were not recorded");
        return time / Batch;
    }

  private:
    void place(int count) {
        for (int i = 0; i < count; ++i)
            placeOne(1 + 0.05f * static_cast<Single>(i));
    }
    void placeOne(Single x) {
        Editor& editor = window_.editor();
        keepLabelEdit(editor);
        refreshToolName(editor);
        editor.drawing.LabelPending = false;
        fillToolBlock(editor, x, 1, editor.CurrentColor);
        editor.platform.picLX->AutoRedraw = true;
        DrawDevice(editor.symbols, editor.drawing, editor.platform);
        window_.window->refresh();
    }

    Short contactButton() {
        const auto& buttons = window_.editor().form.cmdSym;
        for (std::size_t i = 0; i < buttons.size(); ++i)
            if (buttons[i].Tag == "Normally Open Contact") return static_cast<Short>(i);
        throw std::runtime_error("no button of a contact");
    }

    EditorWindow& window_;
    Drawing start_;
};

void comparePlacements(EditorWindow& window, const std::string& title, Labels labels) {
    std::vector<double> few, many;
    Placements small(window, labels, 100), large(window, labels, 30000);
    for (int round = 0; round <= Rounds; ++round) {
        const double ofSmall = small.batch(), ofLarge = large.batch();
        if (round == 0) continue;
        few.push_back(ofSmall);
        many.push_back(ofLarge);
    }
    printLine(title, {median(many), median(few)}, 1.15);
}

}  // namespace

int main(int argc, char** argv) {
    chooseDisplay();
    try {
        EditorWindow window(argc, argv);
        printHeading("32,767 records beside bare to_chars and from_chars loops, ms");
        compareRecords(window.machine.platform, Places::OnGrid);
        compareRecords(window.machine.platform, Places::Anywhere);
        printHeading("One placement at 30,000 devices beside one at 100, ms");
        comparePlacements(window, "a contact", Labels::None);
        comparePlacements(window, "a contact with its label", Labels::OfThePlaced);
        comparePlacements(window, "the same where every device has one", Labels::OfEachDevice);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "RecordBench: %s\n", error.what());
        return 1;
    }
    return 0;
}
