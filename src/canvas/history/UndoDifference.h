// What tells one piece of a snapshot from another one of as many lines. Each line keeps the start
// and the end that it shares with its line in the base; what stands between them is written anew:
//
//   255                          the line is the base's
//   start end length middle      bytes; the middle is packed where it is a number or several
//
// Two characters of a packed middle take one byte. Nothing of it goes to disk.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ladrix {

// Of what the lines of a text are: each with its end, the last one perhaps without.
std::size_t countLines(std::string_view text);
// The line that a text begins with; "" of an empty one.
std::string_view firstLine(std::string_view text);

// nullopt if the texts have not the same number of lines, or one differs in too long a middle.
std::optional<std::string> differenceTo(std::string_view base, std::string_view text);

// Appends the text that `difference` makes of `base`.
void appendChanged(std::string& out, std::string_view base, std::string_view difference);

}  // namespace ladrix
