#include "browser/FileDescription.h"

#include "platform/Encoding.h"

namespace ladrix {

namespace {

constexpr std::string_view EndMarker = "///End File Description///";
constexpr std::string_view HarmlessMarker = "End File Description";

bool isControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    const bool undefined =
        byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
    return (byte < 32 && c != '\t') || byte == 127 || undefined;
}

// A character outside Windows-1252 arrives as escapes of the byte 0x81 and two digits.
constexpr char Escape = '\x81';
constexpr std::size_t EscapeLength = 3;

}  // namespace

std::string describable(std::string_view utf8) {
    const std::string typed = fromUtf8(utf8);
    std::string text;
    text.reserve(typed.size());
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const char c = typed[i];
        const bool lineFeedOfPair = c == '\n' && i > 0 && typed[i - 1] == '\r';
        if (c == Escape) i += EscapeLength - 1;
        if (c == '\r' || (c == '\n' && !lineFeedOfPair)) text += "\r\n";
        if (!isControl(c)) text += c;
    }
    for (auto at = text.find(EndMarker); at != std::string::npos; at = text.find(EndMarker))
        text.replace(at, EndMarker.size(), HarmlessMarker);
    return text;
}

void frmDesc_txtDescription_Change(Editor& editor, std::string_view utf8) {
    editor.frmDesc.txtDescription = describable(utf8);
}

}  // namespace ladrix
