#include "qt/PrinterDialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpressionValidator>

#include "output/PrinterForms.h"
#include "qt/ComboBoxState.h"
#include "qt/KeyCodes.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Margin = 4 * theme::Unit;
constexpr int ProgressSteps = 1000;
constexpr int LongestCopies = 5;  // digits

}  // namespace

PrinterDialog::PrinterDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      cmbPrinters_(new QComboBox(this)),
      txtCopies_(new QLineEdit(this)),
      lblPrinting_(new QLabel(this)),
      progress_(new QProgressBar(this)),
      cmdPrint_(new QPushButton(tr("&Print"), this)),
      cmdCancelPrint_(new QPushButton(tr("Cancel"), this)) {
    setObjectName(QStringLiteral("frmPrinter"));
    setWindowTitle(tr("Printer Options"));
    cmbPrinters_->setObjectName(QStringLiteral("cmbPrinters"));
    cmbPrinters_->setMinimumWidth(20 * fontMetrics().height());
    txtCopies_->setObjectName(QStringLiteral("txtCopies"));
    txtCopies_->setMaxLength(LongestCopies);
    txtCopies_->setMaximumWidth(6 * fontMetrics().height());
    txtCopies_->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), txtCopies_));
    txtCopies_->installEventFilter(this);
    lblPrinting_->setObjectName(QStringLiteral("lblPrinting"));
    progress_->setObjectName(QStringLiteral("progress"));
    progress_->setRange(0, ProgressSteps);
    progress_->setTextVisible(false);
    progress_->setFixedHeight(2 * theme::Unit);
    QSizePolicy kept = progress_->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(kept);
    cmdPrint_->setObjectName(QStringLiteral("cmdPrint"));
    cmdPrint_->setDefault(true);
    cmdCancelPrint_->setObjectName(QStringLiteral("cmdCancelPrint"));
    cmdCancelPrint_->setAutoDefault(false);

    auto* const fields = new QFormLayout;
    fields->setSpacing(3 * theme::Unit);
    fields->addRow(tr("P&rinter"), cmbPrinters_);
    fields->addRow(tr("&Copies"), txtCopies_);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(2 * theme::Unit);
    buttons->addStretch(1);
    buttons->addWidget(cmdPrint_);
    buttons->addWidget(cmdCancelPrint_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(2 * theme::Unit);
    layout->addLayout(fields);
    layout->addSpacing(theme::Unit);
    layout->addWidget(lblPrinting_);
    layout->addWidget(progress_);
    layout->addSpacing(theme::Unit);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(cmbPrinters_, &QComboBox::textActivated, this, [this](const QString& name) {
        frmPrinter_cmbPrinters_Click(program_.printing, fromQString(name));
    });
    connect(txtCopies_, &QLineEdit::textEdited, this, [this](const QString& text) {
        txtCopies_Change(program_.printing, fromQString(text));
    });
    connect(cmdPrint_, &QPushButton::clicked, this, [this] {
        cmdPrint_Click(program_.editor, program_.printing);
        showState();
    });
    connect(cmdCancelPrint_, &QPushButton::clicked, this, &PrinterDialog::reject);
}

void PrinterDialog::run() {
    showState();
    txtCopies_->setFocus();
    txtCopies_->selectAll();
    exec();
}

void PrinterDialog::reject() {
    cmdCancelPrint_Click(program_.printing);
    showState();
}

// Enter goes from the copies to the button, and prints only there.
bool PrinterDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtCopies_ && event->type() == QEvent::KeyPress) {
        const auto& press = *static_cast<QKeyEvent*>(event);
        if (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter) {
            txtCopies_KeyDown(program_.printing, classicKeyCode(press));
            showState();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void PrinterDialog::showState() {
    const Printing& printing = program_.printing;
    const PrinterForm& form = printing.frmPrinter;
    if (!form.Visible && !printing.Running) return done(0);
    showComboBox(*cmbPrinters_, form.cmbPrinters);
    const QString copies = toQString(form.txtCopies.Text);
    if (txtCopies_->text() != copies) txtCopies_->setText(copies);
    for (QWidget* widget : {static_cast<QWidget*>(cmbPrinters_), static_cast<QWidget*>(txtCopies_),
                            static_cast<QWidget*>(cmdPrint_)})
        widget->setEnabled(!printing.Running);
    cmdCancelPrint_->setEnabled(!(printing.Running && printing.CancelPrint));
    showProgress();
    if (focusRequests_ != form.PrintFocusRequests) cmdPrint_->setFocus();
    focusRequests_ = form.PrintFocusRequests;
}

void PrinterDialog::showProgress() {
    const Printing& printing = program_.printing;
    const QString text = printing.Running && printing.CancelPrint
                             ? tr("Cancelled. The page under way is being finished.")
                             : toQString(printing.frmPrinter.lblPrinting.Caption);
    lblPrinting_->setText(printing.Running ? text : QString());
    const auto done = static_cast<int>(printing.frmPrinter.Progress * ProgressSteps);
    progress_->setValue(printing.Running ? done : 0);
    progress_->setVisible(printing.Running);
}

}  // namespace ladrix
