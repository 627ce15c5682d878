#include "qt/Binding.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

void Bindings::add(QAbstractButton& button, const Control& state, Handler handler) {
    watch(state, [&button, handler](const Control& now) {
        button.setVisible(now.Visible);
        button.setEnabled(now.Enabled && handler == Handler::Present);
        if (!now.Caption.empty()) button.setText(toQString(now.Caption));
        if (!now.ToolTipText.empty()) button.setToolTip(toQString(now.ToolTipText));
        if (auto* tool = qobject_cast<QToolButton*>(&button); tool && tool->text().isEmpty())
            tool->setAutoRaise(now.BackColor == ButtonFace);
        QPalette palette = button.palette();
        palette.setColor(QPalette::Button, theme::color(now.BackColor));
        button.setPalette(palette);
    });
}

void Bindings::add(QLabel& label, const Control& state) {
    watch(state, [&label](const Control& now) {
        label.setVisible(now.Visible);
        if (!now.Caption.empty()) label.setText(toQString(now.Caption));
    });
}

void Bindings::add(QLineEdit& edit, const TextBox& state) {
    watch(state, [&edit, marked = 0](const TextBox& now) mutable {
        edit.setVisible(now.Visible);
        edit.setEnabled(now.Enabled);
        const QString text = toQString(now.Text);
        if (edit.text() != text) edit.setText(text);
        if (now.SelectAllRequests != marked) edit.selectAll();
        marked = now.SelectAllRequests;
    });
}

void Bindings::addPanel(QWidget& panel, const Control& state) {
    watch(state.Visible, [&panel](bool visible) { panel.setVisible(visible); });
}

}  // namespace ladrix
