#include "qt/FileIcons.h"

#include <QByteArray>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <array>

namespace ladrix {

namespace {

// Strokes on a grid of 16 by 16.
constexpr std::array<const char*, 7> Strokes = {
    "M1.5 12.5v-9h4.5l1.5 2h7v7z",
    "M3.5 1.5h6l3 3v10h-9z M9.5 1.5v3h3 M5 10.5h1.5 M6.5 9v3 M9.5 9v3 M9.5 10.5h1.5",
    "M3.5 1.5h6l3 3v10h-9z M9.5 1.5v3h3 M5.5 7.5h5v5h-5z M5.5 10.5h5",
    "M8 13V3.5 M3.5 8L8 3.5L12.5 8",
    "M1.5 3.5h13v9h-13z M3 11l3.5-4l2.5 3l1.5-1.5l2.5 2.5 M10.5 6h1",
    "M3.5 2.5h2.5v11h-2.5z M6 2.5h2.5v11h-2.5z M9.5 3.5l2.2-.6l2.3 10l-2.2.6z",
    "M3.5 1.5h6l3 3v10h-9z M9.5 1.5v3h3 M5.5 8h5 M5.5 10.5h5",
};

QPixmap drawn(FileIcon icon, int size, const char* color) {
    const QByteArray svg = QByteArray(
                               "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'>"
                               "<path fill='none' stroke='") +
                           color + "' stroke-linejoin='round' stroke-linecap='round' d='" +
                           Strokes[static_cast<std::size_t>(icon)] + "'/></svg>";
    QSvgRenderer renderer(svg);
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

QIcon made(FileIcon icon) {
    const char* const quiet = icon == FileIcon::Folder ? "#2b6cd4" : "#5b6470";
    QIcon result;
    for (const int size : {16, 18, 24, 32, 36, 48, 64}) {
        result.addPixmap(drawn(icon, size, quiet));
        result.addPixmap(drawn(icon, size, "#ffffff"), QIcon::Selected);
        result.addPixmap(drawn(icon, size, "#a3aab4"), QIcon::Disabled);
    }
    return result;
}

}  // namespace

const QIcon& fileIcon(FileIcon icon) {
    static const std::array<QIcon, Strokes.size()> icons = {
        made(FileIcon::Folder), made(FileIcon::Drawing), made(FileIcon::Template),
        made(FileIcon::Up),     made(FileIcon::Picture), made(FileIcon::Library),
        made(FileIcon::Page)};
    return icons[static_cast<std::size_t>(icon)];
}

}  // namespace ladrix
