#include "qt/PreviewDialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <cmath>

#include "app/FailureLog.h"
#include "app/PageCommands.h"
#include "platform/Numbers.h"
#include "qt/ComboBoxState.h"
#include "qt/PreviewPicture.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Desk = 6 * theme::Unit;  // around the page
constexpr double ScreenPixelsPerInch = 96;
constexpr double ShareOfScreen = 0.85;

std::string sizeText(const Editor& editor) {
    const char mark = editor.platform.locale.decimalMark;
    return singleText(editor.PageWidth, mark) + " x " + singleText(editor.PageHeight, mark) +
           " inches, " + editor.platform.printers->current().DeviceName();
}

}  // namespace

// ---- The page

PreviewPage::PreviewPage(Program& program, QWidget* parent) : QWidget(parent), program_(program) {
    setObjectName(QStringLiteral("picPreview"));
    renew();
}

void PreviewPage::renew() {
    area_ = previewArea(program_.editor);
    image_ = {};
    update();
}

void PreviewPage::showAt(int percent, QSize room) {
    double scale = ScreenPixelsPerInch * percent / 100;
    if (percent == 0) {
        const QSizeF inside = QSizeF(room - QSize(2 * Desk, 2 * Desk)).expandedTo({16, 16});
        scale =
            std::min(inside.width() / area_.paper.width(), inside.height() / area_.paper.height());
    }
    if (scale != pixelsPerInch_) image_ = {};
    pixelsPerInch_ = scale;
    const QSize needed = (area_.paper * scale).toSize() + QSize(2 * Desk, 2 * Desk);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (needed.height() > room.height()) room.rwidth() -= bar;
    if (needed.width() > room.width()) room.rheight() -= bar;
    setFixedSize(needed.expandedTo(room));
    update();
}

QRect PreviewPage::pageRect() const {
    QRect page(QPoint(), (area_.paper * pixelsPerInch_).toSize());
    page.moveCenter(rect().center());
    return page;
}

void PreviewPage::paintEvent(QPaintEvent*) {
    const double ratio = devicePixelRatioF();
    if (image_.isNull()) {
        try {
            image_ = previewPicture(program_.editor, program_.printing.PrintLineWeight, area_,
                                    pixelsPerInch_ * ratio);
        } catch (const Failure&) {
            image_ =
                QImage(1, 1, QImage::Format_RGB32);  // too large for this machine: a white page
            image_.fill(Qt::white);
        }
        image_.setDevicePixelRatio(ratio);
    }
    QPainter painter(this);
    painter.fillRect(rect(), theme::Desk);
    const QRect page = pageRect();
    theme::paintPageShadow(painter, page);
    painter.fillRect(page, Qt::white);
    painter.drawImage(page.topLeft(), image_);
    painter.setPen(theme::PageEdge);
    painter.drawRect(page.adjusted(-1, -1, 0, 0));
}

// ---- The window

PreviewDialog::PreviewDialog(Program& program, QWidget* parent)
    : QDialog(parent), program_(program) {
    setObjectName(QStringLiteral("frmPreview"));
    setWindowTitle(toQString(program.frmPreview.Caption));
    setSizeGripEnabled(false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeBar());
    scroll_ = new QScrollArea(this);
    scroll_->setObjectName(QStringLiteral("scroll"));
    scroll_->setFrameShape(QFrame::NoFrame);
    page_ = new PreviewPage(program, scroll_);
    scroll_->setWidget(page_);
    layout->addWidget(scroll_, 1);
}

QWidget* PreviewDialog::makeBar() {
    auto* const bar = new QWidget(this);
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(3 * theme::Unit, 2 * theme::Unit, 3 * theme::Unit, 2 * theme::Unit);
    row->setSpacing(2 * theme::Unit);
    cmbZoom_ = new QComboBox(bar);
    cmbZoom_->setObjectName(QStringLiteral("cmbZoom"));
    auto* const zoom = new QLabel(tr("&Zoom"), bar);
    zoom->setBuddy(cmbZoom_);
    lblPage_ = new QLabel(bar);
    lblPage_->setObjectName(QStringLiteral("lblPage"));
    lblPage_->setForegroundRole(QPalette::PlaceholderText);
    auto* const cmdPrint = new QPushButton(tr("&Print..."), bar);
    cmdPrint->setObjectName(QStringLiteral("cmdPrint"));
    cmdPrint->setDefault(true);
    auto* const cmdClose = new QPushButton(tr("&Close"), bar);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setAutoDefault(false);
    row->addWidget(zoom);
    row->addWidget(cmbZoom_);
    row->addSpacing(2 * theme::Unit);
    row->addWidget(lblPage_, 1);
    row->addWidget(cmdPrint);
    row->addWidget(cmdClose);
    connect(cmbZoom_, &QComboBox::textActivated, this, [this](const QString& choice) {
        cmbZoom_Click(program_.frmPreview, fromQString(choice));
        showPage();
    });
    connect(cmdPrint, &QPushButton::clicked, this, [this] {
        mnuFilePrintCircuit1_Click(program_);
        page_->renew();
        showState();
    });
    connect(cmdClose, &QPushButton::clicked, this, &PreviewDialog::reject);
    return bar;
}

void PreviewDialog::run() {
    resize(screen()->availableSize() * ShareOfScreen);
    showState();
    cmbZoom_->setFocus();
    exec();
}

void PreviewDialog::reject() {
    frmPreview_cmdClose_Click(program_.frmPreview);
    showState();
}

void PreviewDialog::resizeEvent(QResizeEvent*) {
    showPage();
}

void PreviewDialog::showState() {
    if (!program_.frmPreview.Visible) return done(0);
    showComboBox(*cmbZoom_, program_.frmPreview.cmbZoom);
    lblPage_->setText(toQString(sizeText(program_.editor)));
    showPage();
}

void PreviewDialog::showPage() {
    page_->showAt(previewPercent(program_.frmPreview), scroll_->maximumViewportSize());
}

}  // namespace ladrix
