// What a field lets in: characters that its text cannot hold never enter, typed or pasted.
#pragma once

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

// The digits and decimal marks of a number field.
class NumberFilter final : public QValidator {
    Q_OBJECT

  public:
    using QValidator::QValidator;
    State validate(QString& input, int& cursor) const override;
};

}  // namespace ladrix
