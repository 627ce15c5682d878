// A page as the bytes of a file. What is on it is painted by a function, so that drawings,
// galleries and whatever comes later share the formats.
#pragma once

#include <functional>
#include <string>

#include "platform/Surface.h"

namespace ladrix {

struct PageContent {
    double width = 0, height = 0;  // inches
    std::string title;
    std::function<void(Page&)> paint;
};

enum class PageFormat { Pdf, Svg, Png, Bmp };

constexpr double DefaultPixelsPerInch = 96;

class PageFiles {
  public:
    virtual ~PageFiles() = default;
    // The scale counts for PNG and BMP alone. Throws a Failure when the page is too large or the
    // format cannot be written.
    virtual std::string make(const PageContent& content, PageFormat format,
                             double pixelsPerInch = DefaultPixelsPerInch) = 0;
};

}  // namespace ladrix
