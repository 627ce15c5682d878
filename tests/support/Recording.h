// Surfaces that keep every primitive drawn on them instead of showing it.
#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Surface.h"

namespace ladrix::test {

// One drawing call with the surface's properties at its moment. Only the fields of its kind differ
// from their start value: Line and Box forms have both corners; Circle and Arc the centre in
// (x1, y1); Text its corner in (x1, y1); Picture its corner in (x1, y1) and its size in (x2, y2).
struct Primitive {
    enum class Kind { Line, Circle, Arc, Text, Picture };

    Kind kind = Kind::Line;
    Single x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    LineForm form = LineForm::Plain;
    Single radius = 0;
    double start = 0, end = 0;
    Single aspect = 1;
    Long color = Black;
    std::string text;
    FontSpec font;
    int pixelWidth = 0, pixelHeight = 0;  // of the picture

    Short DrawWidth = 1, DrawStyle = 0, FillStyle = 1;
    Long FillColor = Black;

    friend bool operator==(const Primitive&, const Primitive&) = default;
};

// "Line 0,0 1,0.5 Box color 255 width 1 style 0", for failure messages and small goldens.
std::string describe(const Primitive& primitive);
std::ostream& operator<<(std::ostream& out, const Primitive& primitive);

// Shared by the page and the canvas: turns each call into a Primitive and hands it to keep().
template <class Base>
class Recording : public Base {
  public:
    // After this many more primitives, each call throws Failure 380; negative never does.
    int primitivesUntilFailure = -1;
    std::string name;
    Extent view = Extent::everything();

    std::string_view Name() const override { return name; }
    Extent visible() const override { return view; }

    void Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) override {
        Primitive line = primitive(Primitive::Kind::Line, x1, y1, color);
        line.x2 = x2;
        line.y2 = y2;
        line.form = form;
        take(line);
    }
    void Circle(Single x, Single y, Single radius, Long color, Single aspect) override {
        Primitive circle = primitive(Primitive::Kind::Circle, x, y, color);
        circle.radius = radius;
        circle.aspect = aspect;
        take(circle);
    }
    void Arc(Single x, Single y, Single radius, Long color, double start, double end,
             Single aspect) override {
        Primitive arc = primitive(Primitive::Kind::Arc, x, y, color);
        arc.radius = radius;
        arc.start = start;
        arc.end = end;
        arc.aspect = aspect;
        take(arc);
    }
    void Text(Single x, Single y, const FontSpec& font, std::string_view text,
              Long color) override {
        Primitive line = primitive(Primitive::Kind::Text, x, y, color);
        line.font = font;
        line.text = text;
        take(line);
    }
    void PaintPicture(const Picture& picture, Single x, Single y, Single width,
                      Single height) override {
        Primitive painted = primitive(Primitive::Kind::Picture, x, y, Black);
        painted.x2 = width;
        painted.y2 = height;
        painted.pixelWidth = picture.pixelWidth();
        painted.pixelHeight = picture.pixelHeight();
        take(painted);
    }

  protected:
    virtual void keep(const Primitive& primitive) = 0;

  private:
    Primitive primitive(Primitive::Kind kind, Single x, Single y, Long color) const {
        Primitive made;
        made.kind = kind;
        made.x1 = x;
        made.y1 = y;
        made.color = color;
        made.DrawWidth = this->DrawWidth;
        made.DrawStyle = this->DrawStyle;
        made.FillStyle = this->FillStyle;
        made.FillColor = this->FillColor;
        return made;
    }
    void take(const Primitive& made) {
        if (primitivesUntilFailure == 0) {
            throw Failure{failure::InvalidProperty, "The surface cannot draw."};
        }
        if (primitivesUntilFailure > 0) --primitivesUntilFailure;
        keep(made);
    }
};

class RecordingPage final : public Recording<Page> {
  public:
    RecordingPage() { name = "Page"; }

    std::vector<Primitive> primitives;

  private:
    void keep(const Primitive& primitive) override { primitives.push_back(primitive); }
};

// A picture that is its size and, where it came from a bitmap, the bytes.
class FakePicture final : public Picture {
  public:
    FakePicture(int width, int height, std::string bytes = {})
        : bitmap(std::move(bytes)), width_(width), height_(height) {}
    int pixelWidth() const override { return width_; }
    int pixelHeight() const override { return height_; }

    const std::string bitmap;

  private:
    int width_, height_;
};

// Cls forgets what was drawn. Image's bitmap names the size, the background and each primitive.
class RecordingPicture final : public Recording<PictureBox> {
  public:
    RecordingPicture(int pixelWidth, int pixelHeight) : width(pixelWidth), height(pixelHeight) {
        name = "Picture";
    }

    const int width, height;  // pixels
    std::vector<Primitive> primitives;
    // As last set.
    Single scaleLeft = 0, scaleTop = 0, scaleWidth = 0, scaleHeight = 0;

    void SetScale(Single left, Single top, Single wide, Single high) override;
    void Cls() override { primitives.clear(); }
    std::shared_ptr<const Picture> Image() override;

  private:
    void keep(const Primitive& primitive) override { primitives.push_back(primitive); }
};

// Cls with AutoRedraw off empties the temporary layer; with it on, both.
class RecordingCanvas final : public Recording<Canvas> {
  public:
    RecordingCanvas() { name = "picLX"; }

    std::vector<Primitive> persistent, temporary;
    int persistentCls = 0, temporaryCls = 0;  // times called
    // As last set.
    Single scaleLeft = 0, scaleTop = 0, scaleZoom = 1;
    int scaleChanges = 0;
    std::vector<Extent> repainted;  // the places

    void Cls() override;
    // Cls within `paint` takes nothing away.
    void repaint(const Extent& place, const std::function<void()>& paint) override;
    void SetScale(Single left, Single top, Single zoom) override;
    // "8.5x11" and the description of each primitive that `paint` drew, a line each.
    std::string Image(Single width, Single height, const std::function<void()>& paint) override;

  private:
    void keep(const Primitive& primitive) override;

    bool repainting_ = false;
};

}  // namespace ladrix::test
