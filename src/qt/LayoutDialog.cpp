#include "qt/LayoutDialog.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Margin = 4 * theme::Unit;
constexpr int Space = 2 * theme::Unit;
constexpr int FirstMetric = 6, LastMetric = 10;  // of the sizes

}  // namespace

PageShapeBox::PageShapeBox(const LayoutForm& form, QWidget* parent) : QWidget(parent), form_(form) {
    setObjectName(QStringLiteral("picPreview"));
    setMinimumSize(sizeHint());
}

QSize PageShapeBox::sizeHint() const {
    const int line = fontMetrics().height();
    return {16 * line, 16 * line + line};
}

// The square of the preview's scale, with room for the caption below the tallest page.
void PageShapeBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::Desk);
    const int line = fontMetrics().height();
    const double side = std::min(width(), height() - line);
    const double unit = side / static_cast<double>(form_.picPreview.ScaleWidth);
    painter.translate((width() - side) / 2, (height() - line - side) / 2);
    const Overlay& page = form_.shpStyle;
    const QRectF shape(page.Left * unit, page.Top * unit, page.Width * unit, page.Height * unit);
    const QRect pixels = shape.toRect();
    theme::paintPageShadow(painter, pixels);
    painter.fillRect(pixels, Qt::white);
    painter.setPen(theme::PageEdge);
    painter.drawRect(pixels.adjusted(0, 0, -1, -1));
    painter.setPen(theme::Text);
    const double middle = form_.lblSize.Left * unit;
    painter.drawText(QRectF(middle - side / 2, form_.lblSize.Top * unit, side, line),
                     Qt::AlignHCenter | Qt::AlignTop, toQString(form_.lblSize.Caption));
}

LayoutDialog::LayoutDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      optSize_(new QButtonGroup(this)),
      optOrient_(new QButtonGroup(this)) {
    setObjectName(QStringLiteral("frmLayout"));
    setWindowTitle(toQString(program.frmLayout.Caption));
    auto* const framPreview = new QGroupBox(tr("Layout Preview"), this);
    framPreview->setObjectName(QStringLiteral("framPreview"));
    auto* const inside = new QVBoxLayout(framPreview);
    picPreview_ = new PageShapeBox(program.frmLayout, framPreview);
    inside->addWidget(picPreview_, 1);

    auto* const cmdOK = new QPushButton(tr("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    auto* const cmdExit = new QPushButton(tr("Exit Without Changing"), this);
    cmdExit->setObjectName(QStringLiteral("cmdExit"));
    cmdExit->setAutoDefault(false);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(Space);
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdExit);

    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(3 * theme::Unit);
    layout->addWidget(makeSizes(), 0, 0);
    layout->addWidget(makeOrientations(), 1, 0);
    layout->setRowStretch(0, 1);
    layout->addWidget(framPreview, 0, 1, 2, 1);
    layout->setColumnStretch(1, 1);
    layout->addLayout(buttons, 2, 0, 1, 2);

    connect(cmdOK, &QPushButton::clicked, this, [this] {
        frmLayout_cmdOK_Click(program_.frmLayout, program_.editor);
        showState();
    });
    connect(cmdExit, &QPushButton::clicked, this, &LayoutDialog::reject);
    connect(optSize_, &QButtonGroup::idClicked, this, [this](int index) {
        optSize_Click(program_.frmLayout, static_cast<Short>(index));
        showState();
    });
    connect(optOrient_, &QButtonGroup::idClicked, this, [this](int index) {
        optOrient_Click(program_.frmLayout, static_cast<Short>(index));
        showState();
    });
}

// Inches in the first column, millimetres in the second.
QGroupBox* LayoutDialog::makeSizes() {
    auto* const group = new QGroupBox(tr("Available Document Sizes"), this);
    group->setObjectName(QStringLiteral("framSize"));
    auto* const grid = new QGridLayout(group);
    grid->setHorizontalSpacing(2 * Margin);
    grid->setVerticalSpacing(Space);
    int rows[2] = {0, 0};
    for (int i = 0; i < static_cast<int>(program_.frmLayout.optSize.size()); ++i) {
        const OptionButton& state = program_.frmLayout.optSize[static_cast<std::size_t>(i)];
        auto* const option = new QRadioButton(toQString(state.Caption), group);
        option->setObjectName(QStringLiteral("optSize%1").arg(i));
        optSize_->addButton(option, i);
        const int column = i >= FirstMetric && i <= LastMetric ? 1 : 0;
        grid->addWidget(option, rows[column]++, column);
    }
    grid->setRowStretch(std::max(rows[0], rows[1]), 1);
    return group;
}

QGroupBox* LayoutDialog::makeOrientations() {
    auto* const group = new QGroupBox(tr("Orientation"), this);
    group->setObjectName(QStringLiteral("framOrient"));
    auto* const row = new QHBoxLayout(group);
    row->setSpacing(2 * Margin);
    for (int i = 0; i < 2; ++i) {
        const OptionButton& state = program_.frmLayout.optOrient[static_cast<std::size_t>(i)];
        auto* const option = new QRadioButton(toQString(state.Caption), group);
        option->setObjectName(QStringLiteral("optOrient%1").arg(i));
        optOrient_->addButton(option, i);
        row->addWidget(option);
    }
    row->addStretch(1);
    return group;
}

void LayoutDialog::run() {
    showState();
    optSize_->checkedButton()->setFocus();
    exec();
}

void LayoutDialog::reject() {
    frmLayout_cmdExit_Click(program_.frmLayout);
    showState();
}

void LayoutDialog::showState() {
    const LayoutForm& form = program_.frmLayout;
    if (!form.Visible) return done(0);
    optSize_->button(form.LayoutSizeIndex)->setChecked(true);
    optOrient_->button(form.LayoutOrientationIndex)->setChecked(true);
    picPreview_->update();
}

}  // namespace ladrix
