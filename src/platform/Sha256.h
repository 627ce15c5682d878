// The check sum of a file's content.
#pragma once

#include <string>
#include <string_view>

namespace ladrix {

// SHA-256, 64 hexadecimal digits in lower case.
std::string sha256(std::string_view bytes);

}  // namespace ladrix
