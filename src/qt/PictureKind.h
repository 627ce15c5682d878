// What a picture file is, told by its first bytes and never by its name. Only what the program
// offers to insert is recognised.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace ladrix {

enum class PictureKind { None, Bmp, Gif, Ico, Jpeg, Png, Svg, Wmf };

constexpr std::size_t PictureHead = 4096;  // bytes that are enough to tell

PictureKind pictureKindOf(std::string_view head);

// The toolkit's name of a kind of dots; nullptr for a drawn one, and for none.
const char* formatOf(PictureKind kind);

// What a metafile states, in 1/96 inch, at least 1 by 1; nothing if it does not.
struct StatedSize {
    double width = 0, height = 0;
};
std::optional<StatedSize> statedSize(std::string_view metafile);

}  // namespace ladrix
