#include "document/RecordLines.h"

namespace ladrix {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

std::optional<std::string_view> separatorOf(std::string_view text) {
    for (const std::string_view separator : {WrittenSeparator, QuotedSeparator, OldSeparator})
        if (text.find(separator) != std::string_view::npos) return separator;
    return std::nullopt;
}

bool hasDecimal(std::string_view line, std::string_view separator, char mark) {
    Fields fields(line, separator);
    fields.next();
    if (!fields.hasMore()) return false;
    fields.next();
    const std::string_view rest = fields.rest();
    for (std::size_t i = 1; i + 1 < rest.size(); ++i) {
        if (rest[i] == mark && isDigit(rest[i - 1]) && isDigit(rest[i + 1])) return true;
    }
    return false;
}

}  // namespace ladrix
