#include "output/Gallery.h"

#include <algorithm>

#include "symbols/DeviceNames.h"

namespace ladrix {

namespace {

// Inches.
constexpr Single Margin = 0.5f;
constexpr Single CellWidth = 1.6f;
constexpr Single CellHeight = 1.55f;
constexpr Single NameHeight = 0.35f;  // at the foot of a cell
constexpr Single CellPadding = 0.12f;
constexpr Single HeadingHeight = 0.5f;
constexpr Single SectionGap = 0.35f;
constexpr Single DotRadius = 0.022f;
constexpr int Columns = 10;

constexpr Long FrameColor = RGB(214, 218, 224);
constexpr Long DotColor = RGB(217, 48, 37);
constexpr Long CaptionColor = RGB(60, 64, 72);
constexpr Long NoteColor = RGB(128, 134, 144);

// Free shapes have no artwork of their own: these stand for them. The directions of arcs are shown
// like orientations.
std::vector<Device> freeShapeSamples(std::string_view name) {
    Device device;
    device.name = name;
    if (name == "InsertSavedLine" || name == "InsertSavedSquare") {
        device.x2 = 0.75f;
        device.y2 = 0.5f;
        return {device};
    }
    if (isCircleName(name) || name == "InsertConnectionPoint") {
        device.radius = name == "InsertCircle" ? 0.25f : 0.0625f;
        return {device};
    }
    if (name == "InsertTestSymbol") return {device};
    std::vector<Device> samples;
    if (name != "InsertArc" && name != "InsertSemiCircle") return samples;
    device.radius = 0.25f;
    for (device.direction = 1; device.direction <= 4; ++device.direction)
        samples.push_back(device);
    return samples;
}

std::vector<Device> drawingsOf(std::string_view name) {
    const Shape* shape = findShape(name);
    if (!shape) return freeShapeSamples(name);
    std::vector<Device> drawings;
    const Short last = shape->anyOrientation ? Short{1} : MaxOrientations;
    for (Short orientation = 0; orientation < last; ++orientation) {
        if (shape->primitives(orientation).empty()) continue;
        Device device;
        device.name = name;
        device.orientation = orientation;
        drawings.push_back(device);
    }
    return drawings;
}

// Of the drawing at scale 1, its insertion point at (0, 0).
Extent extentOf(const Device& device) {
    if (const Shape* shape = findShape(device.name)) return shape->extent(device.orientation);
    if (device.name == "InsertTestSymbol") return {0, 0, 0.5f, 0.5f};
    if (device.name == "InsertCircle") return {0, -device.radius, 2 * device.radius, device.radius};
    DeviceTable table;
    table.append(device);
    return deviceExtent(table, 0);
}

// Centres the device in the room above its name.
void place(Device& device, Single cellX, Single cellY) {
    const Single roomX = CellWidth - 2 * CellPadding;
    const Single roomY = CellHeight - NameHeight - 2 * CellPadding;
    const Extent extent = extentOf(device);
    const Single scale = std::min({Single{1}, roomX / extent.width(), roomY / extent.height()});
    device.scaleX = device.scaleY = scale;
    device.x = cellX + CellWidth / 2 - scale * (extent.left + extent.right) / 2;
    device.y = cellY + CellPadding + roomY / 2 - scale * (extent.top + extent.bottom) / 2;
    device.x2 += device.x;
    device.y2 += device.y;
}

// Fills a sheet from the upper left; a frame that does not fit its row begins the next one.
class SheetFlow {
  public:
    explicit SheetFlow(GallerySheet& sheet) : sheet_(sheet) {
        sheet_.cellWidth = CellWidth;
        sheet_.width = 2 * Margin + Columns * CellWidth;
    }

    void heading(std::string text) {
        endRow();
        if (!sheet_.headings.empty()) y_ += SectionGap;
        sheet_.headings.push_back({std::move(text), Margin, y_});
        y_ += HeadingHeight;
    }

    void frame(std::string_view name, std::vector<Device> drawings) {
        const int count = std::max(1, static_cast<int>(drawings.size()));
        if (column_ + count > Columns) endRow();
        const Single left = Margin + static_cast<Single>(column_) * CellWidth;
        GalleryFrame frame;
        frame.name = name;
        frame.place = {left, y_, left + static_cast<Single>(count) * CellWidth, y_ + CellHeight};
        frame.first = sheet_.devices.DeviceCount;
        frame.count = static_cast<Short>(drawings.size());
        Single x = left;
        for (Device& device : drawings) {
            place(device, x, y_);
            sheet_.devices.append(std::move(device));
            x += CellWidth;
        }
        sheet_.frames.push_back(frame);
        column_ += count;
    }

