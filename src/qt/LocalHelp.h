// Help where the user is: the help window, F1 in every window (the main window's own entry serves
// there), and the tips of each window's controls.
#pragma once

#include <QObject>
#include <QPointer>

#include "qt/HelpWindow.h"

namespace ladrix {

class LocalHelp final : public QObject {
    Q_OBJECT

  public:
    // Watches the whole application as long as it lives; a child of the main window.
    LocalHelp(Program& program, QObject* parent);
    ~LocalHelp() override;

    // Shows frmHelp from its state, in front. While a dialog is up, the help belongs to it, or the
    // dialog would keep it from being used.
    void openWindow();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void belongTo(QWidget* owner);

    Program& program_;
    QPointer<HelpWindow> window_;
};

}  // namespace ladrix
