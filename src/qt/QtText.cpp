#include "qt/QtText.h"

#include "platform/Encoding.h"

namespace ladrix {

QString toQString(std::string_view text) {
    return QString::fromStdString(toUtf8(text));
}

std::string fromQString(const QString& text) {
    return fromUtf8(text.toStdString());
}

}  // namespace ladrix
