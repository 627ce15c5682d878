// Opens the help window, and lets F1 do so wherever the user is: the main window's own entry serves
// there, this filter serves every other window.
#pragma once

#include <QObject>
#include <QPointer>

#include "qt/HelpWindow.h"

namespace ladrix {

class HelpKey final : public QObject {
    Q_OBJECT

  public:
    // Watches the whole application as long as it lives; a child of the main window.
    HelpKey(Program& program, QObject* parent);
    ~HelpKey() override;

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
