// A sheet of every symbol of a library in every orientation, first-generation ones at its end, each
// with its name and a small dot at its insertion point.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "document/Tables.h"
#include "platform/Platform.h"
#include "symbols/DrawDevice.h"

namespace ladrix {

// The orientations of one symbol stand side by side in one frame.
struct GalleryFrame {
    std::string_view name;
    Extent place;                // inches of the sheet
    Short first = 0, count = 0;  // rows of the sheet's devices, one cell each, from the left
};

struct GalleryHeading {
    std::string text;
    Single x = 0, y = 0;
};

struct GallerySheet {
    Single width = 0, height = 0;  // inches
    Single cellWidth = 0;
    std::vector<GalleryHeading> headings;
    std::vector<GalleryFrame> frames;
    DeviceTable devices;  // placed in the middle of their cells, smaller only where they must be
};

std::string_view libraryTitle(Library library);

GallerySheet gallerySheet(Library library);

void drawGallery(Page& page, Symbols& symbols, const Platform& platform, const GallerySheet& sheet);

}  // namespace ladrix
