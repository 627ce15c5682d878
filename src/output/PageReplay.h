// A drawing on a page of paper, a PDF, an SVG or a bitmap: the tables replayed at the page's own
// scale, devices first, then pictures, then labels.
#pragma once

#include <string>

#include "document/Drawing.h"
#include "platform/Surface.h"
#include "symbols/DrawDevice.h"

namespace ladrix {

// Nothing is recorded; tables and parameter block stay as they are. A picture that cannot be loaded
// is left out and told in the result's text, one line each ("" when all is drawn). A page that
// fails at a text or a picture throws.
std::string replayPage(Page& page, Symbols& symbols, Drawing& drawing, const Platform& platform);

}  // namespace ladrix
