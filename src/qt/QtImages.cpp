#include "qt/QtImages.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>
#include <cstring>

#include "qt/MetafilePicture.h"
#include "qt/QtPictureBox.h"
#include "qt/QtText.h"

namespace ladrix {

namespace {

constexpr int LargestImageMegabytes = 800;  // at 8 bytes a pixel

void requireAtMostLargestImage(const QSize& size, const std::string& path) {
    if (qint64{size.width()} * size.height() > LargestImage)
        throw Failure{failure::InvalidProperty, path + ": larger than 100 million pixels"};
}

template <class Value>
Value littleEndianAt(std::string_view bytes, std::size_t place) {
    return qFromLittleEndian<Value>(bytes.data() + place);
}

// A Windows bitmap of 24-bit pixels without compression, as icons are saved: its rows stand in the
// file from the lowest up, each filled to four bytes. A library has hundreds of them, so they are
// taken as they are. Null for any other form, which the toolkit reads.
QImage plainBitmap(std::string_view bytes) {
    constexpr std::size_t Headers = 54;
    constexpr quint32 InfoHeader = 40;
    if (bytes.size() < Headers || !bytes.starts_with("BM")) return {};
    const auto pixels = littleEndianAt<quint32>(bytes, 10);
    const auto width = littleEndianAt<qint32>(bytes, 18);
    const auto height = littleEndianAt<qint32>(bytes, 22);
    const bool plain = littleEndianAt<quint32>(bytes, 14) == InfoHeader &&
                       littleEndianAt<quint16>(bytes, 28) == 24 &&
                       littleEndianAt<quint32>(bytes, 30) == 0;
    if (!plain || width < 1 || height < 1 || qint64{width} * height > LargestBitmap) return {};
    const qsizetype row = (qsizetype{width} * 3 + 3) / 4 * 4;
    if (pixels < Headers || pixels > bytes.size() ||
        static_cast<qsizetype>(bytes.size() - pixels) < row * height)
        return {};
    QImage image(width, height, QImage::Format_BGR888);
    uchar* const top = image.bits();
    for (int y = 0; y < height; ++y)
        std::memcpy(top + (height - 1 - y) * image.bytesPerLine(),
                    bytes.data() + pixels + static_cast<std::size_t>(y * row),
                    static_cast<std::size_t>(width) * 3);
    return image;
}

}  // namespace

const QImage& QtPicture::shrunkTo(const QSize& pixels) const {
    const QSize wanted = pixels.expandedTo(QSize(1, 1));
    if (wanted.width() * 2 > image_.width() && wanted.height() * 2 > image_.height()) return image_;
    const QSize size = wanted.boundedTo(image_.size());
    if (shrunk_.size() != size)
        shrunk_ = image_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return shrunk_;
}

std::shared_ptr<const Picture> QtImages::load(const std::string& path) {
    const QString file = toQString(path);
    const QFileInfo info(file);
    if (!info.exists()) throw Failure{failure::FileNotFound, path + ": file not found"};
    if (!info.isFile()) throw Failure{failure::PathFileAccess, path + ": not a regular file"};

    if (isMetafile(file)) return std::make_shared<QtPicture>(readMetafile(file), MetafileDensity);
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    QImageReader::setAllocationLimit(LargestImageMegabytes);
    // Some formats tell their size only once they are decoded.
    requireAtMostLargestImage(reader.size(), path);
    QImage image = reader.read();
    if (image.isNull())
        throw Failure{failure::InvalidProperty, path + ": " + fromQString(reader.errorString())};
    requireAtMostLargestImage(image.size(), path);
    return std::make_shared<QtPicture>(std::move(image));
}

std::shared_ptr<const Picture> QtImages::fromBitmap(std::string_view bytes) {
    if (QImage plain = plainBitmap(bytes); !plain.isNull())
        return std::make_shared<QtPicture>(std::move(plain));
    const QByteArray data =
        QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer, "bmp");
    if (const QSize size = reader.size(); qint64{size.width()} * size.height() > LargestBitmap)
        throw Failure{failure::InvalidProperty, "larger than 1 million pixels"};
    QImage image = reader.read();
    if (image.isNull()) throw Failure{failure::InvalidProperty, fromQString(reader.errorString())};
    return std::make_shared<QtPicture>(std::move(image));
}

std::string QtImages::bitmapText(const Picture& picture) {
    const auto* own = dynamic_cast<const QtPicture*>(&picture);
    if (own == nullptr) throw Failure{failure::InvalidProperty, "The picture has no image."};
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!own->image().convertToFormat(QImage::Format_RGB888).save(&buffer, "BMP"))
        throw Failure{failure::InvalidProperty, "The picture cannot be written as a bitmap."};
    return bytes.toStdString();
}

std::unique_ptr<PictureBox> QtImages::makePicture(int width, int height) {
    if (width < 1 || height < 1 || qint64{width} * height > LargestBitmap)
        throw Failure{failure::InvalidProperty, "A picture of this size cannot be made."};
    return std::make_unique<QtPictureBox>(QSize(width, height));
}

}  // namespace ladrix
