// The plain value types of the whole system.
//
// Text in the core is a std::string of Windows-1252 bytes (see Encoding.h); a file means the same
// on every machine. Coordinates are inches of the page, X to the right and Y downwards. Colours are
// 24-bit numbers with red in the low byte.
#pragma once

#include <cstdint>
#include <limits>
#include <string>

namespace ladrix {

using Single = float;        // 32-bit float
using Long = std::int32_t;   // 32-bit signed
using Short = std::int16_t;  // 16-bit signed

constexpr Long RGB(int red, int green, int blue) {
    return red | (green << 8) | (blue << 16);
}

constexpr Long Black = 0;
constexpr Long White = RGB(255, 255, 255);
constexpr Long Red = 255;
constexpr Long Blue = 0xFF0000;
constexpr Long Cyan = 0xFFFF00;
constexpr Long Magenta = RGB(255, 0, 255);
// The system's button face: a mark that the view resolves, not a colour value.
constexpr Long ButtonFace = static_cast<Long>(0x8000000Fu);

constexpr double Pi = 3.14159265358979323846;
constexpr Single TwipsPerInch = 1440;

// An axis-parallel rectangle in inches. Empty until something is added; an empty one meets nothing.
struct Extent {
    Single left = std::numeric_limits<Single>::max();
    Single top = std::numeric_limits<Single>::max();
    Single right = std::numeric_limits<Single>::lowest();
    Single bottom = std::numeric_limits<Single>::lowest();

    static constexpr Extent everything() {
        return {std::numeric_limits<Single>::lowest(), std::numeric_limits<Single>::lowest(),
                std::numeric_limits<Single>::max(), std::numeric_limits<Single>::max()};
    }
    constexpr bool empty() const { return right < left || bottom < top; }
    constexpr Single width() const { return empty() ? 0 : right - left; }
    constexpr Single height() const { return empty() ? 0 : bottom - top; }
    constexpr void add(Single x, Single y) {
        if (x < left) left = x;
        if (x > right) right = x;
        if (y < top) top = y;
        if (y > bottom) bottom = y;
    }
    constexpr void add(const Extent& other) {
        if (other.empty()) return;
        add(other.left, other.top);
        add(other.right, other.bottom);
    }
    constexpr bool meets(const Extent& other) const {
        return left <= other.right && right >= other.left && top <= other.bottom &&
               bottom >= other.top;
    }
};

// What a failing step throws. Caught by the guarded routine that called the step, never beyond it.
struct Failure {
    int number = 0;
    std::string text;
};

// The classic failure numbers that the core uses.
namespace failure {
constexpr int InvalidCall = 5;
constexpr int Overflow = 6;
constexpr int Subscript = 9;
constexpr int TypeMismatch = 13;
constexpr int FileNotFound = 53;
constexpr int DeviceIO = 57;
constexpr int DiskFull = 61;
constexpr int PermissionDenied = 70;
constexpr int PathFileAccess = 75;
constexpr int PathNotFound = 76;
constexpr int InvalidProperty = 380;
}  // namespace failure

}  // namespace ladrix
