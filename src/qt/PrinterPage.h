// A printer's page on a painter: the properties, the scale and the primitives. What it is painted
// on, and where that goes, is for the classes made from it.
#pragma once

#include <QRectF>
#include <QSizeF>
#include <map>
#include <memory>

#include "platform/Printer.h"
#include "qt/QtFonts.h"
#include "qt/QtPainterPage.h"

namespace ladrix {

// Inches, as the paper lies: a landscape paper is wider than high.
struct PaperArea {
    QSizeF paper;
    QRectF printable;
};

// The portrait size of a paper code in inches; empty for an unknown one.
QSizeF paperSizeOf(Short code);

class QtPicture;

class PrinterPage : public Printer {
  public:
    explicit PrinterPage(Medium medium) : page_("Printer", medium) {}

    Short Orientation() const override { return orientation_; }
    void SetOrientation(Short orientation) override;
    Short PaperSize() const override { return paperSize_; }
    void SetPaperSize(Short code) override;
    Short ScaleMode() const override { return scaleMode_; }
    void SetScaleMode(Short mode) override;
    Single ScaleWidth() const override;
    void SetScaleWidth(Single width) override;
    Single ScaleHeight() const override;
    void SetScaleHeight(Single height) override;
    FontSpec Font() const override { return font_; }
    void SetFont(const FontSpec& font) override { font_ = font; }
    Single TextWidth(std::string_view text) override;
    Single TextHeight(std::string_view text) override;

    void PSet(Single x, Single y, Long color) override;
    void Print(std::string_view text) override;
    void Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) override;
    void Circle(Single x, Single y, Single radius, Long color, Single aspect) override;
    void Arc(Single x, Single y, Single radius, Long color, double start, double end,
             Single aspect) override;
    Extent visible() const override { return visible_; }
    void PaintPicture(const Picture& picture, Single x, Single y, Single width, Single height,
                      Long rasterMode) override;

  protected:
    // For the present properties.
    virtual PaperArea area() const = 0;
    // Called before the first primitive of a document: gives the painter of its first page.
    virtual QPainter& begin() = 0;

    // Resolution of the painter. Set before begin returns.
    double unitsPerInch_ = 72;
    double leastDot_ = 0;  // painter units of a dot where lines would else be too fine to see
    void flush() { page_.flush(); }
    void forgetPictures() { dark_.clear(); }  // at the end of a document
    void pageHasChanged() { stale_ = true; }  // the painter has a new page, or none
    bool hasUserScale() const { return scaleMode_ == UserScale; }
    QSizeF userScale() const { return {scaleWidth_, scaleHeight_}; }

  private:
    struct Scale {
        double x = 1, y = 1;  // inches of the paper to a unit
    };
    Scale scale() const;
    QtPainterPage& ready();

    QtPainterPage page_;
    QtFonts fonts_;
    Extent visible_ = Extent::everything();
    Short orientation_ = PortraitPaper, paperSize_ = 1, scaleMode_ = TwipScale;
    Single scaleWidth_ = 0, scaleHeight_ = 0;  // of the user scale
    FontSpec font_{"Arial", 8, false, false};
    bool stale_ = true;
    std::map<qint64, std::shared_ptr<const QtPicture>> dark_;  // of the document, by their images
};

}  // namespace ladrix
