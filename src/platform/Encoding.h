// Text in the core is Windows-1252; the world outside (screen, file system) speaks UTF-8.
//
// Records and captions hold Windows-1252 only. File and folder names may hold anything the file
// system allows: a character outside Windows-1252 (or a byte that is not UTF-8) is carried through
// the core as an escape of the undefined byte 0x81, so that toUtf8(fromUtf8(name)) == name always.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ladrix {

// From the outside: lossless as above.
std::string fromUtf8(std::string_view utf8);

// To the outside. Escapes of fromUtf8 become what they stood for.
std::string toUtf8(std::string_view text);

// Text that a person typed, for a record: nullopt if it holds a character outside Windows-1252, the
// byte 255 (the field separator), a line end or another control character.
std::optional<std::string> recordText(std::string_view utf8);

// Whether two texts are equal but for the case of letters, by Windows-1252.
bool equalIgnoringCase(std::string_view a, std::string_view b);

std::string lowerCase(std::string_view text);

}  // namespace ladrix
