// A picture drawn in the program: icons of user symbols, previews.
#pragma once

#include <QImage>
#include <QPainter>

#include "qt/QtPainterPage.h"

namespace ladrix {

class QtPictureBox final : public PictureBox {
  public:
    // In pixels.
    explicit QtPictureBox(const QSize& size);
    ~QtPictureBox() override;

    void SetScale(Single left, Single top, Single width, Single height) override;
    void Cls() override;
    std::shared_ptr<const Picture> Image() override;

    void Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) override;
    void Circle(Single x, Single y, Single radius, Long color, Single aspect) override;
    void Arc(Single x, Single y, Single radius, Long color, double start, double end,
             Single aspect) override;
    std::string_view Name() const override { return "Picture"; }
    Extent visible() const override;
    // The size of the font follows the units, as on a page of inches.
    void Text(Single x, Single y, const FontSpec& font, std::string_view text, Long color) override;
    void PaintPicture(const Picture& picture, Single x, Single y, Single width,
                      Single height) override;

  private:
    QtPainterPage& page();
    void endPainting();

    QImage image_;
    QPainter painter_;
    QtPainterPage page_{"Picture"};
    Single left_ = 0, top_ = 0, width_, height_;
};

}  // namespace ladrix