    void finish() {
        endRow();
        sheet_.height = y_ + Margin;
    }

  private:
    void endRow() {
        if (column_ == 0) return;
        column_ = 0;
        y_ += CellHeight;
    }

    GallerySheet& sheet_;
    Single y_ = Margin;
    int column_ = 0;
};

void drawCentred(Page& page, const Platform& platform, std::string_view text, FontSpec font,
                 Single middle, Single y, Single room, Long color) {
    Single width = platform.fonts->textWidth(font, text);
    if (width > room) {
        font.size *= room / width;
        width = room;
    }
    page.Text(middle - width / 2, y, font, text, color);
}

void drawNames(Page& page, const Platform& platform, const GallerySheet& sheet,
               const GalleryFrame& frame) {
    const FontSpec nameFont{"Arial", 7.5f, false, false};
    const FontSpec noteFont{"Arial", 6, false, false};
    const Single y = frame.place.bottom - NameHeight;
    const Single room = sheet.cellWidth - CellPadding;
    for (int cell = 0; cell < std::max<int>(1, frame.count); ++cell) {
        const Single middle =
            frame.place.left + (static_cast<Single>(cell) + 0.5f) * sheet.cellWidth;
        drawCentred(page, platform, frame.name, nameFont, middle, y, room, CaptionColor);
        if (frame.count == 0)
            drawCentred(page, platform, "no drawing", noteFont, middle, y + 0.14f, room, NoteColor);
        if (frame.count < 2) continue;
        const auto row = static_cast<std::size_t>(frame.first + cell);
        const Short direction = sheet.devices.DeviceDirection[row];
        const std::string note =
            direction != 0 ? "direction " + std::to_string(direction)
                           : "orientation " + std::to_string(sheet.devices.DeviceOrientation[row]);
        drawCentred(page, platform, note, noteFont, middle, y + 0.14f, room, NoteColor);
    }
}

void drawDot(Page& page, Single x, Single y) {
    page.FillStyle = 0;
    page.FillColor = DotColor;
    page.Circle(x, y, DotRadius, DotColor, 1);
    page.FillStyle = 1;
    page.FillColor = Black;
}

}  // namespace

std::string_view libraryTitle(Library library) {
    switch (library) {
        case Library::Common:
            return "Common";
        case Library::NEMA:
            return "NEMA";
        case Library::IEC:
            return "IEC";
        case Library::Electronic:
            return "Electronic";
        case Library::FluidPower:
            return "Fluid power";
    }
    return "";
}

GallerySheet gallerySheet(Library library) {
    GallerySheet sheet;
    SheetFlow flow(sheet);
    for (const bool firstGeneration : {false, true}) {
        bool headed = false;
        for (const DeviceName& entry : deviceNames()) {
            if (entry.library != library || entry.firstGeneration != firstGeneration) continue;
            if (!headed)
                flow.heading(std::string(libraryTitle(library)) +
                             (firstGeneration ? " symbols, first generation" : " symbols"));
            headed = true;
            flow.frame(entry.name, drawingsOf(entry.name));
        }
    }
    flow.finish();
    return sheet;
}

void drawGallery(Page& page, Symbols& symbols, const Platform& platform,
                 const GallerySheet& sheet) {
    for (const GalleryHeading& heading : sheet.headings)
        page.Text(heading.x, heading.y, {"Arial", 16, true, false}, heading.text, CaptionColor);
    for (const GalleryFrame& frame : sheet.frames)
        page.Line(frame.place.left, frame.place.top, frame.place.right, frame.place.bottom,
                  FrameColor, LineForm::Box);
    Drawing drawing;  // none is open: the sheet's rows are drawn, not recorded
    for (Short i = 0; i < sheet.devices.DeviceCount; ++i) {
        const auto row = static_cast<std::size_t>(i);
        drawRow(symbols, drawing, platform, page, sheet.devices, i, Black);
        drawDot(page, sheet.devices.DeviceX[row], sheet.devices.DeviceY[row]);
    }
    for (const GalleryFrame& frame : sheet.frames)
        drawNames(page, platform, sheet, frame);
}

}  // namespace ladrix
