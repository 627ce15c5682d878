// Pages as PDF, SVG and pictures: what the seam's PageFiles promises.
#pragma once

#include <QByteArray>
#include <QImage>

#include "platform/PageFiles.h"

class QPdfWriter;

namespace ladrix {

class QtPageFiles final : public PageFiles {
  public:
    // PDF and SVG are exactly of the page's size and keep text as text; a PDF has its fonts
    // embedded, an SVG names others that may stand in. Pictures are white behind the drawing and
    // have at most LargestImage pixels.
    std::string make(const PageContent& content, PageFormat format, double pixelsPerInch) override;
};

// Before anything is painted: pages of this size without margins, PdfUnitsPerInch.
void setUpPdf(QPdfWriter& writer, QSizeF inches, std::string_view title);

// The PDF engine rounds pages to whole points; this gives every page of the file the exact size.
// Throws a Failure if the bytes are no PDF of such pages.
void setExactPageSize(QByteArray& pdf, QSizeF inches);

// White, of so many pixels, rounded, at this resolution. Throws a Failure if that is too large.
QImage whiteImage(double width, double height, double pixelsPerInch);

std::string encodedImage(const QImage& image, PageFormat format);  // Png or Bmp

constexpr double PenUnitsPerInch = 96;  // a DrawWidth of 1 on an exported page
constexpr int PdfUnitsPerInch = 1200;

}  // namespace ladrix
