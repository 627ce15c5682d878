#include "qt/LogDialog.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextCursor>
#include <QVBoxLayout>

#include "app/FailureLog.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Space = 2 * theme::Unit;
constexpr int Margin = 3 * theme::Unit;

}  // namespace

LogDialog::LogDialog(Program& program, QWidget* parent)
    : QDialog(parent), program_(program), txtLog_(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("frmLog"));
    setSizeGripEnabled(true);
    txtLog_->setObjectName(QStringLiteral("txtLog"));
    txtLog_->setAccessibleName(tr("Error log"));
    txtLog_->setReadOnly(true);
    txtLog_->setTabChangesFocus(true);
    txtLog_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(Space);
    const auto add = [&](const char* name, const QString& caption, auto handler) {
        auto* const button = new QPushButton(caption, this);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, handler);
        buttons->addWidget(button);
        return button;
    };
    add("cmdExport", tr("&Export"), [this] { frmLog_cmdExport_Click(program_); });
    add("cmdView", tr("&View"), [this] { frmLog_cmdView_Click(program_); });
    buttons->addStretch(1);
    add("cmdExit", tr("E&xit"), [this] { reject(); })->setDefault(true);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Space);
    layout->addWidget(txtLog_, 1);
    layout->addLayout(buttons);
}

int LogDialog::run() {
    const LogViewer& viewer = program_.frmLog;
    setWindowTitle(toQString(viewer.Caption));
    txtLog_->setPlainText(toQString(viewer.txtLog));
    txtLog_->moveCursor(QTextCursor::End);  // the newest entry
    resize(static_cast<int>(viewer.Width), static_cast<int>(viewer.Height));
    return exec();
}

void LogDialog::reject() {
    frmLog_cmdExit_Click(program_);
    if (!program_.frmLog.Visible) done(0);
}

}  // namespace ladrix
