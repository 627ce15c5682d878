// The lines and fields of a master text, for those who read one. Text comes in three forms, told
// apart by what divides the fields; one form holds for a whole text.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "document/Records.h"
#include "platform/Numbers.h"

namespace ladrix {

constexpr std::string_view WrittenSeparator = "\xFF";
// The byte 255 after a way through mail as quoted-printable text.
constexpr std::string_view QuotedSeparator = "=FF";
constexpr std::string_view OldSeparator = ", ";

// Of a whole master text: the first of the three that it holds anywhere; nullopt if it holds none.
std::optional<std::string_view> separatorOf(std::string_view text);

// Whether a digit, the mark and a digit stand behind the second separator of the line. A text's
// first line tells by it which mark its numbers are written with.
bool hasDecimal(std::string_view line, std::string_view separator, char mark);

// Takes the fields of a line, left to right. A field that isn't there reads as "".
class Fields {
  public:
    Fields(std::string_view line, std::string_view separator)
        : rest_(line), separator_(separator), end_(find()) {}

    std::string_view next() {
        const std::string_view field = rest_.substr(0, end_);
        rest_ = hasMore() ? rest_.substr(end_ + separator_.size()) : std::string_view{};
        end_ = find();
        return field;
    }
    // The last field: all that remains, separators too.
    std::string_view rest() const { return rest_; }
    bool hasMore() const { return end_ != std::string_view::npos; }

    Single single() { return toSingle(next()); }
    Long number() { return toLong(next()); }

  private:
    std::size_t find() const {
        return separator_.size() == 1 ? rest_.find(separator_[0]) : rest_.find(separator_);
    }

    std::string_view rest_, separator_;
    std::size_t end_;  // of the next field, in rest_
};

// The lines of a text: those ended by CR LF. What comes behind the last line end is no line.
class Lines {
  public:
    explicit Lines(std::string_view text) : text_(text) {}

    std::optional<std::string_view> next() {
        const std::size_t end = text_.find(LineEnd, start_);
        if (end == std::string_view::npos) return std::nullopt;
        lineStart_ = start_;
        start_ = end + LineEnd.size();
        return text_.substr(lineStart_, end - lineStart_);
    }
    // Where in the text the line begins that next() gave last.
    std::size_t lineStart() const { return lineStart_; }

  private:
    std::string_view text_;
    std::size_t start_ = 0, lineStart_ = 0;
};

}  // namespace ladrix
