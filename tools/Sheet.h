// A sheet on which a shipped drawing is made, by the routines that a click on the canvas ends in:
// symbols and dots through the dispatcher, wires and labels through the recorder.
#pragma once

#include <cmath>
#include <exception>
#include <initializer_list>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "ToolMachine.h"
#include "document/Drawing.h"
#include "document/DrawingFile.h"
#include "platform/DiskFiles.h"
#include "symbols/DrawDevice.h"

namespace ladrix::tools {

struct Point {
    Single x = 0, y = 0;
};

constexpr Long FrameColor = RGB(128, 128, 128);  // frame, links between blades: no conductors
constexpr Long WireNumberColor = RGB(0, 0, 160);
constexpr Long RemarkColor = RGB(96, 96, 96);
constexpr std::string_view Heavy = "DrawWidth=2";

struct TextStyle {
    Single size = 8;  // points
    bool bold = false;
    Long color = Black;
};
constexpr TextStyle Plain{};
constexpr TextStyle WireNumber{7, false, WireNumberColor};
constexpr TextStyle Remark{7, false, RemarkColor};
constexpr TextStyle Heading{10, true};
constexpr TextStyle Title{14, true};

class Sheet {
  public:
    Drawing drawing;
    Long ink = Black;  // of symbols, circles, dots and wires

    Sheet(std::string_view pageKey, std::string_view description) {
        drawing.PageLayoutKey = pageKey;
        drawing.FileDescription = description;
        symbols_.block.obj = &machine_.canvas;
        symbols_.BeginLabel = [this](std::string_view, Single x, Single y) { centred(tag_, x, y); };
    }

    // With a tag, the symbol's attached label says the tag; without one it has no label.
    void symbol(std::string_view name, Single x, Single y, std::string_view tag = {}) {
        tag_ = tag;
        drawing.AttachLabels = !tag.empty();
        place(name, x, y, 0);
    }
    // By its left end.
    void circle(Single x, Single y, Single radius) { place("InsertCircle", x, y, radius); }
    // Where conductors that meet are joined.
    void dot(Single x, Single y) { disc(x, y, DotRadius); }
    void disc(Single x, Single y, Single radius) { place("InsertSolidCircle", x, y, radius); }

    // From point to point, straight lines.
    void wire(std::initializer_list<Point> points, std::string_view widthTag = {}) {
        Point from = *points.begin();
        for (const Point& to : points) {
            if (from.x != to.x || from.y != to.y) line(from, to, ink, widthTag);
            from = to;
        }
    }
    // A line that carries no current.
    void frameLine(Point from, Point to) { line(from, to, FrameColor, {}); }
    void frame(Point corner, Point opposite) {
        record("InsertSavedSquare", corner, opposite, FrameColor, "0");
    }
    // A frame of twice the width.
    void border(Point corner, Point opposite) {
        const Point right{opposite.x, corner.y}, foot{corner.x, opposite.y};
        for (const auto& [from, to] : {std::pair{corner, right}, std::pair{right, opposite},
                                       std::pair{opposite, foot}, std::pair{foot, corner}})
            line(from, to, FrameColor, Heavy);
    }
    // The mechanical link of a switch of several poles.
    void dashedVertical(Single x, Single top, Single bottom) {
        for (int dash = 0; top + 2 * static_cast<Single>(dash) * DashLength < bottom; ++dash) {
            const Single start = top + 2 * static_cast<Single>(dash) * DashLength;
            frameLine({x, start}, {x, std::fmin(start + DashLength, bottom)});
        }
    }

    void centred(std::string_view text, Single x, Single y, const TextStyle& style = Plain) {
        const FontSpec font = fontOf(style);
        from(text, x - machine_.fonts.textWidth(font, text) / 2, y, style);
    }
    // By the middle of its left edge.
    void from(std::string_view text, Single x, Single y, const TextStyle& style = Plain) {
        const FontSpec font = fontOf(style);
        Label label;
        label.text = text;
        label.x = thousandths(x);
        label.y = thousandths(y - machine_.fonts.textHeight(font) / 2);
        label.color = style.color;
        label.fontName = font.name;
        label.fontSize = font.size;
        label.bold = font.bold;
        RecordLabel(drawing, machine_.platform, label);
    }
    // Above a horizontal wire at its middle.
    void wireNumber(std::string_view text, Single x, Single wireY) {
        centred(text, x, wireY - WireNumberHeight, WireNumber);
    }

    // False once anything could not be drawn or recorded.
    bool good() const { return !machine_.boxes.shown; }

  private:
    static constexpr Single DotRadius = 0.03125f;
    static constexpr Single DashLength = 0.0625f;
    static constexpr Single WireNumberHeight = 0.085f;

    ToolMachine machine_;
    Symbols symbols_;
    std::string tag_;

    static FontSpec fontOf(const TextStyle& style) {
        return {.name = "Arial", .size = style.size, .bold = style.bold};
    }
    static Single thousandths(Single value) { return std::round(value * 1000) / 1000; }

    void place(std::string_view name, Single x, Single y, Single radius) {
        DeviceBlock& block = symbols_.block;
        block.CurDevice = name;
        block.CurX = x;
        block.CurY = y;
        block.CurColor = ink;
        block.CurRadius = block.CurRadius2 = radius;
        block.CurAspect = 1;
        block.CurScaleX = block.CurScaleY = 1;
        DrawDevice(symbols_, drawing, machine_.platform);
        drawing.LabelPending = false;
    }
    void record(std::string_view name, Point a, Point b, Long color, std::string_view widthTag) {
        Device device;
        device.name = name;
        device.x = a.x;
        device.y = a.y;
        device.x2 = b.x;
        device.y2 = b.y;
        device.color = color;
        device.widthTag = widthTag;
        RecordDevice(drawing, machine_.platform, device);
    }
    void line(Point a, Point b, Long color, std::string_view widthTag) {
        record("InsertSavedLine", a, b, color, widthTag);
    }
};

struct SheetFile {
    std::string_view fileName, pageKey, description;
    void (*draw)(Sheet& sheet);
};

// The whole of a program that takes the output folder as its argument. The result is its exit
// status.
inline int makeSheets(std::span<const SheetFile> sheets, int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: " << argv[0] << " OUTPUT-FOLDER\n";
        return 1;
    }
    try {
        DiskFiles disk;
        Files& files = disk;
        for (const SheetFile& file : sheets) {
            Sheet sheet(file.pageKey, file.description);
            file.draw(sheet);
            if (!sheet.good()) return 1;
            files.replace(withSeparator(files, argv[1]) + std::string(file.fileName),
                          fileText(sheet.drawing));
        }
        return 0;
    } catch (const Failure& failure) {
        std::cerr << failure.text << '\n';
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
    }
    return 1;
}

}  // namespace ladrix::tools
