// A drawing on a page of paper, a PDF, an SVG or a bitmap: the tables replayed at the page's own
// scale, devices first, then pictures, then labels.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/Drawing.h"
#include "document/PageLayout.h"
#include "platform/PageFiles.h"
#include "symbols/DrawDevice.h"

namespace ladrix {

// Nothing is recorded; tables and parameter block stay as they are. A picture that cannot be loaded
// is left out and told in the result's text, one line each ("" when all is drawn). A page that
// fails at a text or a picture throws.
std::string replayPage(Page& page, Symbols& symbols, Drawing& drawing, const Platform& platform);

// The drawing as a page to make a file of. `leftOut` takes what replayPage tells when it is
// painted; all arguments must live until then.
PageContent drawingPage(Symbols& symbols, Drawing& drawing, const Platform& platform, PageSize size,
                        std::string& leftOut);

// By the name's ending, in any case: .pdf, .svg, .png, .bmp.
std::optional<PageFormat> pageFormatOf(std::string_view fileName);

}  // namespace ladrix
