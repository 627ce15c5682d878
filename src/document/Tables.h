// A drawing's three tables as parallel columns. There is no object for an item: row i is the i-th
// value of each column. Coordinates are inches of the page, angles radians.
//
// The same types serve the drawing, the copy buffer and the collected items of a user symbol.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Types.h"

namespace ladrix {

// The most rows that a table holds.
constexpr Short LargestCount = std::numeric_limits<Short>::max();

// One row of the device table, as it is recorded, copied or moved between tables.
struct Device {
    std::string name{};
    Single x = 0, y = 0;    // insertion point; first corner of a free line or square
    Single x2 = 0, y2 = 0;  // second corner of a free line or square
    Single radius = 0;      // circles and arcs
    Short direction = 0;    // 1 left, 2 right, 3 up, 4 down; arcs and semicircles
    Long color = Black;
    std::string widthTag{};  // "DrawWidth=2": twice the base width
    Single aspect = 0;       // height to width of an ellipse
    Single startAngle = 0, endAngle = 0;
    Single scaleX = 0, scaleY = 0;
    Short orientation = 0;
    bool flip = false;
};

struct DeviceTable {
    Short DeviceCount = 0;
    std::vector<std::string> DeviceName;
    std::vector<Single> DeviceX, DeviceY, DeviceX2, DeviceY2;
    std::vector<Single> DeviceRadius;
    std::vector<Short> DeviceDirection;
    std::vector<Long> DeviceColor;
    std::vector<std::string> DeviceWidthTag;
    std::vector<Single> DeviceAspect, DeviceStartAngle, DeviceEndAngle;
    std::vector<Single> DeviceScaleX, DeviceScaleY;
    std::vector<Short> DeviceOrientation;
    std::vector<bool> DeviceFlip;
    std::vector<Short> DeviceSelected;  // not in the record

    void clear();
    void resize(Short count);  // keeps the contents of the rows that stay
    Device row(Short index) const;
    void setRow(Short index, const Device& device);
    // Adds a row that is not selected. Throws Failure 6 when the count is 32,767.
    void append(const Device& device);
    void eraseSelected();  // order of the rest is kept
};

struct Label {
    std::string text{};
    Single x = 0, y = 0;  // upper left corner
    Long color = Black;
    std::string fontName{};
    Single fontSize = 0;  // points
    bool bold = false, italic = false;
};

struct LabelTable {
    Short LabelCount = 0;
    std::vector<std::string> LabelText;
    std::vector<Single> LabelX, LabelY;
    std::vector<Long> LabelColor;
    std::vector<std::string> LabelFontName;
    std::vector<Single> LabelFontSize;
    std::vector<bool> LabelBold, LabelItalic;
    std::vector<Short> LabelSelected;  // not in the record

    void clear();
    void resize(Short count);
    Label row(Short index) const;
    void setRow(Short index, const Label& label);
    void append(const Label& label);
    void eraseSelected();
};

struct PictureRow {
    Single Left = 0, Top = 0, Width = 0, Height = 0;  // inches
    std::string FileName;                             // bare name
    std::string FullPath;                             // where the picture came from
    bool Selected = false;
};

// The lines of a table's master text: record i is the text between two offsets, CR LF left out.
struct RecordOffsets {
    std::vector<std::size_t> start;  // one per record
    // The text was written from rows, not read: it is of the present form and holds these records
    // alone, so that one more may follow them.
    bool written = false;

    void clear() { *this = {}; }
    std::string_view record(std::string_view master, std::size_t index) const;
};

}  // namespace ladrix
