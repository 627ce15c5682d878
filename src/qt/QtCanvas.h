// The canvas picLX: the page as the viewport shows it, in two layers. The persistent one is an
// image at the screen's pixels; the temporary one is a list of what was drawn on it, painted above
// the image at each frame. Drawing on the persistent layer shows the page as it then stands: what
// the temporary layer held is gone.
//
// The canvas keeps account of what has changed on it, so that the widget repaints no more.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRegion>
#include <functional>
#include <optional>
#include <vector>

#include "canvas/state/Editor.h"
#include "qt/QtPainterPage.h"

namespace ladrix {

class QtCanvas final : public Canvas {
  public:
    // Logical pixels between the viewport's edge and the page's upper left corner.
    static constexpr int Margin = 16;

    QtCanvas();
    ~QtCanvas() override;

    // Whose page it shows; before that the page has its first size.
    void showPageOf(const Editor& editor) { editor_ = &editor; }

    // The viewport in logical pixels. The persistent layer must be drawn again from Cls on.
    void resize(QSize viewport, double pixelRatio);

    // Between inches of the page and logical pixels of the viewport.
    QPointF toPixels(double x, double y) const;
    Single inchesX(double pixel) const;
    Single inchesY(double pixel) const;
    double scale() const { return view_.scale; }

    const QImage& persistentLayer();
    void paintTemporaryLayer(QPainter& painter, const QRect& clip);
    // How a page must be set up to paint in the viewport what `clip` shows.
    PageView viewFor(const QRect& clip) const;

    // What has changed since the last call, in logical pixels.
    QRegion takeDamage();

    // Black is drawn white on a black page.
    Long ink(Long color) const { return BackColor == Black && color == Black ? White : color; }

    void Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) override;
    void Circle(Single x, Single y, Single radius, Long color, Single aspect) override;
    void Arc(Single x, Single y, Single radius, Long color, double start, double end,
             Single aspect) override;
    std::string_view Name() const override { return "picLX"; }
    Extent visible() const override { return visible_; }
    void Text(Single x, Single y, const FontSpec& font, std::string_view text, Long color) override;
    void PaintPicture(const Picture& picture, Single x, Single y, Single width,
                      Single height) override;
    void Cls() override;
    void repaint(const Extent& place, const std::function<void()>& paint) override;
    void SetScale(Single left, Single top, Single zoom) override;
    std::string Image(Single width, Single height, const std::function<void()>& paint) override;

    // A rectangle that surely holds the text, in logical pixels; found without laying it out.
    QRectF textBounds(Single x, Single y, double points, std::size_t length) const;

  private:
    template <class Bounds, class Draw>
    void draw(const Bounds& boundsOf, Draw primitive);
    QRectF pixelBounds(Single x1, Single y1, Single x2, Single y2) const;
    QtPainterPage* persistentPage();
    void endPainting();
    void wipeTemporaryLayer();
    void arrange();
    void beginPainting(QPainter& painter);
    QRectF wholePixels(const QRectF& rect) const;
    void paintDesk(QPainter& painter) const;

    const Editor* editor_ = nullptr;
    bool wholePage_ = false;  // the persistent layer is a page without a desk around it
    QSize viewport_;
    double pixelRatio_ = 1;
    Single scaleLeft_ = 0, scaleTop_ = 0, zoom_ = 1;
    PageView view_;
    Extent visible_ = Extent::everything();
    std::optional<QRectF> place_;  // the persistent layer changes nowhere else; logical pixels

    QImage image_;
    QPainter painter_;
    QtPainterPage page_{"picLX"};
    QtPainterPage overlay_{"picLX"};
    std::vector<std::function<void(QtPainterPage&)>> temporary_;

    QRectF temporaryBounds_, wipedBounds_, persistentDamage_;
    bool temporaryGrown_ = false, allDamaged_ = false;
};

}  // namespace ladrix
