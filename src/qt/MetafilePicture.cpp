#include "qt/MetafilePicture.h"

#include <sys/resource.h>

#include <QFile>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QtEndian>
#include <optional>

#include "platform/Types.h"
#include "qt/QtImages.h"
#include "qt/QtText.h"

namespace ladrix {

namespace {

constexpr quint32 PlaceableKey = 0x9AC6CDD7;
constexpr int PlaceableLength = 22;
constexpr double PixelsPerInch = 96;
constexpr double LongestSide = 2000;  // pixels of the picture; a larger one is shrunk

[[noreturn]] void fail(const QString& path, const QString& reason) {
    throw Failure{failure::InvalidProperty, fromQString(path + QStringLiteral(": ") + reason)};
}

void limit(decltype(RLIMIT_AS) resource, qint64 value) {
    const rlimit both{static_cast<rlim_t>(value), static_cast<rlim_t>(value)};
    setrlimit(resource, &both);
}

// Converts to SVG text. The child writes to a file, whose size the system can bound.
QByteArray convert(const QString& path, const MetafileLimits& limits) {
    const QString converter = QStandardPaths::findExecutable(limits.converter);
    if (converter.isEmpty())
        fail(path, QStringLiteral("reading it needs the program wmf2svg of libwmf"));
    const QTemporaryDir folder;
    if (!folder.isValid()) fail(path, folder.errorString());
    const QString target = folder.filePath(QStringLiteral("picture.svg"));
    QProcess child;
    child.setStandardInputFile(QProcess::nullDevice());
    child.setStandardOutputFile(QProcess::nullDevice());
    child.setStandardErrorFile(QProcess::nullDevice());
    child.setChildProcessModifier([&limits] {
        limit(RLIMIT_AS, limits.memoryBytes);
        limit(RLIMIT_FSIZE, limits.outputBytes);
        limit(RLIMIT_CPU, limits.milliseconds / 1000 + 1);
        limit(RLIMIT_CORE, 0);
    });
    child.start(converter, {QStringLiteral("--inline"), QStringLiteral("-o"), target, path});
    if (!child.waitForFinished(limits.milliseconds)) {
        child.kill();
        child.waitForFinished();
        fail(path, QStringLiteral("reading it took too long"));
    }
    QFile file(target);
    if (child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0 ||
        !file.open(QIODevice::ReadOnly))
        fail(path, QStringLiteral("not a metafile that can be read"));
    return file.readAll();
}

// The size that a placeable metafile states, in pixels.
std::optional<QSizeF> statedSize(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    const QByteArray head = file.read(PlaceableLength);
    if (head.size() < PlaceableLength) return std::nullopt;
    if (qFromLittleEndian<quint32>(head.constData()) != PlaceableKey) return std::nullopt;
    const auto number = [&](int at) { return qFromLittleEndian<qint16>(head.constData() + at); };
    const double perInch = qFromLittleEndian<quint16>(head.constData() + 14);
    if (perInch <= 0) return std::nullopt;
    const QSizeF size(number(10) - number(6), number(12) - number(8));
    const QSizeF pixels = size * (PixelsPerInch / perInch);
    return pixels.width() >= 1 && pixels.height() >= 1 ? std::optional(pixels) : std::nullopt;
}

}  // namespace

bool isMetafile(const QString& path) {
    return path.endsWith(QStringLiteral(".wmf"), Qt::CaseInsensitive);
}

QImage readMetafile(const QString& path, const MetafileLimits& limits) {
    QSvgRenderer picture(convert(path, limits));
    if (!picture.isValid()) fail(path, QStringLiteral("not a metafile that can be read"));
    QSizeF size = statedSize(path).value_or(QSizeF(picture.defaultSize()));
    if (size.isEmpty()) fail(path, QStringLiteral("the picture is empty"));
    if (qMax(size.width(), size.height()) > LongestSide)
        size.scale(LongestSide, LongestSide, Qt::KeepAspectRatio);
    const QSize pixels = size.toSize().expandedTo(QSize(1, 1)) * MetafileDensity;
    if (qint64{pixels.width()} * pixels.height() > LargestImage)
        fail(path, QStringLiteral("larger than 100 million pixels"));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) fail(path, QStringLiteral("not enough memory"));
    image.fill(Qt::transparent);
    QPainter painter(&image);
    picture.setAspectRatioMode(Qt::IgnoreAspectRatio);
    picture.render(&painter, QRectF(QPointF(), QSizeF(pixels)));
    return image;
}

}  // namespace ladrix
