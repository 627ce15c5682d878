#include "qt/QtPictureBox.h"

#include <cmath>

#include "qt/QtImages.h"
#include "qt/QtText.h"

namespace ladrix {

QtPictureBox::QtPictureBox(const QSize& size)
    : image_(size, QImage::Format_RGB32),
      width_(static_cast<Single>(size.width())),
      height_(static_cast<Single>(size.height())) {
    Cls();
}

QtPictureBox::~QtPictureBox() {
    endPainting();
}

void QtPictureBox::endPainting() {
    if (!painter_.isActive()) return;
    page_.flush();
    painter_.end();
}

void QtPictureBox::SetScale(Single left, Single top, Single width, Single height) {
    const auto usable = [](Single size) { return std::isfinite(size) && size > 0; };
    if (!std::isfinite(left) || !std::isfinite(top) || !usable(width) || !usable(height))
        throw Failure{failure::InvalidProperty, "A picture's scale must be a size above 0."};
    endPainting();
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
}

void QtPictureBox::Cls() {
    endPainting();
    image_.fill(QColor(BackColor & 0xFF, (BackColor >> 8) & 0xFF, (BackColor >> 16) & 0xFF));
}

std::shared_ptr<const Picture> QtPictureBox::Image() {
    endPainting();
    return std::make_shared<QtPicture>(image_.copy());
}

// Units that differ in width and height stretch the whole drawing.
QtPainterPage& QtPictureBox::page() {
    page_.FillStyle = FillStyle;
    page_.FillColor = FillColor;
    page_.DrawWidth = DrawWidth;
    page_.DrawStyle = DrawStyle;
    if (painter_.isActive()) return page_;
    painter_.begin(&image_);
    PageView view;
    view.scale = static_cast<double>(image_.width()) / static_cast<double>(width_);
    view.left = -static_cast<double>(left_) * view.scale;
    view.top = -static_cast<double>(top_) * view.scale;
    const double across = static_cast<double>(image_.height()) / static_cast<double>(height_);
    if (std::abs(across / view.scale - 1) > 1e-6) painter_.scale(1, across / view.scale);
    page_.reset(&painter_, view);
    return page_;
}

Extent QtPictureBox::visible() const {
    return {left_, top_, left_ + width_, top_ + height_};
}

void QtPictureBox::Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) {
    page().Line(x1, y1, x2, y2, color, form);
}

void QtPictureBox::Circle(Single x, Single y, Single radius, Long color, Single aspect) {
    page().Circle(x, y, radius, color, aspect);
}

void QtPictureBox::Arc(Single x, Single y, Single radius, Long color, double start, double end,
                       Single aspect) {
    page().Arc(x, y, radius, color, start, end, aspect);
}

void QtPictureBox::Text(Single x, Single y, const FontSpec& font, std::string_view text,
                        Long color) {
    page().Text(x, y, font, text, color);
}

void QtPictureBox::PaintPicture(const Picture& picture, Single x, Single y, Single width,
                                Single height) {
    page().PaintPicture(picture, x, y, width, height);
}

}  // namespace ladrix
