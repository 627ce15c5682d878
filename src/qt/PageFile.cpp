#include "qt/PageFile.h"

#include <QBuffer>
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

std::string pdfFile(const PageContent& content) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QSizeF inches(content.width, content.height);
    {
        QPdfWriter writer(&buffer);
        setUpPdf(writer, inches, content.title);
        paintOn(writer, Medium::Vector, content, PdfUnitsPerInch);
    }
    QByteArray pdf = buffer.data();
    setExactPageSize(pdf, inches);
    return pdf.toStdString();
}

// What a viewer without the font takes: one of the same widths, then any of its kind.
QByteArray fallbackFor(const QByteArray& family) {
    if (family.contains("Times")) return ", 'Liberation Serif', serif";
    if (family.contains("Courier")) return ", 'Liberation Mono', monospace";
    return ", 'Liberation Sans', Helvetica, sans-serif";
}

QByteArray withFontFallbacks(const QByteArray& svg) {
    static constexpr char Name[] = "font-family=\"";
    QByteArray result;
    qsizetype copied = 0;
    for (qsizetype at = svg.indexOf(Name); at >= 0; at = svg.indexOf(Name, copied)) {
        const qsizetype from = at + static_cast<qsizetype>(sizeof Name) - 1;
        const qsizetype to = svg.indexOf('"', from);
        if (to < 0) break;
        const QByteArray family = svg.mid(from, to - from);
        result += svg.mid(copied, from - copied) + '\'' + family + '\'' + fallbackFor(family);
        copied = to;
    }
    return result + svg.mid(copied);
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
    return withFontFallbacks(buffer.data()).toStdString();
}

std::string pictureFile(const PageContent& content, PageFormat format, double pixelsPerInch) {
    QImage image =
        whiteImage(content.width * pixelsPerInch, content.height * pixelsPerInch, pixelsPerInch);
    paintOn(image, Medium::Raster, content, pixelsPerInch);
    return encodedImage(image, format);
}

}  // namespace

void setUpPdf(QPdfWriter& writer, QSizeF inches, std::string_view title) {
    const QPageSize size(inches, QPageSize::Inch, QStringLiteral("Drawing"), QPageSize::ExactMatch);
    writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, QMarginsF()));
    writer.setResolution(PdfUnitsPerInch);
    writer.setTitle(toQString(title));
    writer.setCreator(QStringLiteral("Ladrix"));
}

// The exact box takes the rounded one's place in the same number of bytes, aligned at the upper
// left corner, so that no offset in the file changes.
void setExactPageSize(QByteArray& pdf, QSizeF inches) {
    static constexpr char Start[] = "/MediaBox [";
    constexpr auto StartLength = static_cast<qsizetype>(sizeof Start) - 1;
    qsizetype pages = 0;
    for (qsizetype at = pdf.indexOf(Start); at >= 0; at = pdf.indexOf(Start, at + 1), ++pages) {
        const qsizetype from = at + StartLength;
        const qsizetype to = pdf.indexOf(']', from);
        const QList<QByteArray> written = pdf.mid(from, to - from).split(' ');
        if (to < 0 || written.size() != 4) throw Failure{failure::DeviceIO, "The PDF has no page"};
        const double top = written[3].toDouble();
        const QByteArray box = "0 " +
                               QByteArray::number(top - inches.height() * PointsPerInch, 'f', 2) +
                               ' ' + QByteArray::number(inches.width() * PointsPerInch, 'f', 2) +
                               ' ' + QByteArray::number(top, 'f', 0);
        if (box.size() > to - from) throw Failure{failure::DeviceIO, "The PDF's page is too large"};
        pdf.replace(from, to - from, box.leftJustified(to - from, ' '));
    }
    if (pages == 0) throw Failure{failure::DeviceIO, "The PDF has no page"};
}

QImage whiteImage(double width, double height, double pixelsPerInch) {
    width = std::max(1.0, std::round(width));
    height = std::max(1.0, std::round(height));
    if (!(width * height <= static_cast<double>(LargestImage)))
        throw Failure{failure::InvalidProperty, "The bitmap would have over 100 million pixels"};
    QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_RGB32);
    if (image.isNull()) throw Failure{failure::InvalidProperty, "Not enough memory for the bitmap"};
    image.fill(Qt::white);
    const int dotsPerMetre =
        static_cast<int>(std::lround(pixelsPerInch / MillimetresPerInch * 1000));
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    return image;
}

std::string encodedImage(const QImage& image, PageFormat format) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format == PageFormat::Png ? "png" : "bmp");
    if (!writer.write(image)) throw Failure{failure::DeviceIO, fromQString(writer.errorString())};
    return buffer.data().toStdString();
}

std::string QtPageFiles::make(const PageContent& content, PageFormat format, double pixelsPerInch) {
    switch (format) {
        case PageFormat::Pdf:
            return pdfFile(content);
        case PageFormat::Svg:
            return svgFile(content);
        case PageFormat::Png:
        case PageFormat::Bmp:
            return pictureFile(content, format, pixelsPerInch);
    }
    return {};
}

}  // namespace ladrix
