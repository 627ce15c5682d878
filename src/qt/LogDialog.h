// frmLog on the screen: the error log, to be read and handed over.
#pragma once

#include <QDialog>

#include "app/Program.h"

class QPlainTextEdit;

namespace ladrix {

class LogDialog final : public QDialog {
    Q_OBJECT

  public:
    LogDialog(Program& program, QWidget* parent);

    // Shows the form until its Visible is false.
    int run();

    void reject() override;

  private:
    Program& program_;
    QPlainTextEdit* txtLog_;
};

}  // namespace ladrix
