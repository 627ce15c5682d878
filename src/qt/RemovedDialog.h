// frmRemoved: what was removed as a list with pictures, and the button that brings it back. The
// dialog stays open, so that several can be brought back.
#pragma once

#include <QDialog>

#include "app/Program.h"

class QLabel;
class QPushButton;
class QTreeView;

namespace ladrix {

class RemovedItems;

class RemovedDialog final : public QDialog {
    Q_OBJECT

  public:
    RemovedDialog(Program& program, QWidget* parent);
    void run();
    void reject() override;

  private:
    void makeList();
    void bringBack();
    void showState();

    Program& program_;
    RemovedItems* items_;
    QTreeView* lstRemoved_;
    QLabel *lblTarget_, *lblMessage_;
    QPushButton *cmdBringBack_, *cmdExit_;
    bool showing_ = false;
};

}  // namespace ladrix
