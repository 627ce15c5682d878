#include "qt/QtText.h"

#include <QTextDocument>

#include "platform/Encoding.h"

namespace ladrix {

QString toQString(std::string_view text) {
    return QString::fromStdString(toUtf8(text));
}

std::string fromQString(const QString& text) {
    return fromUtf8(text.toStdString());
}

QStringList toQStringList(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts)
        list << toQString(text);
    return list;
}

QString boxText(std::string_view text) {
    return toQString(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QString plainTip(const QString& text) {
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

}  // namespace ladrix
