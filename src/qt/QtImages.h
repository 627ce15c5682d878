// Picture files of every format that the toolkit reads.
#pragma once

#include <QImage>

#include "platform/Platform.h"

namespace ladrix {

class QtPicture final : public Picture {
  public:
    explicit QtPicture(QImage image) : image_(std::move(image)) {}
    int pixelWidth() const override { return image_.width(); }
    int pixelHeight() const override { return image_.height(); }
    const QImage& image() const { return image_; }

    // The image averaged down to about this size; the image itself where it is not far larger.
    // The last size asked for is kept.
    const QImage& shrunkTo(const QSize& pixels) const;

  private:
    QImage image_;
    mutable QImage shrunk_;
};

constexpr qint64 LargestImage = 100'000'000;  // pixels

class QtImages final : public Images {
  public:
    std::shared_ptr<const Picture> load(const std::string& path) override;
};

}  // namespace ladrix
