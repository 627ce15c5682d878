// Text at the seam: the core's bytes and the toolkit's strings.
#pragma once

#include <QStringList>
#include <string>
#include <string_view>
#include <vector>

namespace ladrix {

QString toQString(std::string_view text);
std::string fromQString(const QString& text);

QStringList toQStringList(const std::vector<std::string>& texts);

// For a box of several lines, which divides them by a line feed alone.
QString boxText(std::string_view text);

// For a tip that shows the text as it is: one with tags would else be taken for rich text.
QString plainTip(const QString& text);

}  // namespace ladrix
