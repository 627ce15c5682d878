#include "qt/PathBar.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QToolButton>

#include "qt/QtText.h"

namespace ladrix {

namespace {

constexpr int Margin = 4;
constexpr int LongestPart = 24;  // average characters of one folder's button

// An ampersand is no access key here.
QString buttonText(const QString& text) {
    return QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

PathBar::PathBar(QWidget* parent) : QWidget(parent), text_(new QLineEdit(this)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    more_ = addButton(QStringLiteral("\u2026"));
    more_->setObjectName(QStringLiteral("cmdMoreFolders"));
    more_->setAccessibleName(tr("Folders above"));
    moreMenu_ = new QMenu(more_);
    connect(more_, &QToolButton::clicked, this,
            [this] { moreMenu_->popup(more_->mapToGlobal(QPoint(0, more_->height()))); });
    text_->setObjectName(QStringLiteral("txtPath"));
    text_->setAccessibleName(tr("Folder or file"));
    text_->hide();
    text_->installEventFilter(this);
}

QToolButton* PathBar::addButton(const QString& text) {
    auto* const button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setText(buttonText(text));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void PathBar::setPath(std::vector<PathPart> parts) {
    parts_ = std::move(parts);
    qDeleteAll(buttons_);
    buttons_.clear();
    for (const PathPart& part : parts_) {
        const QString name = toQString(part.name);
        const int widest = LongestPart * fontMetrics().averageCharWidth();
        QToolButton* const button =
            addButton(fontMetrics().elidedText(name, Qt::ElideMiddle, widest));
        button->setToolTip(plainTip(toQString(part.path)));
        button->setAccessibleName(name);
        QFont font = button->font();
        font.setBold(&part == &parts_.back());
        button->setFont(font);
        // By value and queued: the button is gone when the folder has changed.
        const std::string path = part.path;
        connect(
            button, &QToolButton::clicked, this, [this, path] { emit folderChosen(path); },
            Qt::QueuedConnection);
        buttons_.append(button);
    }
    arrange();
}

// From the right: the present folder always, those above it while there is room, the rest in the
// menu.
void PathBar::arrange() {
    const int separator = fontMetrics().horizontalAdvance(QStringLiteral("\u203a")) + Margin;
    const int moreWidth = more_->sizeHint().width();
    const auto count = static_cast<int>(buttons_.size());
    int room = width() - 2 * Margin;
    int first = count;
    while (first > 0) {
        const int needed = buttons_[first - 1]->sizeHint().width() + separator;
        const int reserve = first > 1 ? moreWidth + separator : 0;
        if (first < count && needed + reserve > room) break;
        room -= needed;
        --first;
    }
    more_->setVisible(first > 0 && text_->isHidden());
    moreMenu_->clear();
    for (int i = 0; i < first; ++i) {
        const std::string path = parts_[static_cast<std::size_t>(i)].path;
        moreMenu_->addAction(buttonText(toQString(parts_[static_cast<std::size_t>(i)].name)), this,
                             [this, path] { emit folderChosen(path); });
    }
    const int height = this->height() - 2 * Margin;
    int x = Margin;
    if (first > 0) {
        more_->setGeometry(x, Margin, moreWidth, height);
        x += moreWidth + separator;
    }
    for (int i = 0; i < count; ++i) {
        buttons_[i]->setVisible(i >= first && text_->isHidden());
        if (i < first) continue;
        const int wanted = buttons_[i]->sizeHint().width();
        buttons_[i]->setGeometry(x, Margin, qMin(wanted, width() - Margin - x), height);
        x += wanted + separator;
    }
    text_->setGeometry(rect());
    update();
}

void PathBar::edit() {
    text_->setText(parts_.empty() ? QString() : toQString(parts_.back().path));
    text_->show();
    arrange();
    text_->setFocus();
    text_->selectAll();
}

void PathBar::endEdit() {
    if (text_->isHidden()) return;
    text_->hide();
    arrange();
    emit editEnded();
}

QSize PathBar::sizeHint() const {
    return {40 * fontMetrics().averageCharWidth(),
            qMax(more_->sizeHint().height() + 2 * Margin, text_->sizeHint().height())};
}

QSize PathBar::minimumSizeHint() const {
    return {LongestPart * fontMetrics().averageCharWidth(), sizeHint().height()};
}

void PathBar::resizeEvent(QResizeEvent*) {
    arrange();
}

void PathBar::mousePressEvent(QMouseEvent*) {
    edit();
}

void PathBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = 1;
    frame.state |= QStyle::State_Sunken;
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, this);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QToolButton* former = more_->isHidden() ? nullptr : more_;
    for (const QToolButton* button : buttons_) {
        if (button->isHidden()) continue;
        if (former) {
            const QRect gap(QPoint(former->geometry().right() + 1, 0),
                            QPoint(button->x() - 1, height() - 1));
            painter.drawText(gap, Qt::AlignCenter, QStringLiteral("\u203a"));
        }
        former = button;
    }
}

// What ends the line is kept from the dialog: Enter would press its default button as well.
bool PathBar::takeKey(int key) {
    if (key != Qt::Key_Escape && key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    const std::string typed = fromQString(text_->text());
    endEdit();
    if (key != Qt::Key_Escape) emit pathTyped(typed);
    return true;
}

bool PathBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == text_ && event->type() == QEvent::KeyPress)
        return takeKey(static_cast<QKeyEvent*>(event)->key());
    if (watched == text_ && event->type() == QEvent::FocusOut) endEdit();
    return QWidget::eventFilter(watched, event);
}

}  // namespace ladrix
