#include "qt/PreviewBox.h"

#include <QPainter>
#include <algorithm>

#include "qt/QtImages.h"
#include "qt/QtPainterPage.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Margin = 12;
constexpr double ThinnestPen = 0.75;  // pixels, so that a small page stays legible

}  // namespace

PreviewBox::PreviewBox(Program& program, QWidget* parent) : QWidget(parent), program_(program) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PreviewBox::sizeHint() const {
    const int side = 16 * fontMetrics().height();
    return {side, side};
}

QRect PreviewBox::pageRect() const {
    const QRect room = rect().adjusted(Margin, Margin, -Margin, -Margin);
    const FileBrowser& browser = program_.frmFile;
    const QSizeF page(static_cast<double>(browser.PreviewWidth),
                      static_cast<double>(browser.PreviewHeight));
    QRect fitted(QPoint(), page.scaled(room.size(), Qt::KeepAspectRatio).toSize());
    fitted.moveCenter(room.center());
    return fitted;
}

void PreviewBox::renderPage(const QRect& page) {
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = page.size() * ratio;
    if (image_.size() == pixels && version_ == program_.frmFile.PreviewVersion) return;
    version_ = program_.frmFile.PreviewVersion;
    image_ = QPixmap(pixels);
    image_.setDevicePixelRatio(ratio);
    image_.fill(Qt::white);
    QPainter painter(&image_);
    PageView view;
    view.scale = page.width() / static_cast<double>(program_.frmFile.PreviewWidth);
    view.penUnit = std::max(view.scale / 96, ThinnestPen / ratio);
    view.target = QRectF(QPointF(), QSizeF(page.size()));
    QtPainterPage surface("picPreview");
    surface.reset(&painter, view);
    drawPreview(program_.frmFile, program_.editor, surface);
    surface.flush();
}

QString PreviewBox::note() const {
    const FileBrowser& browser = program_.frmFile;
    if (!browser.PreviewNote.empty()) return toQString(browser.PreviewNote);
    switch (traitsOf(browser.FileBrowserMode).preview) {
        case BrowserPreview::Picture:
            return tr("Select a picture to see it here.");
        case BrowserPreview::Drawing:
            return tr("Select a drawing to see it here.");
        default:
            return {};
    }
}

// In its own size, or as large as there is room.
void PreviewBox::paintPicture(QPainter& painter, const QtPicture& picture) const {
    const QRect room = rect().adjusted(Margin, Margin, -Margin, -Margin);
    QSize size(picture.pixelWidth(), picture.pixelHeight());
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room.size(), Qt::KeepAspectRatio);
    QRect place(QPoint(), size.expandedTo(QSize(1, 1)));
    place.moveCenter(room.center());
    theme::paintPageShadow(painter, place);
    painter.fillRect(place, Qt::white);
    if (picture.isFrame()) {
        painter.drawRect(place);
        painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, toQString(picture.frameName()));
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture.shrunkTo(place.size() * devicePixelRatioF()));
}

void PreviewBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::Desk);
    const QRect page = pageRect();
    if (page.width() <= 0 || page.height() <= 0) return;
    const FileBrowser& browser = program_.frmFile;
    if (const auto* const picture = dynamic_cast<const QtPicture*>(browser.PreviewPicture.get()))
        return paintPicture(painter, *picture);
    if (!browser.PreviewShown) {
        const QRect room = rect().adjusted(2 * Margin, Margin, -2 * Margin, -Margin);
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, note());
        return;
    }
    theme::paintPageShadow(painter, page);
    renderPage(page);
    painter.drawPixmap(page.topLeft(), image_);
    painter.setPen(theme::PageEdge);
    painter.drawRect(page.adjusted(-1, -1, 0, 0));
}

}  // namespace ladrix
