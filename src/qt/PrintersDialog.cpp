#include "qt/PrintersDialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/PageCommands.h"
#include "output/PrinterForms.h"
#include "qt/ComboBoxState.h"
#include "qt/QtPainterPage.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Margin = 4 * theme::Unit;
constexpr int SampleHeight = 10 * theme::Unit;
constexpr double SampleUnits = 10;  // across

}  // namespace

LineWeightBox::LineWeightBox(const Printing& printing, QWidget* parent)
    : QWidget(parent), printing_(printing) {
    setObjectName(QStringLiteral("picLineWeight"));
    setFixedHeight(SampleHeight);
}

void LineWeightBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    QtPainterPage page("picLineWeight");
    PageView view;
    view.scale = width() / SampleUnits;
    view.scaleY = height();
    view.target = rect();
    page.reset(&painter, view);
    drawLineWeightSample(printing_, page);
    page.flush();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(theme::Hairline);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

PrintersDialog::PrintersDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      cmbPrinters_(new QComboBox(this)),
      cmbLineWeight_(new QComboBox(this)),
      lblLineWeight_(new QLabel(this)),
      picLineWeight_(new LineWeightBox(program.printing, this)) {
    setObjectName(QStringLiteral("frmPrinters"));
    setWindowTitle(tr("Printers and Options"));
    cmbPrinters_->setObjectName(QStringLiteral("cmbPrinters"));
    cmbPrinters_->setMinimumWidth(20 * fontMetrics().height());
    cmbLineWeight_->setObjectName(QStringLiteral("cmbLineWeight"));
    lblLineWeight_->setObjectName(QStringLiteral("lblLineWeight"));

    auto* const fields = new QFormLayout;
    fields->setSpacing(3 * theme::Unit);
    fields->addRow(tr("P&rinter"), cmbPrinters_);
    fields->addRow(tr("&Line weight"), cmbLineWeight_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(2 * theme::Unit);
    layout->addLayout(fields);
    layout->addSpacing(theme::Unit);
    layout->addWidget(picLineWeight_);
    layout->addWidget(lblLineWeight_, 0, Qt::AlignHCenter);
    layout->addSpacing(2 * theme::Unit);
    layout->addWidget(makeButtons());
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(cmbPrinters_, &QComboBox::textActivated, this, [this](const QString& name) {
        frmPrinters_cmbPrinters_Click(program_.printing, fromQString(name));
        showState();
    });
    connect(cmbLineWeight_, &QComboBox::textActivated, this, [this](const QString& weight) {
        cmbLineWeight_Click(program_.editor, program_.printing, weight.toShort());
        showState();
    });
}

QWidget* PrintersDialog::makeButtons() {
    auto* const column = new QWidget(this);
    auto* const layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2 * theme::Unit);
    const auto add = [&](const char* name, const QString& caption, auto handler) {
        auto* const button = new QPushButton(caption, column);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, handler] {
            handler();
            showState();
        });
        layout->addWidget(button);
        return button;
    };
    add("cmdPrinter", tr("Save Printer for Current &Session Only"),
        [this] { cmdPrinter_Click(program_.editor, program_.printing); });
    add("cmdDefaultPrinter", tr("Save Printer and Options as &Default"), [this] {
        cmdDefaultPrinter_Click(program_);
    })->setDefault(true);
    add("cmdExit", tr("E&xit Without Changing"),
        [this] { frmPrinters_cmdExit_Click(program_.printing); });
    return column;
}

void PrintersDialog::run() {
    showState();
    cmbPrinters_->setFocus();
    exec();
}

void PrintersDialog::reject() {
    frmPrinters_cmdExit_Click(program_.printing);
    showState();
}

void PrintersDialog::showState() {
    const PrintersForm& form = program_.printing.frmPrinters;
    if (!form.Visible) return done(0);
    showComboBox(*cmbPrinters_, form.cmbPrinters);
    showComboBox(*cmbLineWeight_, form.cmbLineWeight);
    lblLineWeight_->setText(toQString(form.lblLineWeight.Caption));
    picLineWeight_->update();
}

}  // namespace ladrix
