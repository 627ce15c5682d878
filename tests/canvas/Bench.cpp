#include "Bench.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "canvas/file/DrawingCommands.h"
#include "canvas/gestures/Keys.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/labels/Labels.h"
#include "canvas/tools/PaletteButtons.h"
#include "canvas/tools/Tools.h"
#include "canvas/view/Painting.h"
#include "document/Records.h"

namespace ladrix::test {

namespace {

std::vector<std::string> linesOf(std::string_view master) {
    std::vector<std::string> lines;
    while (!master.empty()) {
        const std::size_t end = master.find("\r\n");
        if (end == std::string_view::npos) throw std::logic_error("A record without line end");
        std::string record(master.substr(0, end));
        std::replace(record.begin(), record.end(), '\xFF', '|');
        lines.push_back(std::move(record));
        master.remove_prefix(end + 2);
    }
    return lines;
}

}  // namespace

std::string line(std::string_view record) {
    std::string text(record);
    std::replace(text.begin(), text.end(), '|', '\xFF');
    return text + "\r\n";
}

Bench::Bench() {
    editor.AppFilePath = machine.folder / "program/";
    editor.UserSymbolsPath = machine.folder / "symbols/";
    editor.UserButtonsPath = machine.folder / "buttons/";
    drawing.TempFolder = editor.AppFilePath;
    drawing.CurrentFolder = machine.folder / "documents/";
    drawing.AttachLabels = false;
    drawing.TakeUndoSnapshot = [this] { ++snapshots; };
    editor.symbols.BeginLabel = [this](std::string_view prefix, Single x, Single y) {
        BeginLabel(editor, prefix, x, y);
    };
    LoadDeviceButtons(editor);
    LoadLibraryButtons(editor, Library::NEMA);
}

void Bench::step(const std::string& text) {
    std::istringstream words(text);
    std::string verb;
    words >> verb;
    if (verb == "tool") {
        std::string tag;
        std::getline(words >> std::ws, tag);
        return cmdSym_Click(editor, buttonOf(tag));
    }
    if (verb == "release") return picLX_MouseUp(editor, LeftButton, 0, 0, 0);
    Single x = 0, y = 0;
    if (!(words >> x >> y)) throw std::logic_error("Two figures are missing: " + text);
    if (verb == "key") {
        Form_KeyDown(editor, static_cast<Short>(x), static_cast<Short>(y));
        return picLX_KeyDown(editor, static_cast<Short>(x), static_cast<Short>(y));
    }
    if (verb == "drag") return picLX_MouseMove(editor, LeftButton, 0, x, y);
    if (verb == "press") return picLX_MouseDown(editor, LeftButton, 0, x, y);
    if (verb == "right") return picLX_MouseDown(editor, RightButton, 0, x, y);
    picLX_MouseMove(editor, 0, 0, x, y);
    if (verb == "move") return;
    if (verb != "click" && verb != "double") throw std::logic_error("Unknown step: " + text);
    picLX_MouseDown(editor, LeftButton, 0, x, y);
    picLX_MouseUp(editor, LeftButton, 0, x, y);
    if (verb == "double") picLX_DblClick(editor);
}

void Bench::play(std::string_view script) {
    std::istringstream steps{std::string(script)};
    for (std::string text; std::getline(steps, text, ';');)
        step(text);
}

std::vector<std::string> Bench::devices() const {
    return linesOf(drawing.DeviceString);
}

std::vector<std::string> Bench::labels() const {
    return linesOf(drawing.LabelString);
}

std::vector<std::string> Bench::boxes() const {
    std::vector<std::string> texts;
    for (const FakeDialogs::Box& box : machine.dialogs.boxes)
        texts.push_back(box.text);
    return texts;
}

std::vector<int> Bench::reports() const {
    std::vector<int> numbers;
    for (const FakePlatform::Report& report : machine.reports)
        numbers.push_back(report.number);
    return numbers;
}

Short Bench::buttonOf(std::string_view tag) const {
    const auto& places = editor.form.cmdSym;
    const auto found = std::find_if(places.begin(), places.end(),
                                    [&](const PaletteButton& place) { return place.Tag == tag; });
    if (found == places.end()) throw std::logic_error("No button: " + std::string(tag));
    return static_cast<Short>(found - places.begin());
}

PaletteButton& Bench::button(std::string_view tag) {
    return editor.form.cmdSym[static_cast<std::size_t>(buttonOf(tag))];
}

void Bench::load(std::string_view devices, std::string_view labels) {
    drawing.DeviceString = devices;
    drawing.LabelString = labels;
    ParseDeviceString(drawing, machine.platform);
    ParseLabelString(drawing, machine.platform);
    RedrawDrawing(editor);
    canvas.persistent.clear();
    canvas.persistentCls = 0;
}

void Bench::addPicture(const PictureRow& row) {
    drawing.PictureTable.push_back(row);
    ++drawing.PictureCount;
    editor.img.push_back(std::make_shared<FakePicture>(10, 20));
    RebuildPictureString(drawing, machine.platform);
}

void Bench::fillDevices(Short count) {
    drawing.devices.resize(count);
    std::fill(drawing.devices.DeviceName.begin(), drawing.devices.DeviceName.end(), "InsertGround");
    std::fill(drawing.devices.DeviceX.begin(), drawing.devices.DeviceX.end(), 1.0f);
    RebuildDeviceString(drawing, machine.platform);
}

std::string Bench::document(std::string_view name) const {
    return "documents/" + std::string(name);
}

void Bench::open(const std::string& name) {
    drawing.CurrentFileName = name;
    OpenDrawing(editor);
}

void Bench::save(const std::string& name) {
    drawing.CurrentFileName = name;
    SaveDrawing(editor);
}

void Bench::writeDocument(const std::string& name, std::string_view devices,
                          std::string_view labels, std::string_view key) const {
    machine.folder.write(document(name), std::string(key) + "\r\n\r\n" + std::string(devices) +
                                             "\r\n" + std::string(labels));
}

}  // namespace ladrix::test
