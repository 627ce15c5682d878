// The one drawing back end on QPainter: canvas, bitmap, printer, PDF and SVG.
//
// A raster page collects lines and flattened curves of one pen and hands them to the painter in
// one call; on a vector page every primitive becomes an object of its own and curves stay curves.
#pragma once

#include <QLineF>
#include <QPen>
#include <QRectF>
#include <optional>
#include <string>
#include <vector>

#include "platform/Surface.h"
#include "qt/CurveParts.h"
#include "qt/QtFonts.h"

class QPainter;

namespace ladrix {

class QtPicture;

// How inches of the page map to the painter's own coordinates.
struct PageView {
    double scale = 96;         // painter units to the inch of the page
    double scaleY = 0;         // the same downwards; 0: as scale
    double unitsPerInch = 0;   // of the medium, for text and dashes; 0: as scale
    double left = 0, top = 0;  // where the page's upper left corner falls
    double penUnit = 1;        // painter units to one unit of DrawWidth
    QRectF target;             // what can be seen; empty: all that the painter paints on
};

enum class Medium { Raster, Vector };

class QtPainterPage final : public Page {
  public:
    explicit QtPainterPage(std::string name, Medium medium = Medium::Raster);

    // Begins work on an active painter, or goes on with another one; what was collected for the
    // former painter must have been flushed. The page sets the painter's hints, pen and brush.
    void reset(QPainter* painter, const PageView& view);

    // Paints what has been collected. Call it before the painter is used by anyone else or ends.
    void flush();

    void Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) override;
    void Circle(Single x, Single y, Single radius, Long color, Single aspect) override;
    void Arc(Single x, Single y, Single radius, Long color, double start, double end,
             Single aspect) override;
    std::string_view Name() const override { return name_; }
    Extent visible() const override { return visible_; }
    void Text(Single x, Single y, const FontSpec& font, std::string_view text, Long color) override;
    void PaintPicture(const Picture& picture, Single x, Single y, Single width,
                      Single height) override;

  private:
    struct Pen {
        Long color = -1;
        Short width = 0, style = 0;
        friend bool operator==(const Pen&, const Pen&) = default;
    };
    struct Curve {
        Ellipse ellipse;
        Sweep sweep;
        double radius = 0;  // the longer one, in device pixels
        bool whollySeen = false;
    };
    // A curve as chords of equal angles that leave it by less than can be seen, whatever its size.
    struct Chords {
        double count = 1, step = 0;  // of the whole sweep
    };

    QPointF toPainter(Single x, Single y) const;
    QPointF penPoint(Single x, Single y) const;
    void usePen(Long color);
    QPen qtPen(Qt::PenCapStyle cap) const;
    void segment(const QLineF& line);
    QLineF onPixels(const QLineF& line) const;
    void dashes(const QLineF& line, double& phase);
    void box(const QLineF& diagonal);
    void fillBox(const QLineF& diagonal);
    std::optional<Curve> visibleCurve(Single x, Single y, Single radius, Single aspect) const;
    static Chords chordsOf(const Curve& curve);
    template <class Take>
    void eachPoint(const Curve& curve, const Sweep& part, const Take& take) const;
    std::vector<Sweep> visibleParts(const Curve& curve) const;
    void stroke(const Curve& curve);
    void strokeParts(const Curve& curve);
    void flatten(const Curve& curve);
    void fill(const Curve& curve);
    void fillPart(const Curve& curve);
    void setVectorPen(double phase);
    void paintFrame(const QtPicture& picture, Single x, Single y, Single width, Single height);
    void addToBatch(std::vector<QLineF>& batch, const QLineF& line);

    std::string name_;
    Medium medium_;
    QPainter* painter_ = nullptr;
    PageView view_;
    Extent visible_ = Extent::everything();
    double deviceScale_ = 1;  // device pixels to the painter unit
    PaperFonts fonts_;

    Pen pen_;
    double penWidth_ = 1;   // painter units
    bool hairline_ = true;  // at most a device pixel wide
    double penShift_ = 0;   // onto the pixels' centres, for a pen of an odd number of pixels
    QRectF seen_;           // the target with room for the pen
    QRectF reach_;          // beyond which a line is cut
    std::vector<QLineF> straight_, curved_;
};

}  // namespace ladrix
