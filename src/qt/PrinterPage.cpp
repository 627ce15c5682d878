#include "qt/PrinterPage.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/Numbers.h"
#include "qt/QtImages.h"

namespace ladrix {

namespace {

constexpr double DotsPerInch = 192;  // of DrawWidth
constexpr double MillimetresPerInch = 25.4;

[[noreturn]] void refuse(const char* property, double value) {
    throw Failure{failure::InvalidProperty, std::string("The printer cannot use ") + property +
                                                ' ' + singleText(static_cast<Single>(value), '.')};
}

// White lets through what lies below, black covers it: as near as a page comes that cannot combine
// pixels.
QtPicture onlyDarkness(const QtPicture& picture) {
    QImage image(picture.image().size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.drawImage(0, 0, picture.image());
    }
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QRgb c = line[x];
            const int white = std::min({qRed(c), qGreen(c), qBlue(c)});
            line[x] = qRgba(qRed(c) - white, qGreen(c) - white, qBlue(c) - white, 255 - white);
        }
    }
    return QtPicture(std::move(image));
}

}  // namespace

QSizeF paperSizeOf(Short code) {
    const auto millimetres = [](double width, double height) {
        return QSizeF(width, height) / MillimetresPerInch;
    };
    switch (code) {
        case 1:
            return {8.5, 11};
        case 3:
            return {11, 17};
        case 4:
            return {17, 11};
        case 5:
            return {8.5, 14};
        case 7:
            return {7.25, 10.5};
        case 8:
            return millimetres(297, 420);
        case 9:
            return millimetres(210, 297);
        case 12:
            return millimetres(250, 353);
        case 13:
            return millimetres(182, 257);
        case 14:
            return {8.5, 13};
        case 15:
            return millimetres(215, 275);
        case 16:
            return {10, 14};
        case 24:
            return {17, 22};
        default:
            return {};
    }
}

void PrinterPage::SetOrientation(Short orientation) {
    if (orientation != PortraitPaper && orientation != LandscapePaper)
        refuse("orientation", orientation);
    orientation_ = orientation;
    stale_ = true;
}

void PrinterPage::SetPaperSize(Short code) {
    if (paperSizeOf(code).isEmpty()) refuse("paper size", code);
    paperSize_ = code;
    stale_ = true;
}

void PrinterPage::SetScaleMode(Short mode) {
    if (mode != UserScale && mode != TwipScale) refuse("scale mode", mode);
    if (mode == UserScale && scaleMode_ != UserScale) {
        scaleWidth_ = ScaleWidth();
        scaleHeight_ = ScaleHeight();
    }
    scaleMode_ = mode;
    stale_ = true;
}

Single PrinterPage::ScaleWidth() const {
    if (hasUserScale()) return scaleWidth_;
    return static_cast<Single>(area().printable.width()) * TwipsPerInch;
}

void PrinterPage::SetScaleWidth(Single width) {
    if (!(width > 0 && std::isfinite(width))) refuse("scale width", static_cast<double>(width));
    SetScaleMode(UserScale);
    scaleWidth_ = width;
}

Single PrinterPage::ScaleHeight() const {
    if (hasUserScale()) return scaleHeight_;
    return static_cast<Single>(area().printable.height()) * TwipsPerInch;
}

void PrinterPage::SetScaleHeight(Single height) {
    if (!(height > 0 && std::isfinite(height))) refuse("scale height", static_cast<double>(height));
    SetScaleMode(UserScale);
    scaleHeight_ = height;
}

PrinterPage::Scale PrinterPage::scale() const {
    if (!hasUserScale())
        return {1 / static_cast<double>(TwipsPerInch), 1 / static_cast<double>(TwipsPerInch)};
    const QRectF printable = area().printable;
    return {printable.width() / static_cast<double>(scaleWidth_),
            printable.height() / static_cast<double>(scaleHeight_)};
}

Single PrinterPage::TextWidth(std::string_view text) {
    return fonts_.textWidth(font_, text) / static_cast<Single>(scale().x);
}

Single PrinterPage::TextHeight(std::string_view) {
    return fonts_.textHeight(font_) / static_cast<Single>(scale().y);
}

// The page of the painter as it is set up now.
QtPainterPage& PrinterPage::ready() {
    if (stale_) {
        QPainter& painter = begin();
        page_.flush();
        const PaperArea paper = area();
        const Scale inches = scale();
        PageView view;
        view.scale = inches.x * unitsPerInch_;
        view.scaleY = inches.y * unitsPerInch_;
        view.unitsPerInch = unitsPerInch_;
        view.left = paper.printable.left() * unitsPerInch_;
        view.top = paper.printable.top() * unitsPerInch_;
        view.penUnit = std::max(unitsPerInch_ / DotsPerInch, leastDot_);
        view.target = QRectF(paper.printable.topLeft() * unitsPerInch_,
                             paper.printable.size() * unitsPerInch_);
        page_.reset(&painter, view);
        visible_ = page_.visible();
        stale_ = false;
    }
    page_.DrawWidth = DrawWidth;
    page_.DrawStyle = DrawStyle;
    page_.FillStyle = FillStyle;
    page_.FillColor = FillColor;
    return page_;
}

void PrinterPage::PSet(Single x, Single y, Long color) {
    ready().Line(x, y, x, y, color, LineForm::FilledBox);
}

void PrinterPage::Print(std::string_view text) {
    ready().Text(CurrentX, CurrentY, font_, text, ForeColor);
    CurrentX = 0;
    CurrentY += TextHeight(text);
}

void PrinterPage::Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) {
    ready().Line(x1, y1, x2, y2, color, form);
}

void PrinterPage::Circle(Single x, Single y, Single radius, Long color, Single aspect) {
    ready().Circle(x, y, radius, color, aspect);
}

void PrinterPage::Arc(Single x, Single y, Single radius, Long color, double start, double end,
                      Single aspect) {
    ready().Arc(x, y, radius, color, start, end, aspect);
}

void PrinterPage::PaintPicture(const Picture& picture, Single x, Single y, Single width,
                               Single height, Long rasterMode) {
    const auto* known = dynamic_cast<const QtPicture*>(&picture);
    if (!known) throw Failure{failure::InvalidCall, "Not a picture of this toolkit"};
    if (rasterMode != SourceAnd || known->isFrame())
        return ready().PaintPicture(picture, x, y, width, height);
    // One image, however often it stands on the pages: a document holds each image once.
    std::shared_ptr<const QtPicture>& dark = dark_[known->image().cacheKey()];
    if (!dark) dark = std::make_shared<QtPicture>(onlyDarkness(*known));
    ready().PaintPicture(*dark, x, y, width, height);
}

}  // namespace ladrix
