#include "qt/PictureKind.h"

#include <algorithm>
#include <cstdint>

namespace ladrix {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t BitmapHeader = 14;
constexpr auto PlaceableKey = "\xD7\xCD\xC6\x9A"sv;
constexpr std::size_t PlaceableLength = 22;
constexpr double PixelsPerInch = 96;

std::uint32_t wordAt(std::string_view bytes, std::size_t place) {
    return static_cast<unsigned char>(bytes[place]) |
           static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[place + 1])) << 8;
}

// One that states its size, or the bare header: in memory or on disk, of nine words, version 1
// or 3.
bool isMetafile(std::string_view head) {
    if (head.starts_with(PlaceableKey)) return true;
    if (head.size() < 6) return false;
    const std::uint32_t type = wordAt(head, 0), version = wordAt(head, 4);
    return (type == 1 || type == 2) && wordAt(head, 2) == 9 &&
           (version == 0x100 || version == 0x300);
}

bool isSvg(std::string_view head) {
    if (head.starts_with("\xEF\xBB\xBF"sv)) head.remove_prefix(3);
    head.remove_prefix(std::min(head.find_first_not_of(" \t\r\n"), head.size()));
    return head.starts_with('<') && head.find("<svg"sv) != std::string_view::npos;
}

}  // namespace

PictureKind pictureKindOf(std::string_view head) {
    head = head.substr(0, PictureHead);
    if (head.starts_with("\x89PNG\r\n\x1A\n"sv)) return PictureKind::Png;
    if (head.starts_with("\xFF\xD8\xFF"sv)) return PictureKind::Jpeg;
    if (head.starts_with("GIF87a"sv) || head.starts_with("GIF89a"sv)) return PictureKind::Gif;
    if (head.starts_with("BM"sv) && head.size() >= BitmapHeader) return PictureKind::Bmp;
    if (head.starts_with("\0\0\1\0"sv) || head.starts_with("\0\0\2\0"sv)) return PictureKind::Ico;
    if (isMetafile(head)) return PictureKind::Wmf;
    return isSvg(head) ? PictureKind::Svg : PictureKind::None;
}

std::optional<StatedSize> statedSize(std::string_view metafile) {
    if (metafile.size() < PlaceableLength || !metafile.starts_with(PlaceableKey)) return {};
    const auto number = [&](std::size_t at) {
        return static_cast<std::int16_t>(wordAt(metafile, at));
    };
    const double perInch = wordAt(metafile, 14);
    if (perInch == 0) return {};
    const double scale = PixelsPerInch / perInch;
    const StatedSize size{(number(10) - number(6)) * scale, (number(12) - number(8)) * scale};
    return size.width >= 1 && size.height >= 1 ? std::optional(size) : std::nullopt;
}

const char* formatOf(PictureKind kind) {
    switch (kind) {
        case PictureKind::Bmp:
            return "bmp";
        case PictureKind::Gif:
            return "gif";
        case PictureKind::Ico:
            return "ico";
        case PictureKind::Jpeg:
            return "jpeg";
        case PictureKind::Png:
            return "png";
        default:
            return nullptr;
    }
}

}  // namespace ladrix
