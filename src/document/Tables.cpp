#include "document/Tables.h"

#include <utility>

#include "document/Records.h"

namespace ladrix {

namespace {

// Every column but the selection marks, in the order of the struct.
template <class Table, class Function>
void forEachDeviceColumn(Table& table, const Function& function) {
    function(table.DeviceName);
    function(table.DeviceX);
    function(table.DeviceY);
    function(table.DeviceX2);
    function(table.DeviceY2);
    function(table.DeviceRadius);
    function(table.DeviceDirection);
    function(table.DeviceColor);
    function(table.DeviceWidthTag);
    function(table.DeviceAspect);
    function(table.DeviceStartAngle);
    function(table.DeviceEndAngle);
    function(table.DeviceScaleX);
    function(table.DeviceScaleY);
    function(table.DeviceOrientation);
    function(table.DeviceFlip);
}

template <class Table, class Function>
void forEachLabelColumn(Table& table, const Function& function) {
    function(table.LabelText);
    function(table.LabelX);
    function(table.LabelY);
    function(table.LabelColor);
    function(table.LabelFontName);
    function(table.LabelFontSize);
    function(table.LabelBold);
    function(table.LabelItalic);
}

std::size_t unselected(const std::vector<Short>& selected) {
    std::size_t count = 0;
    for (const Short mark : selected)
        count += mark == 0 ? 1 : 0;
    return count;
}

// Moves the values of the rows without a mark down over the others.
template <class Column>
void closeGaps(Column& column, const std::vector<Short>& selected) {
    std::size_t kept = 0;
    for (std::size_t row = 0; row < selected.size(); ++row) {
        if (selected[row] != 0) continue;
        if (kept != row) column[kept] = std::move(column[row]);
        ++kept;
    }
}

void requireRoom(Short count) {
    if (count < LargestCount) return;
    throw Failure{failure::Overflow, "A drawing holds at most 32767 items of a kind."};
}

}  // namespace

void DeviceTable::clear() {
    resize(0);
}

void DeviceTable::resize(Short count) {
    const auto size = static_cast<std::size_t>(count);
    forEachDeviceColumn(*this, [size](auto& column) { column.resize(size); });
    DeviceSelected.resize(size);
    DeviceCount = count;
}

Device DeviceTable::row(Short index) const {
    const auto i = static_cast<std::size_t>(index);
    return {.name = DeviceName[i],
            .x = DeviceX[i],
            .y = DeviceY[i],
            .x2 = DeviceX2[i],
            .y2 = DeviceY2[i],
            .radius = DeviceRadius[i],
            .direction = DeviceDirection[i],
            .color = DeviceColor[i],
            .widthTag = DeviceWidthTag[i],
            .aspect = DeviceAspect[i],
            .startAngle = DeviceStartAngle[i],
            .endAngle = DeviceEndAngle[i],
            .scaleX = DeviceScaleX[i],
            .scaleY = DeviceScaleY[i],
            .orientation = DeviceOrientation[i],
            .flip = DeviceFlip[i]};
}

void DeviceTable::setRow(Short index, const Device& device) {
    const auto i = static_cast<std::size_t>(index);
    DeviceName[i] = device.name;
    DeviceX[i] = device.x;
    DeviceY[i] = device.y;
    DeviceX2[i] = device.x2;
    DeviceY2[i] = device.y2;
    DeviceRadius[i] = device.radius;
    DeviceDirection[i] = device.direction;
    DeviceColor[i] = device.color;
    DeviceWidthTag[i] = device.widthTag;
    DeviceAspect[i] = device.aspect;
    DeviceStartAngle[i] = device.startAngle;
    DeviceEndAngle[i] = device.endAngle;
    DeviceScaleX[i] = device.scaleX;
    DeviceScaleY[i] = device.scaleY;
    DeviceOrientation[i] = device.orientation;
    DeviceFlip[i] = device.flip;
}

void DeviceTable::append(const Device& device) {
    requireRoom(DeviceCount);
    const Short index = DeviceCount;
    resize(static_cast<Short>(index + 1));
    setRow(index, device);
    DeviceSelected[static_cast<std::size_t>(index)] = 0;
}

void DeviceTable::eraseSelected() {
    resize(DeviceCount);
    forEachDeviceColumn(*this, [this](auto& column) { closeGaps(column, DeviceSelected); });
    const std::size_t kept = unselected(DeviceSelected);
    DeviceSelected.assign(DeviceSelected.size(), 0);
    resize(static_cast<Short>(kept));
}

void LabelTable::clear() {
    resize(0);
}

void LabelTable::resize(Short count) {
    const auto size = static_cast<std::size_t>(count);
    forEachLabelColumn(*this, [size](auto& column) { column.resize(size); });
    LabelSelected.resize(size);
    LabelCount = count;
}

Label LabelTable::row(Short index) const {
    const auto i = static_cast<std::size_t>(index);
    return {.text = LabelText[i],
            .x = LabelX[i],
            .y = LabelY[i],
            .color = LabelColor[i],
            .fontName = LabelFontName[i],
            .fontSize = LabelFontSize[i],
            .bold = LabelBold[i],
            .italic = LabelItalic[i]};
}

void LabelTable::setRow(Short index, const Label& label) {
    const auto i = static_cast<std::size_t>(index);
    LabelText[i] = label.text;
    LabelX[i] = label.x;
    LabelY[i] = label.y;
    LabelColor[i] = label.color;
    LabelFontName[i] = label.fontName;
    LabelFontSize[i] = label.fontSize;
    LabelBold[i] = label.bold;
    LabelItalic[i] = label.italic;
}

void LabelTable::append(const Label& label) {
    requireRoom(LabelCount);
    const Short index = LabelCount;
    resize(static_cast<Short>(index + 1));
    setRow(index, label);
    LabelSelected[static_cast<std::size_t>(index)] = 0;
}

void LabelTable::eraseSelected() {
    resize(LabelCount);
    forEachLabelColumn(*this, [this](auto& column) { closeGaps(column, LabelSelected); });
    const std::size_t kept = unselected(LabelSelected);
    LabelSelected.assign(LabelSelected.size(), 0);
    resize(static_cast<Short>(kept));
}

std::string_view RecordOffsets::record(std::string_view master, std::size_t index) const {
    if (index >= start.size() || start[index] > master.size()) return {};
    const std::string_view rest = master.substr(start[index]);
    return rest.substr(0, rest.find(LineEnd));
}

}  // namespace ladrix
