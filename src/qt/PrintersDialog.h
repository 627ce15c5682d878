// frmPrinters on the screen: the printer for this session or for good, and how thick it draws.
#pragma once

#include <QDialog>

#include "app/Program.h"

class QComboBox;
class QLabel;

namespace ladrix {

// picLineWeight: one line as thick as it will print.
class LineWeightBox final : public QWidget {
    Q_OBJECT

  public:
    LineWeightBox(const Printing& printing, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Printing& printing_;
};

class PrintersDialog final : public QDialog {
    Q_OBJECT

  public:
    PrintersDialog(Program& program, QWidget* parent);

    // Shows the form until its Visible is false.
    void run();
    void showState();

    void reject() override;

  private:
    QWidget* makeButtons();

    Program& program_;
    QComboBox *cmbPrinters_, *cmbLineWeight_;
    QLabel* lblLineWeight_;
    LineWeightBox* picLineWeight_;
};

}  // namespace ladrix
