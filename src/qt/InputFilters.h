// What a field lets in: characters that its text cannot hold never enter, typed or pasted.
#pragma once

#include <QTextCursor>
#include <QValidator>

namespace ladrix {

// Text for a record.
class RecordTextFilter final : public QValidator {
    Q_OBJECT

  public:
    using QValidator::QValidator;
    State validate(QString& input, int& cursor) const override;

  signals:
    void refused() const;  // something was kept out
};

// For a box of several lines, which has no validator: the text that is held takes the place of what
// the box shows. Returns the cursor, as far from the end as it was.
QTextCursor showHeld(QTextCursor cursor, const QString& held);

// The digits and decimal marks of a number field.
class NumberFilter final : public QValidator {
    Q_OBJECT

  public:
    using QValidator::QValidator;
    State validate(QString& input, int& cursor) const override;
};

}  // namespace ladrix
