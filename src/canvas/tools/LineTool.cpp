#include "canvas/tools/LineTool.h"

#include <cmath>
#include <vector>

#include "canvas/view/Painting.h"

namespace ladrix {

namespace {

struct Segment {
    Single x, y, x2, y2;
};

// Of a line on an axis the lower coordinate comes first.
Segment normalised(Segment s) {
    if (s.x == s.x2 && s.y > s.y2) std::swap(s.y, s.y2);
    if (s.y == s.y2 && s.x > s.x2) std::swap(s.x, s.x2);
    return s;
}

// Dashes of `length` with gaps of `length`, from the start on; a shorter remainder is left out.
std::vector<Segment> dashesOf(const Segment& line, Single length) {
    std::vector<Segment> dashes;
    const Single dx = line.x2 - line.x, dy = line.y2 - line.y;
    const Single whole = std::sqrt(dx * dx + dy * dy);
    if (!(length >= LeastDashSpacing) || whole == 0) return dashes;
    const Single unitX = dx / whole, unitY = dy / whole;
    for (Single from = 0; whole - length > from; from += 2 * length)
        dashes.push_back({line.x + unitX * from, line.y + unitY * from,
                          line.x + unitX * (from + length), line.y + unitY * (from + length)});
    return dashes;
}

// False if the table is full: the line is drawn, but recorded nowhere.
bool drawAndRecord(Editor& editor, std::string_view name, const Segment& s, Long color,
                   std::string_view tag) {
    DeviceBlock& block = editor.symbols.block;
    block.obj = editor.platform.picLX;
    block.CurDevice = name;
    block.CurX = s.x;
    block.CurY = s.y;
    block.CurX2 = s.x2;
    block.CurY2 = s.y2;
    block.CurColor = color;
    block.CurWidthTag = tag;
    DrawDevice(editor.symbols, editor.drawing, editor.platform);
    Device device;
    device.name = name;
    device.x = s.x;
    device.y = s.y;
    device.x2 = s.x2;
    device.y2 = s.y2;
    device.color = color;
    device.widthTag = tag;
    const Short before = editor.drawing.devices.DeviceCount;
    RecordDevice(editor.drawing, editor.platform, device);
    return editor.drawing.devices.DeviceCount > before;
}

bool takesStart(Editor& editor) {
    if (editor.gesture.LineStartX != NoPoint) return false;
    editor.gesture.LineStartX = editor.SnapX;
    editor.gesture.LineStartY = editor.SnapY;
    return true;
}

Segment fromStartToSnap(Editor& editor) {
    editor.gesture.LineEndX = editor.SnapX;
    editor.gesture.LineEndY = editor.SnapY;
    wipeTemporaryGraphics(editor);
    return {editor.gesture.LineStartX, editor.gesture.LineStartY, editor.gesture.LineEndX,
            editor.gesture.LineEndY};
}

}  // namespace

void InsertSavedLine(Editor& editor, Long color, std::string_view widthTag) {
    if (takesStart(editor)) return;
    const Segment line = fromStartToSnap(editor);
    editor.drawing.DashesCounted = 0;
    editor.drawing.DashedLine = editor.gesture.DashedMode != 0;
    if (editor.drawing.DashedLine) {
        for (const Segment& dash : dashesOf(line, editor.DashSpacing)) {
            ++editor.drawing.DashesCounted;
            if (!drawAndRecord(editor, "InsertSavedLine", dash, color, widthTag)) break;
        }
    } else {
        drawAndRecord(editor, "InsertSavedLine", normalised(line), color, widthTag);
    }
    editor.drawing.DashedLine = false;
    editor.gesture.LineStartX = editor.SnapX;
    editor.gesture.LineStartY = editor.SnapY;
}

void InsertSavedSquare(Editor& editor, Long color, std::string_view styleText) {
    if (takesStart(editor)) return;
    drawAndRecord(editor, "InsertSavedSquare", normalised(fromStartToSnap(editor)), color,
                  styleText);
    editor.gesture.LineStartX = NoPoint;
}

}  // namespace ladrix
