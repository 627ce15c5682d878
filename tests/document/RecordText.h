// Records as a person reads them.
#pragma once

#include <string>
#include <string_view>

namespace ladrix::test {

// `|` stands for the field separator, a line feed for the line end.
inline std::string asRecords(std::string_view readable) {
    std::string text;
    for (const char c : readable) {
        if (c == '|') {
            text += '\xFF';
        } else if (c == '\n') {
            text += "\r\n";
        } else {
            text += c;
        }
    }
    return text;
}

// The other direction, for comparisons with readable failure messages.
inline std::string readable(std::string_view records) {
    std::string text;
    for (const char c : records) {
        if (c == '\xFF') {
            text += '|';
        } else if (c != '\r') {
            text += c;
        }
    }
    return text;
}

}  // namespace ladrix::test
