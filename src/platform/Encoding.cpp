#include "platform/Encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace ladrix {

namespace {

using Byte = unsigned char;

// Introduces the escape of one byte of UTF-8: it is followed by two hexadecimal digits. Only bytes
// of 128 and more are escaped, so that no escape can hide a separator or a zero byte.
constexpr char Escape = '\x81';
constexpr Byte FieldSeparator = 255;

// The characters of the bytes 128 to 159; undefined ones stand for themselves.
constexpr std::array<char16_t, 32> UpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t characterOf(Byte byte) {
    return byte >= 128 && byte < 160 ? UpperControls[byte - 128u] : byte;
}

// nullopt outside Windows-1252, and for the character that would be taken for the escape.
std::optional<char> byteOf(char32_t character) {
    if (character < 128 || (character >= 160 && character < 256)) {
        return static_cast<char>(character);
    }
    const auto found = std::find(UpperControls.begin(), UpperControls.end(), character);
    if (found == UpperControls.end()) return std::nullopt;
    const char byte = static_cast<char>(128 + (found - UpperControls.begin()));
    if (byte == Escape) return std::nullopt;
    return byte;
}

struct Decoded {
    char32_t character = 0;
    size_t length = 0;  // 0: not well-formed
};

bool isContinuation(char c) {
    return (static_cast<Byte>(c) & 0xC0) == 0x80;
}

// The first character of a text that is not empty; overlong forms and surrogates are not
// well-formed.
Decoded decode(std::string_view utf8) {
    const Byte lead = static_cast<Byte>(utf8[0]);
    if (lead < 0x80) return {lead, 1};
    const size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || utf8.size() < length) return {};
    char32_t character = lead & (0x7Fu >> length);
    for (size_t i = 1; i < length; ++i) {
        if (!isContinuation(utf8[i])) return {};
        character = character << 6 | (static_cast<Byte>(utf8[i]) & 0x3Fu);
    }
    constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (character < smallest[length] || surrogate || character > 0x10FFFF) return {};
    return {character, length};
}

// Of characters below 0x10000; Windows-1252 has no others.
void encode(std::string& out, char32_t character) {
    if (character < 0x80) {
        out += static_cast<char>(character);
        return;
    }
    if (character < 0x800) {
        out += static_cast<char>(0xC0 | character >> 6);
    } else {
        out += static_cast<char>(0xE0 | character >> 12);
        out += static_cast<char>(0x80 | (character >> 6 & 0x3F));
    }
    out += static_cast<char>(0x80 | (character & 0x3F));
}

void appendEscapes(std::string& out, std::string_view bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    for (const char c : bytes) {
        const auto byte = static_cast<Byte>(c);
        out += Escape;
        out += digits[byte >> 4];
        out += digits[byte & 15];
    }
}

int hexValue(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    return -1;
}

// The byte that an escape at the start of the text stands for. Letters in either case, since a
// lower-cased name must still lead to its file.
std::optional<char> escapedByte(std::string_view text) {
    if (text.size() < 3 || text[0] != Escape) return std::nullopt;
    const int high = hexValue(text[1]), low = hexValue(text[2]);
    if (high < 8 || low < 0) return std::nullopt;
    return static_cast<char>(high * 16 + low);
}

// Of the ASCII at the start, which is the same in both encodings: most names are nothing else.
size_t plainLength(std::string_view text) {
    const auto other =
        std::find_if(text.begin(), text.end(), [](char c) { return static_cast<Byte>(c) >= 0x80; });
    return static_cast<size_t>(other - text.begin());
}

Byte lowered(char c) {
    const auto byte = static_cast<Byte>(c);
    if (byte >= 'A' && byte <= 'Z') return byte + 32;
    if (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7) return byte + 32;
    if (byte == 0x8A || byte == 0x8C || byte == 0x8E) return byte + 16;
    return byte == 0x9F ? 0xFF : byte;
}

// C1 controls are the bytes that Windows-1252 leaves undefined.
bool isControl(char32_t character) {
    return character < 32 || (character >= 127 && character < 160);
}

}  // namespace

std::string fromUtf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    const size_t plain = plainLength(utf8);
    text += utf8.substr(0, plain);
    utf8.remove_prefix(plain);
    while (!utf8.empty()) {
        const Decoded next = decode(utf8);
        const size_t length = std::max<size_t>(next.length, 1);
        const std::optional<char> byte = next.length ? byteOf(next.character) : std::nullopt;
        if (byte) {
            text += *byte;
        } else {
            appendEscapes(text, utf8.substr(0, length));
        }
        utf8.remove_prefix(length);
    }
    return text;
}

std::string toUtf8(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    const size_t plain = plainLength(text);
    utf8 += text.substr(0, plain);
    for (size_t i = plain; i < text.size(); ++i) {
        if (const std::optional<char> byte = escapedByte(text.substr(i))) {
            utf8 += *byte;
            i += 2;
        } else {
            encode(utf8, characterOf(static_cast<Byte>(text[i])));
        }
    }
    return utf8;
}

std::optional<std::string> recordText(std::string_view utf8) {
    std::string text;
    while (!utf8.empty()) {
        const Decoded next = decode(utf8);
        if (!next.length || isControl(next.character)) return std::nullopt;
        const std::optional<char> byte = byteOf(next.character);
        if (!byte || static_cast<Byte>(*byte) == FieldSeparator) return std::nullopt;
        text += *byte;
        utf8.remove_prefix(next.length);
    }
    return text;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowered(x) == lowered(y); });
}

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        c = static_cast<char>(lowered(c));
    return lower;
}

}  // namespace ladrix
