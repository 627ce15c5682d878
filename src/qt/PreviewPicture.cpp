#include "qt/PreviewPicture.h"

#include <QPainter>

#include "qt/PageFile.h"
#include "qt/QtPrinters.h"

namespace ladrix {

namespace {

constexpr double ThinnestPen = 0.75;  // pixels of the usual line, so that a small page is legible

class PicturePrinter final : public PrinterPage {
  public:
    PicturePrinter(QImage& image, const PaperArea& area, double pixelsPerInch)
        : PrinterPage(Medium::Raster), image_(image), area_(area) {
        unitsPerInch_ = pixelsPerInch;
        leastDot_ = ThinnestPen / DefaultLineWeight;
    }

    bool StartDoc(const PrintDocument&) override { return true; }
    std::string DeviceName() const override { return "Preview"; }
    void NewPage() override {}
    std::string EndDoc() override {
        flush();
        painter_.end();
        return {};
    }
    void Abandon() override {}

  protected:
    PaperArea area() const override { return area_; }
    QPainter& begin() override {
        if (!painter_.isActive()) painter_.begin(&image_);
        return painter_;
    }

  private:
    QImage& image_;
    QPainter painter_;
    PaperArea area_;
};

}  // namespace

QImage previewPicture(Editor& editor, Short lineWeight, const PaperArea& area,
                      double pixelsPerInch) {
    QImage image = whiteImage(area.paper.width() * pixelsPerInch,
                              area.paper.height() * pixelsPerInch, pixelsPerInch);
    PicturePrinter printer(image, area, pixelsPerInch);
    printer.SetScaleWidth(editor.PageWidth);
    printer.SetScaleHeight(editor.PageHeight);
    printPage(editor, printer, lineWeight, {});
    printer.EndDoc();
    return image;
}

PaperArea previewArea(const Editor& editor) {
    const QSizeF page(static_cast<double>(editor.PageWidth),
                      static_cast<double>(editor.PageHeight));
    const Paper paper = paperFor(editor.drawing.PageLayoutKey);
    const auto* printer = dynamic_cast<QtPrinter*>(&editor.platform.printers->current());
    if (!printer) return {page, QRectF(QPointF(), page)};
    return printer->areaFor(paper.PaperSize, paper.Orientation, page);
}

}  // namespace ladrix
