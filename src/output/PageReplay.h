// A drawing on a page of paper, a PDF, an SVG or a bitmap: the tables replayed at the page's own
// scale, devices first, then pictures, then labels.
#pragma once

#include <string_view>

#include "document/Drawing.h"
#include "platform/Surface.h"
#include "symbols/DrawDevice.h"

namespace ladrix {

// Nothing is recorded; the drawing's tables stay as they are. A picture that cannot be loaded is
// left out and told in the result's text ("" when all is drawn). A failing page throws.
std::string replayPage(Page& page, Symbols& symbols, Drawing& drawing, const Platform& platform);

// A sheet of every symbol of a library in every orientation, first-generation ones at its end, each
// with its name and a small dot at the insertion point.
struct GalleryCell {
    std::string_view name;
    Short orientation = 0;
    Single x = 0, y = 0;  // upper left corner of the cell, inches
    Single insertionX = 0, insertionY = 0;
    Single scale = 1;
};
struct GallerySheet {
    Single width = 0, height = 0, cellWidth = 0, cellHeight = 0;  // inches
    std::vector<GalleryCell> cells;
};
GallerySheet gallerySheet(Library library);
void drawGallery(Page& page, const GallerySheet& sheet);

}  // namespace ladrix
