#include "qt/InputFilters.h"

#include <QTextDocument>
#include <algorithm>

#include "canvas/tools/RadiusFields.h"
#include "platform/Encoding.h"

namespace ladrix {

namespace {

// True if something had to go. A character outside the 16-bit plane is two units, neither of which
// is accepted alone.
template <class Accepts>
bool keepOnly(QString& input, int& cursor, Accepts accepts) {
    QString kept;
    int keptCursor = 0;
    for (int i = 0; i < input.size(); ++i) {
        if (!accepts(input.at(i))) continue;
        kept += input.at(i);
        if (i < cursor) ++keptCursor;
    }
    if (kept.size() == input.size()) return false;
    input = kept;
    cursor = keptCursor;
    return true;
}

}  // namespace

QValidator::State RecordTextFilter::validate(QString& input, int& cursor) const {
    const bool cut = keepOnly(input, cursor, [](QChar character) {
        return !character.isSurrogate() && recordText(QString(character).toStdString()).has_value();
    });
    if (cut) emit refused();
    return Acceptable;
}

QTextCursor showHeld(QTextCursor cursor, const QString& held) {
    const int fromEnd = cursor.document()->characterCount() - 1 - cursor.position();
    cursor.joinPreviousEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.insertText(held);
    cursor.endEditBlock();
    cursor.setPosition(std::max(0, static_cast<int>(held.size()) - fromEnd));
    return cursor;
}

QValidator::State NumberFilter::validate(QString& input, int& cursor) const {
    keepOnly(input, cursor, [](QChar character) {
        return character.unicode() < 128 &&
               numberKeyAllowed(static_cast<Short>(character.unicode()));
    });
    return Acceptable;
}

}  // namespace ladrix
