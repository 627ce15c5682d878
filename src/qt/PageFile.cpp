#include "qt/PageFile.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>

#include "qt/QtImages.h"
#include "qt/QtPainterPage.h"
#include "qt/QtText.h"

namespace ladrix {

namespace {

constexpr double PointsPerInch = 72;
constexpr double MillimetresPerInch = 25.4;
constexpr double PenUnitsPerInch = 96;  // a DrawWidth of 1 on paper
constexpr int PdfUnitsPerInch = 1200;
constexpr int SvgSizeUnitsPerInch = 9600;

PageView wholePage(const PageContent& content, double unitsPerInch) {
    PageView view;
    view.scale = unitsPerInch;
    view.penUnit = unitsPerInch / PenUnitsPerInch;
    view.target = QRectF(0, 0, content.width * unitsPerInch, content.height * unitsPerInch);
    return view;
}

void paintOn(QPaintDevice& device, Medium medium, const PageContent& content, double unitsPerInch) {
    QPainter painter;
    if (!painter.begin(&device)) throw Failure{failure::DeviceIO, "The page cannot be painted"};
    QtPainterPage page("page", medium);
    page.reset(&painter, wholePage(content, unitsPerInch));
    content.paint(page);
    page.flush();
    if (!painter.end()) throw Failure{failure::DeviceIO, "The page cannot be finished"};
}

// The PDF engine rounds a page to whole points. The exact box takes the rounded one's place in the
// same number of bytes, aligned at the upper left corner, so that no offset in the file changes.
void setExactMediaBox(QByteArray& pdf, const PageContent& content) {
    static constexpr char Start[] = "/MediaBox [";
    const qsizetype from = pdf.indexOf(Start) + static_cast<qsizetype>(sizeof Start) - 1;
    const qsizetype to = pdf.indexOf(']', from);
    const QList<QByteArray> written = pdf.mid(from, to - from).split(' ');
    if (pdf.indexOf(Start) < 0 || to < 0 || written.size() != 4)
        throw Failure{failure::DeviceIO, "The PDF has no page"};
    const double top = written[3].toDouble();
    const QByteArray box = "0 " + QByteArray::number(top - content.height * PointsPerInch, 'f', 2) +
                           ' ' + QByteArray::number(content.width * PointsPerInch, 'f', 2) + ' ' +
                           QByteArray::number(top, 'f', 0);
    if (box.size() > to - from) throw Failure{failure::DeviceIO, "The PDF's page is too large"};
    pdf.replace(from, to - from, box.leftJustified(to - from, ' '));
}

}  // namespace

std::string pdfFile(const PageContent& content) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        const QPageSize size(QSizeF(content.width, content.height), QPageSize::Inch,
                             QStringLiteral("Drawing"), QPageSize::ExactMatch);
        writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, QMarginsF()));
        writer.setResolution(PdfUnitsPerInch);
        writer.setTitle(toQString(content.title));
        writer.setCreator(QStringLiteral("Ladrix"));
        paintOn(writer, Medium::Vector, content, PdfUnitsPerInch);
    }
    QByteArray pdf = buffer.data();
    setExactMediaBox(pdf, content);
    return pdf.toStdString();
}

std::string svgFile(const PageContent& content) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QSvgGenerator generator;
        generator.setOutputDevice(&buffer);
        generator.setResolution(SvgSizeUnitsPerInch);
        generator.setSize((QSizeF(content.width, content.height) * SvgSizeUnitsPerInch).toSize());
        generator.setViewBox(
            QRectF(0, 0, content.width * PenUnitsPerInch, content.height * PenUnitsPerInch));
        generator.setTitle(toQString(content.title));
        generator.setDescription(QStringLiteral("Drawn with Ladrix"));
        paintOn(generator, Medium::Vector, content, PenUnitsPerInch);
    }
    return buffer.data().toStdString();
}

std::string bitmapFile(const PageContent& content, BitmapFormat format, double pixelsPerInch) {
    const double width = std::max(1.0, std::round(content.width * pixelsPerInch));
    const double height = std::max(1.0, std::round(content.height * pixelsPerInch));
    if (!(width * height <= static_cast<double>(LargestImage)))
        throw Failure{failure::InvalidProperty, "The bitmap would have over 100 million pixels"};
    QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_RGB32);
    if (image.isNull()) throw Failure{failure::InvalidProperty, "Not enough memory for the bitmap"};
    image.fill(Qt::white);
    const int dotsPerMetre =
        static_cast<int>(std::lround(pixelsPerInch / MillimetresPerInch * 1000));
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    paintOn(image, Medium::Raster, content, pixelsPerInch);

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format == BitmapFormat::Png ? "png" : "bmp");
    if (!writer.write(image)) throw Failure{failure::DeviceIO, fromQString(writer.errorString())};
    return buffer.data().toStdString();
}

}  // namespace ladrix
