// Text at the seam: the core's bytes and the toolkit's strings.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace ladrix {

QString toQString(std::string_view text);
std::string fromQString(const QString& text);

}  // namespace ladrix
