#include "qt/PictureWorker.h"

#include <sys/prctl.h>
#include <sys/resource.h>

#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

#include "qt/SvgCheck.h"

namespace ladrix {

namespace {

WorkerStatus statusOf(SvgFault fault) {
    switch (fault) {
        case SvgFault::None:
            return WorkerStatus::Drawn;
        case SvgFault::Broken:
            return WorkerStatus::Broken;
        case SvgFault::RefersToOthers:
            return WorkerStatus::RefersToOthers;
        case SvgFault::DeclaresEntities:
            return WorkerStatus::DeclaresEntities;
        case SvgFault::TooDeep:
            return WorkerStatus::TooDeep;
    }
    return WorkerStatus::Broken;
}

// What would open a file later is fetched now: the faces of its fonts, the readers of pictures.
void prepare(const SvgCheck& check) {
    if (check.embedsPictures) QImageReader::supportedImageFormats();
    QStringList families{QGuiApplication::font().family()};
    for (const std::string& family : check.families)
        families.append(QString::fromStdString(family));
    for (const QString& family : families)
        for (const bool bold : {false, true})
            for (const bool italic : {false, true}) {
                QFont font(family);
                font.setBold(bold);
                font.setItalic(italic);
                QFontMetricsF(font).horizontalAdvance(QStringLiteral("Ag"));
            }
}

// From here on nothing can be opened, no connection made, no file grow.
void lockUp() {
    const rlimit none{0, 0};
    setrlimit(RLIMIT_NOFILE, &none);
    setrlimit(RLIMIT_FSIZE, &none);
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
}

// Which may be far from what an int holds.
QSize within(QSizeF size, int longest) {
    if (qMax(size.width(), size.height()) > longest)
        size.scale(longest, longest, Qt::KeepAspectRatio);
    return size.toSize().expandedTo(QSize(1, 1));
}

bool write(const QImage& image, const QSize& own) {
    const WorkerHeader header{WorkerHeader().magic, image.width(), image.height(), own.width(),
                              own.height()};
    const auto size = static_cast<std::size_t>(image.sizeInBytes());  // rows of whole words
    return std::fwrite(&header, sizeof header, 1, stdout) == 1 &&
           std::fwrite(image.constBits(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

WorkerStatus draw(const QByteArray& svg, QSizeF own) {
    QSvgRenderer picture(svg);
    if (!picture.isValid()) return WorkerStatus::Broken;
    if (own.isEmpty()) own = picture.defaultSize();
    if (own.isEmpty()) return WorkerStatus::Empty;
    QImage image(within(own * DrawnDensity, LongestPictureSide),
                 QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return WorkerStatus::Memory;
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        picture.setAspectRatioMode(Qt::IgnoreAspectRatio);
        picture.render(&painter, QRectF(image.rect()));
    }
    return write(image, within(own, LongestPictureSide)) ? WorkerStatus::Drawn
                                                         : WorkerStatus::Memory;
}

void dropRemarks(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

int pictureWorkerMain(int argc, char** argv) {
    qInstallMessageHandler(dropRemarks);
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) return static_cast<int>(WorkerStatus::Broken);
    const QByteArray svg = input.readAll();
    const SvgCheck check = checkSvg({svg.constData(), static_cast<std::size_t>(svg.size())});
    if (check.fault != SvgFault::None) return static_cast<int>(statusOf(check.fault));
    const QSizeF own = argc == 3
                           ? QSizeF(QByteArray(argv[1]).toDouble(), QByteArray(argv[2]).toDouble())
                           : QSizeF();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int ownCount = argc > 0 ? 1 : 0;
    const QGuiApplication application(ownCount, argv);
    prepare(check);
    lockUp();
    return static_cast<int>(draw(svg, own));
}

}  // namespace ladrix
