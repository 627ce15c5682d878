#include "output/PageReplay.h"

#include <utility>

namespace ladrix {

namespace {

// The tool in hand does not notice that its parameter block has served a page meanwhile.
class KeepToolState {
  public:
    explicit KeepToolState(Symbols& symbols)
        : symbols_(symbols),
          block_(symbols.block),
          radius_(symbols.LastRadius),
          direction_(symbols.LastDirection) {}
    ~KeepToolState() {
        symbols_.block = std::move(block_);
        symbols_.LastRadius = radius_;
        symbols_.LastDirection = direction_;
    }
    KeepToolState(const KeepToolState&) = delete;
    KeepToolState& operator=(const KeepToolState&) = delete;

  private:
    Symbols& symbols_;
    DeviceBlock block_;
    Single radius_;
    Short direction_;
};

void replayDevices(Page& page, Symbols& symbols, Drawing& drawing, const Platform& platform) {
    for (Short i = 0; i < drawing.devices.DeviceCount; ++i)
        drawRow(symbols, drawing, platform, page, drawing.devices, i,
                drawing.devices.DeviceColor[static_cast<std::size_t>(i)]);
}

std::string replayPictures(Page& page, const Drawing& drawing, const Platform& platform) {
    std::string leftOut;
    for (const PictureRow& row : drawing.PictureTable) {
        std::shared_ptr<const Picture> picture;
        try {
            picture = platform.images->load(row.FullPath);
        } catch (const Failure& failure) {
            if (!leftOut.empty()) leftOut += '\n';
            leftOut += row.FileName + " is left out: " + failure.text;
            continue;
        }
        page.PaintPicture(*picture, row.Left, row.Top, row.Width, row.Height);
    }
    return leftOut;
}

void replayLabels(Page& page, const Symbols& symbols, const LabelTable& labels) {
    for (Short i = 0; i < labels.LabelCount; ++i) {
        const Label label = labels.row(i);
        FontSpec font{label.fontName, label.fontSize, label.bold || symbols.ThickDevices,
                      label.italic};
        if (font.name.empty()) font = {"Arial", FontSpec{}.size, font.bold, font.italic};
        if (!(font.size > 0)) font.size = FontSpec{}.size;
        page.Text(label.x, label.y, font, label.text, label.color);
    }
}

}  // namespace

std::string replayPage(Page& page, Symbols& symbols, Drawing& drawing, const Platform& platform) {
    const KeepToolState keep(symbols);
    replayDevices(page, symbols, drawing, platform);
    std::string leftOut = replayPictures(page, drawing, platform);
    replayLabels(page, symbols, drawing.labels);
    return leftOut;
}

}  // namespace ladrix
