// Picture files of every format that the toolkit reads, and Windows metafiles.
#pragma once

#include <QImage>

#include "platform/Platform.h"

namespace ladrix {

class QtPicture final : public Picture {
  public:
    // `density`: image pixels to one pixel of the picture's size.
    explicit QtPicture(QImage image, int density = 1)
        : image_(std::move(image)), density_(density) {}
    int pixelWidth() const override { return qMax(image_.width() / density_, 1); }
    int pixelHeight() const override { return qMax(image_.height() / density_, 1); }
    const QImage& image() const { return image_; }

    // The image averaged down to about this size; the image itself where it is not far larger.
    // The last size asked for is kept.
    const QImage& shrunkTo(const QSize& pixels) const;

  private:
    QImage image_;
    int density_ = 1;
    mutable QImage shrunk_;
};

constexpr qint64 LargestImage = 100'000'000;  // pixels
constexpr qint64 LargestBitmap = 1'000'000;   // of icons and previews

class QtImages final : public Images {
  public:
    std::shared_ptr<const Picture> load(const std::string& path) override;
    std::shared_ptr<const Picture> fromBitmap(std::string_view bytes) override;
    std::string bitmapText(const Picture& picture) override;
    std::unique_ptr<PictureBox> makePicture(int width, int height) override;
};

}  // namespace ladrix
