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

constexpr double DefaultPixelsPerInch = 96;

// Each throws a Failure when the page is too large or the format cannot be written.
// Exactly of the page's size, one page, fonts embedded, no margins.
std::string pdfFile(const PageContent& content);
// Text stays text.
std::string svgFile(const PageContent& content);
enum class BitmapFormat { Png, Bmp };
// White behind the drawing; at most LargestImage pixels.
std::string bitmapFile(const PageContent& content, BitmapFormat format, double pixelsPerInch);

}  // namespace ladrix
