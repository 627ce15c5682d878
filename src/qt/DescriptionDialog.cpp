#include "qt/DescriptionDialog.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextCursor>
#include <QVBoxLayout>

#include "browser/FileDescription.h"
#include "canvas/file/DrawingCommands.h"
#include "qt/InputFilters.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Space = 2 * theme::Unit;
constexpr int Margin = 3 * theme::Unit;

}  // namespace

DescriptionDialog::DescriptionDialog(Program& program, QWidget* parent)
    : QDialog(parent), program_(program), txtDescription_(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("frmDesc"));
    setWindowTitle(tr("File Description"));
    auto* const label = new QLabel(tr("File Description Shown Below"), this);
    label->setBuddy(txtDescription_);
    txtDescription_->setObjectName(QStringLiteral("txtDescription"));
    txtDescription_->setTabChangesFocus(true);

    auto* const cmdSave = new QPushButton(tr("&Save"), this);
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdSave->setDefault(true);
    auto* const cmdExit = new QPushButton(tr("E&xit"), this);
    cmdExit->setObjectName(QStringLiteral("cmdExit"));
    cmdExit->setAutoDefault(false);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(Space);
    buttons->addStretch(1);
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdExit);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Space);
    layout->addWidget(label);
    layout->addWidget(txtDescription_, 1);
    layout->addLayout(buttons);

    connect(txtDescription_, &QPlainTextEdit::textChanged, this, &DescriptionDialog::takeText);
    connect(cmdSave, &QPushButton::clicked, this, [this] {
        frmDesc_cmdSave_Click(program_.editor);
        closeIfHidden();
    });
    connect(cmdExit, &QPushButton::clicked, this, &DescriptionDialog::reject);
}

int DescriptionDialog::run() {
    txtDescription_->setPlainText(boxText(program_.editor.frmDesc.txtDescription));
    txtDescription_->moveCursor(QTextCursor::End);
    txtDescription_->setFocus();
    const int line = fontMetrics().height();
    resize(28 * line, 18 * line);
    return exec();
}

// What the file cannot hold leaves the box as soon as it is typed; the cursor stays in its place.
void DescriptionDialog::takeText() {
    const QString typed = txtDescription_->toPlainText();
    frmDesc_txtDescription_Change(program_.editor, typed.toStdString());
    const QString held = boxText(program_.editor.frmDesc.txtDescription);
    if (held == typed) return;
    const QSignalBlocker blocker(txtDescription_);
    txtDescription_->setTextCursor(showHeld(txtDescription_->textCursor(), held));
}

void DescriptionDialog::closeIfHidden() {
    if (!program_.editor.frmDesc.Visible) done(0);
}

void DescriptionDialog::reject() {
    frmDesc_cmdExit_Click(program_.editor);
    closeIfHidden();
}

}  // namespace ladrix
