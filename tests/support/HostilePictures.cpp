#include "support/HostilePictures.h"

#include <initializer_list>

namespace ladrix::test {

namespace {

using namespace std::string_literals;

std::string words(std::initializer_list<int> values) {
    std::string text;
    for (const int value : values) {
        text += static_cast<char>(value & 0xFF);
        text += static_cast<char>((value >> 8) & 0xFF);
    }
    return text;
}

std::string repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

std::string svg(const std::string& inside) {
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "width='100' height='100'>" +
           inside + "</svg>";
}

std::string laughs() {
    std::string entities = "<!ENTITY a0 'ha'>";
    for (int i = 1; i < 30; ++i) {
        const std::string former = "&a" + std::to_string(i - 1) + ";";
        entities += "<!ENTITY a" + std::to_string(i) + " '" + repeated(former, 10) + "'>";
    }
    return "<!DOCTYPE svg [" + entities + "]>" + svg("<text y='20'>&a29;</text>");
}

// Each level shows the one below ten times.
std::string uses() {
    std::string levels = "<defs><rect id='u0' width='1' height='1'/>";
    for (int i = 1; i < 12; ++i)
        levels += "<g id='u" + std::to_string(i) + "'>" +
                  repeated("<use xlink:href='#u" + std::to_string(i - 1) + "'/>", 10) + "</g>";
    return svg(levels + "</defs><use xlink:href='#u11'/>");
}

// Takes minutes, if it is let.
std::string strokes() {
    return svg("<path d='M0 0" + repeated("L1e6 1e6L0 99L1e6 0L0 0", 300) +
               "' stroke='red' stroke-width='50000' stroke-linejoin='round'/>");
}

constexpr auto Refers = "refers to other files";
constexpr auto Metafile = "not a metafile that can be read";

std::vector<HostilePicture> drawn(const std::string& neighbour) {
    const std::string image = "<image width='9' height='9' xlink:href='";
    return {
        {"laughs.svg", laughs(), "declares entities"},
        {"external entity.svg",
         "<!DOCTYPE svg [<!ENTITY a SYSTEM '" + neighbour + "'>]>" + svg("&a;"),
         "declares entities"},
        {"deep.svg", svg(repeated("<g>", 50000) + repeated("</g>", 50000)), "too deep"},
        {"blur.svg",
         svg("<filter id='f'><feGaussianBlur stdDeviation='99999'/></filter>"
             "<rect width='1e7' height='1e7' filter='url(#f)'/>"),
         "", true},
        {"dashes.svg", svg("<path d='M0 0H1e9' stroke='red' stroke-dasharray='0.001'/>"), "", true},
        {"uses.svg", uses(), "", true},
        {"circular.svg", svg("<g id='a'><use xlink:href='#a'/></g>"), "", true},
        {"strokes.svg", strokes(), "too"},
        {"wide.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='2e9' height='2e9'/>", "",
         true},
        {"image.png", svg(image + neighbour + "'/>"), Refers},
        {"relative.svg", svg(image + neighbour.substr(neighbour.rfind('/') + 1) + "'/>"), Refers},
        {"scheme.svg", svg(image + "file://" + neighbour + "'/>"), Refers},
        {"embedded.bmp", svg(image + "data:image/png;base64,PHN2ZyB4bWxucz0iYSI+PC9zdmc+'/>"),
         Refers},
        {"use.svg", svg("<use xlink:href='" + neighbour + "#a'/>"), Refers},
        {"fill.svg", svg("<rect fill='url( \"" + neighbour + "#a\")'/>"), Refers},
        {"style.svg", svg("<style>@import '" + neighbour + "';</style>"), Refers},
        {"sheet.svg", "<?xml-stylesheet href='" + neighbour + "'?>" + svg(""), Refers},
        {"cut.svg", svg("<g>").substr(0, 130), "not a picture that can be read"},
    };
}

const std::string MetafileHeader = words({1, 9, 0x300, 41, 0, 1, 8, 0, 0});

std::vector<HostilePicture> dotted() {
    const std::string jpegSize = "\xFF\xC0\x00\x11\x08\xFF\xFF\xFF\xFF\x03\x01\x22"s;
    return {
        {"points.wmf", MetafileHeader + words({20, 0, 0x325, 65535, 1, 1}), Metafile},
        {"record.wmf", MetafileHeader + words({0xFFFF, 0x7FFF, 0x41B, 1, 1}), Metafile},
        {"noise.wmf", MetafileHeader + std::string(4000, '\x5A'), Metafile},
        {"cut.wmf", boxMetafile().substr(0, 60), Metafile},
        {"size.bmp",
         "BM"s + words({54, 0, 0, 0, 54, 0, 40, 0, 0, 0x4000, 0, 0x4000, 1, 24}) +
             std::string(24, '\0'),
         ""},
        {"size.png",
         "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF\x08\x02\0\0\0\0\0\0\0"s,
         ""},
        {"size.gif", "GIF89a\xFF\xFF\xFF\xFF\0\0\0,\0\0\0\0\xFF\xFF\xFF\xFF\0\2\1\0;"s, ""},
        {"size.jpg", "\xFF\xD8\xFF\xE0\0\4\0\0"s + jpegSize, ""},
        {"count.ico", "\0\0\1\0\xFF\xFF"s + std::string(16, '\xFF'), ""},
        {"empty.png", "", "not a picture"},
        {"text.wmf", "Dear Sir, this is no picture at all.", "not a picture"},
        {"other.ppm", "P6\n2 2\n255\n123456789012", "not a picture"},
    };
}

}  // namespace

std::vector<HostilePicture> hostilePictures(const std::string& neighbour) {
    std::vector<HostilePicture> all = drawn(neighbour);
    for (HostilePicture& picture : dotted())
        all.push_back(std::move(picture));
    return all;
}

std::string boxMetafile() {
    return words({0xCDD7, 0x9AC6, 0, 0, 0, 2880, 1440, 1440, 0, 0, 0x5C51}) +  // placeable header
           MetafileHeader + words({5, 0, 0x20B, 0, 0}) +                       // window origin
           words({5, 0, 0x20C, 1440, 2880}) +                                  // window extent
           words({8, 0, 0x2FA, 0, 60, 0, 255, 0}) +                            // red pen
           words({4, 0, 0x12D, 0}) + words({7, 0, 0x41B, 1400, 2840, 40, 40}) + words({3, 0, 0});
}

}  // namespace ladrix::test
