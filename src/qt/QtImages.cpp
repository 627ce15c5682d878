#include "qt/QtImages.h"

#include <sys/stat.h>

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>
#include <cstring>

#include "qt/PictureKind.h"
#include "qt/PictureWorker.h"
#include "qt/QtPictureBox.h"
#include "qt/QtText.h"

namespace ladrix {

namespace {

constexpr int LargestImageMegabytes = 800;  // at 8 bytes a pixel
constexpr int BytesPerPixel = 4;
constexpr std::chrono::seconds FailureLasts{60};  // a file that hung once is not tried at once
constexpr auto OverBudget =
    "The pictures need more than 256 MB of memory. Those past it are shown as crossed frames.";

[[noreturn]] void fail(std::string reason) {
    throw Failure{failure::InvalidProperty, std::move(reason)};
}

// A picture of dots, before it is read.
struct Dots {
    QSize size;   // as it is shown
    QSize taken;  // no side longer than LongestPictureSide, as it lies in the file
    bool shrinks() const { return std::max(size.width(), size.height()) > LongestPictureSide; }
    qint64 bytes() const { return qint64{taken.width()} * taken.height() * BytesPerPixel; }
};

Dots dotsOf(const QImageReader& reader) {
    const QSize stored = reader.size();
    if (!stored.isValid() || stored.isEmpty()) fail("not a picture that can be read");
    if (qint64{stored.width()} * stored.height() > LargestImage)
        fail("larger than 100 million pixels");
    Dots dots;
    dots.taken = stored;
    if (std::max(stored.width(), stored.height()) > LongestPictureSide)
        dots.taken = stored.scaled(LongestPictureSide, LongestPictureSide, Qt::KeepAspectRatio)
                         .expandedTo(QSize(1, 1));
    const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    dots.size = turned ? stored.transposed() : stored;
    return dots;
}

std::string nameOf(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
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

QtImages::Identity QtImages::identify(const std::string& path) {
    struct stat info {};
    if (stat(QFile::encodeName(toQString(path)).constData(), &info) != 0)
        throw Failure{failure::FileNotFound, path + ": file not found"};
    if (!S_ISREG(info.st_mode))
        throw Failure{failure::PathFileAccess, path + ": not a regular file"};
    return {info.st_dev, info.st_ino, info.st_size, info.st_ctim.tv_sec, info.st_ctim.tv_nsec};
}

// What is known of a file stays: it is little, and tells what the file's picture would take.
void QtImages::forgetOld() {
    const auto now = std::chrono::steady_clock::now();
    std::erase_if(known_, [&](const auto& entry) {
        const Known& known = entry.second;
        return known.failure && now - known.failedAt > FailureLasts;
    });
    std::erase_if(frames_, [](const auto& frame) { return frame.expired(); });
}

bool QtImages::fits(qint64 bytes) const {
    for (const auto& [identity, known] : known_)
        if (!known.picture.expired()) bytes += known.bytes;
    return bytes <= budget;
}

std::shared_ptr<const Picture> QtImages::frame(const std::string& path, QSize size) {
    auto made = std::make_shared<QtPicture>(nameOf(path), size);
    const bool first = frames_.empty();
    frames_.push_back(made);
    if (first && tell) tell(OverBudget);
    return made;
}

std::shared_ptr<const Picture> QtImages::read(const std::string& path, Known& known) {
    if (!fits(known.bytes)) return frame(path, known.size);
    QFile file(toQString(path));
    if (!file.open(QIODevice::ReadOnly)) fail(fromQString(file.errorString()));
    const QByteArray head = file.peek(static_cast<qint64>(PictureHead));
    const PictureKind kind =
        pictureKindOf({head.constData(), static_cast<std::size_t>(head.size())});
    std::shared_ptr<QtPicture> made;
    if (kind == PictureKind::Svg || kind == PictureKind::Wmf) {
        DrawnPicture drawn = drawPicture(kind, file.read(drawnLimits.svgBytes + 1), drawnLimits);
        made = std::make_shared<QtPicture>(std::move(drawn.image), drawn.size);
    } else if (const char* const format = formatOf(kind)) {
        QImageReader::setAllocationLimit(LargestImageMegabytes);
        QImageReader reader(&file, format);
        reader.setAutoDetectImageFormat(false);
        reader.setAutoTransform(true);
        const Dots dots = dotsOf(reader);
        if (dots.shrinks()) reader.setScaledSize(dots.taken);
        if (!fits(dots.bytes())) return frame(path, dots.size);
        QImage image = reader.read();
        if (image.isNull()) fail(fromQString(reader.errorString()));
        made = std::make_shared<QtPicture>(std::move(image), dots.size);
    } else {
        fail("not a picture of a kind that can be inserted");
    }
    known.size = QSize(made->pixelWidth(), made->pixelHeight());
    known.bytes = made->image().sizeInBytes();
    if (!fits(known.bytes)) return frame(path, known.size);
    known.picture = made;
    return made;
}

std::shared_ptr<const Picture> QtImages::load(const std::string& path) {
    const Identity identity = identify(path);
    forgetOld();
    Known& known = known_[identity];
    if (auto picture = known.picture.lock()) return picture;
    try {
        if (known.failure) throw Failure{*known.failure};
        return read(path, known);
    } catch (const Failure& failure) {
        if (!known.failure) known.failedAt = std::chrono::steady_clock::now();
        known.failure = failure;
        throw Failure{failure.number, path + ": " + failure.text};
    }
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
