// Any bytes as a picture file: what kind it is, whether an SVG leads out of itself, and what size a
// metafile states.
#include "Machine.h"
#include "qt/PictureKind.h"
#include "qt/SvgCheck.h"

namespace {

using namespace ladrix;

// A text that has passed fails once it refers to a file at its end.
void checkSvgText(std::string_view svg) {
    const SvgCheck check = checkSvg(svg);
    fuzz::require(check.families.size() <= MostSvgFonts);
    if (check.fault != SvgFault::None) return;
    const std::size_t end = svg.rfind("</");
    if (end == std::string_view::npos) return;
    for (const std::string_view mark : {"-->", "]]>", "?>"})
        if (svg.find(mark, end) != std::string_view::npos) return;
    std::string referring(svg);
    referring.insert(end, "<image href='/etc/hostname'/>");
    fuzz::require(checkSvg(referring).fault != SvgFault::None);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const PictureKind kind = pictureKindOf(text);
    fuzz::require(kind == pictureKindOf(text.substr(0, PictureHead)));
    fuzz::require(
        (formatOf(kind) == nullptr) ==
        (kind == PictureKind::None || kind == PictureKind::Svg || kind == PictureKind::Wmf));
    if (const auto stated = statedSize(text))
        fuzz::require(kind == PictureKind::Wmf && stated->width >= 1 && stated->height >= 1);
    checkSvgText(text);
    return 0;
}
