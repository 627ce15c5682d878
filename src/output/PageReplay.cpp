#include "output/PageReplay.h"

#include <memory>
#include <utility>
#include <vector>

#include "output/KeepToolState.h"

namespace ladrix {

namespace {

void replayDevices(Page& page, Symbols& symbols, Drawing& drawing, const Platform& platform) {
    for (Short i = 0; i < drawing.devices.DeviceCount; ++i)
        drawRow(symbols, drawing, platform, page, drawing.devices, i,
                drawing.devices.DeviceColor[static_cast<std::size_t>(i)]);
}

std::string replayPictures(Page& page, const Drawing& drawing, const Platform& platform) {
    std::string leftOut;
    std::vector<std::shared_ptr<const Picture>> kept;  // so that none is read twice
    for (const PictureRow& row : drawing.PictureTable) {
        std::shared_ptr<const Picture> picture;
        try {
            picture = platform.images->load(row.FullPath);
        } catch (const Failure& failure) {
            const std::string told = row.FileName + " is left out: " + failure.text;
            if (leftOut.find(told) != std::string::npos) continue;
            if (!leftOut.empty()) leftOut += '\n';
            leftOut += told;
            continue;
        }
        page.PaintPicture(*picture, row.Left, row.Top, row.Width, row.Height);
        kept.push_back(std::move(picture));
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

PageContent drawingPage(Symbols& symbols, Drawing& drawing, const Platform& platform, PageSize size,
                        std::string& leftOut) {
    PageContent content;
    content.width = static_cast<double>(size.PageWidth);
    content.height = static_cast<double>(size.PageHeight);
    content.title = drawing.CurrentFileName;
    content.paint = [&](Page& page) { leftOut = replayPage(page, symbols, drawing, platform); };
    return content;
}

std::optional<PageFormat> pageFormatOf(std::string_view fileName) {
    const std::string ending = extensionOf(fileName);
    if (ending == ".pdf") return PageFormat::Pdf;
    if (ending == ".svg") return PageFormat::Svg;
    if (ending == ".png") return PageFormat::Png;
    if (ending == ".bmp") return PageFormat::Bmp;
    return std::nullopt;
}

}  // namespace ladrix
