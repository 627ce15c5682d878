// frmPrinter on the screen: the printer and the number of copies, and while it prints how far it
// has come and a Cancel that answers.
#pragma once

#include <QDialog>

#include "app/Program.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace ladrix {

class PrinterDialog final : public QDialog {
    Q_OBJECT

  public:
    PrinterDialog(Program& program, QWidget* parent);

    // Shows the form until its Visible is false and nothing is being printed.
    void run();

    // Shows what the state says now; also called from inside a print.
    void showState();

    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void showProgress();

    Program& program_;
    QComboBox* cmbPrinters_;
    QLineEdit* txtCopies_;
    QLabel* lblPrinting_;
    QProgressBar* progress_;
    QPushButton *cmdPrint_, *cmdCancelPrint_;
    int focusRequests_ = 0;
};

}  // namespace ladrix
