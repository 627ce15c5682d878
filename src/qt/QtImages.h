// Picture files: bitmaps, icons, JPEG, GIF and PNG, and drawn pictures (see DrawnPicture.h). A file
// is known by its content, whatever its name, and is read once however often it is asked for.
#pragma once

#include <QImage>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <tuple>
#include <vector>

#include "platform/Platform.h"
#include "qt/DrawnPicture.h"

namespace ladrix {

class QtPicture final : public Picture {
  public:
    explicit QtPicture(QImage image) : QtPicture(image, image.size()) {}
    // `size`: the picture's own, where the image has more dots or fewer.
    QtPicture(QImage image, QSize size) : image_(std::move(image)), size_(size) {}
    // A picture without dots: shown as a crossed frame with this name in it.
    QtPicture(std::string name, QSize size) : size_(size), frameName_(std::move(name)) {}

    int pixelWidth() const override { return qMax(size_.width(), 1); }
    int pixelHeight() const override { return qMax(size_.height(), 1); }
    const QImage& image() const { return image_; }
    bool isFrame() const { return image_.isNull(); }
    const std::string& frameName() const { return frameName_; }

    // The image averaged down to about this size; the image itself where it is not far larger.
    // The last size asked for is kept.
    const QImage& shrunkTo(const QSize& pixels) const;

  private:
    QImage image_;
    QSize size_;
    std::string frameName_;
    mutable QImage shrunk_;
};

constexpr qint64 LargestImage = 100'000'000;  // pixels
constexpr qint64 LargestBitmap = 1'000'000;   // of icons and previews

class QtImages final : public Images {
  public:
    // Of all pictures that are in use at a time; the rest are frames.
    qint64 budget = 256ll * 1024 * 1024;  // bytes
    DrawnLimits drawnLimits;
    // Called with a sentence when the first frame comes up, and again once all frames are gone.
    std::function<void(std::string_view)> tell;

    std::shared_ptr<const Picture> load(const std::string& path) override;
    std::shared_ptr<const Picture> fromBitmap(std::string_view bytes) override;
    std::string bitmapText(const Picture& picture) override;
    std::unique_ptr<PictureBox> makePicture(int width, int height) override;

  private:
    using Identity = std::tuple<quint64, quint64, qint64, qint64, qint64>;
    struct Known {
        std::weak_ptr<const QtPicture> picture;
        qint64 bytes = 0;  // of its image; 0: not known
        QSize size;
        std::optional<Failure> failure;  // the reason alone
        std::chrono::steady_clock::time_point failedAt;
    };
    static Identity identify(const std::string& path);
    void forgetOld();
    bool fits(qint64 bytes) const;
    std::shared_ptr<const Picture> frame(const std::string& path, QSize size);
    std::shared_ptr<const Picture> read(const std::string& path, Known& known);

    std::map<Identity, Known> known_;
    std::vector<std::weak_ptr<const QtPicture>> frames_;
};

}  // namespace ladrix
