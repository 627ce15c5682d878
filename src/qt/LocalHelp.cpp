#include "qt/LocalHelp.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

#include "app/HelpContexts.h"
#include "qt/QtText.h"
#include "qt/Tips.h"

namespace ladrix {

LocalHelp::LocalHelp(Program& program, QObject* parent) : QObject(parent), program_(program) {
    qApp->installEventFilter(this);
}

LocalHelp::~LocalHelp() {
    delete window_;
}

void LocalHelp::openWindow() {
    QWidget* const owner = QApplication::activeModalWidget();
    if (!window_) window_ = new HelpWindow(program_, owner);
    belongTo(owner);
    window_->showState();
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void LocalHelp::belongTo(QWidget* owner) {
    if (window_->parentWidget() != owner) {
        const QRect place = window_->geometry();
        window_->setParent(owner, Qt::Window);
        window_->setGeometry(place);
    }
    auto* const dialog = qobject_cast<QDialog*>(owner);
    if (!dialog) return;
    disconnect(dialog, &QDialog::finished, this, nullptr);
    connect(dialog, &QDialog::finished, this, [this, dialog] {
        if (!window_ || window_->parentWidget() != dialog) return;
        belongTo(nullptr);
        if (program_.frmHelp.Visible) window_->show();
    });
}

bool LocalHelp::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && watched->isWidgetType()) {
        auto& widget = *static_cast<QWidget*>(watched);
        if (widget.isWindow()) giveTips(widget);
        return false;
    }
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    const auto& press = *static_cast<QKeyEvent*>(event);
    if (press.key() != Qt::Key_F1 || press.modifiers() != Qt::NoModifier) return false;
    openHelp(program_, fromQString(static_cast<QWidget*>(watched)->window()->objectName()));
    return true;
}

}  // namespace ladrix
