// frmDesc on the screen: the description that is kept with the drawing.
#pragma once

#include <QDialog>

#include "app/Program.h"

class QPlainTextEdit;

namespace ladrix {

class DescriptionDialog final : public QDialog {
    Q_OBJECT

  public:
    DescriptionDialog(Program& program, QWidget* parent);

    // Shows the form until its Visible is false.
    int run();

    void reject() override;

  private:
    void takeText();
    void closeIfHidden();

    Program& program_;
    QPlainTextEdit* txtDescription_;
};

}  // namespace ladrix
