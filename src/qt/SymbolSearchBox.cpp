#include "qt/SymbolSearchBox.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "qt/InputFilters.h"
#include "qt/QtText.h"
#include "qt/SymbolButtons.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int BoxWidth = 440, RowsShown = 11, RowHeight = 34;
constexpr int Side = ButtonImages::Side;
constexpr int Space = 2 * theme::Unit;

}  // namespace

// The rows of the form's list. Pictures of user symbols are read when they are first seen.
class FoundSymbols final : public QAbstractListModel {
  public:
    FoundSymbols(Program& program, ButtonImages& images, QObject* parent)
        : QAbstractListModel(parent), program_(program), images_(images) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(program_.frmFind.Found.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        const SearchEntry& found = entry(index.row());
        if (role == Qt::DisplayRole) return toQString(found.Name);
        if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole)
            return tr("%1, %2").arg(toQString(found.Name), toQString(found.Where));
        return {};
    }

    const SearchEntry& entry(int row) const {
        return program_.frmFind.Entries[program_.frmFind.Found[static_cast<std::size_t>(row)]];
    }

    void paintPicture(QPainter& painter, int row, const QRect& cell, double pixelRatio) {
        const SearchEntry& found = entry(row);
        if (!found.isUsers()) {
            painter.drawImage(cell.topLeft(), images_.of(found.Name, 0, pixelRatio));
            return;
        }
        const std::size_t which = program_.frmFind.Found[static_cast<std::size_t>(row)];
        const auto [known, isNew] = pictures_.try_emplace(which);
        if (isNew) known->second = pictureOfEntry(found, program_.platform);
        if (known->second) paintSymbolPicture(painter, *known->second, cell);
    }

    void change(const std::function<void()>& step) {
        beginResetModel();
        step();
        endResetModel();
    }
    void forgetPictures() { pictures_.clear(); }

  private:
    Program& program_;
    ButtonImages& images_;
    std::map<std::size_t, std::shared_ptr<const Picture>> pictures_;  // by row of Entries
};

namespace {

// The symbol's picture, its name, and its library at the right.
class FoundDelegate final : public QStyledItemDelegate {
  public:
    FoundDelegate(FoundSymbols& found, QObject* parent)
        : QStyledItemDelegate(parent), found_(found) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {option.rect.width(), RowHeight};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const QRect row = option.rect;
        const bool marked = option.state.testFlag(QStyle::State_Selected);
        painter->fillRect(row, marked ? theme::FaceHover : QColor(Qt::white));
        if (marked) painter->fillRect(row.x(), row.y(), 3, row.height(), theme::Accent);
        const QRect cell(row.x() + Space, row.y() + (RowHeight - Side) / 2, Side, Side);
        found_.paintPicture(*painter, index.row(), cell,
                            option.widget ? option.widget->devicePixelRatioF() : 1.0);
        const SearchEntry& entry = found_.entry(index.row());
        const QFontMetrics& metrics = option.fontMetrics;
        QRect text = row.adjusted(Side + 2 * Space, 0, -Space, 0);
        const QString where =
            metrics.elidedText(toQString(entry.Where), Qt::ElideRight, text.width() / 2);
        painter->setPen(theme::TextQuiet);
        painter->drawText(text, Qt::AlignRight | Qt::AlignVCenter, where);
        text.setRight(text.right() - metrics.horizontalAdvance(where) - Space);
        painter->setPen(theme::Text);
        painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                          metrics.elidedText(toQString(entry.Name), Qt::ElideRight, text.width()));
    }

  private:
    FoundSymbols& found_;
};

}  // namespace

SymbolSearchBox::SymbolSearchBox(Program& program, ButtonImages& images, QWidget* anchor)
    : QFrame(anchor->window(), Qt::Popup),
      program_(program),
      anchor_(anchor),
      found_(new FoundSymbols(program, images, this)),
      txtFind_(new QLineEdit(this)),
      lstFound_(new QListView(this)),
      lblCount_(new QLabel(this)) {
    setObjectName("frmFind");
    setAccessibleName(tr("Find Symbol"));
    setFrameShape(QFrame::StyledPanel);
    txtFind_->setObjectName("txtFind");
    txtFind_->setPlaceholderText(tr("Find a symbol in all libraries"));
    txtFind_->setClearButtonEnabled(true);
    txtFind_->setValidator(new RecordTextFilter(txtFind_));
    txtFind_->installEventFilter(this);
    lstFound_->setObjectName("lstFound");
    lstFound_->setModel(found_);
    lstFound_->setItemDelegate(new FoundDelegate(*found_, this));
    lstFound_->setUniformItemSizes(true);
    lstFound_->setFocusPolicy(Qt::NoFocus);
    lstFound_->setFrameShape(QFrame::NoFrame);
    lstFound_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstFound_->setMouseTracking(true);
    lblCount_->setObjectName("lblCount");
    lblCount_->setForegroundRole(QPalette::PlaceholderText);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(Space, Space, Space, Space);
    column->setSpacing(Space);
    column->addWidget(txtFind_);
    column->addWidget(lstFound_, 1);
    column->addWidget(lblCount_);
    connect(txtFind_, &QLineEdit::textEdited, this, &SymbolSearchBox::narrow);
    connect(lstFound_, &QListView::clicked, this,
            [this](const QModelIndex& index) { choose(index.row()); });
}

void SymbolSearchBox::refresh() {
    const bool wanted = program_.frmFind.Visible;
    if (wanted == isVisible()) return;
    wanted ? open() : hide();
}

void SymbolSearchBox::open() {
    found_->forgetPictures();
    found_->change([] {});
    const int height = RowsShown * RowHeight + 2 * theme::ControlHeight + 4 * Space;
    resize(BoxWidth, std::min(height, anchor_->window()->height() - 2 * theme::ControlHeight));
    move(anchor_->mapToGlobal(QPoint(theme::Unit, theme::Unit)));
    txtFind_->setText(toQString(program_.frmFind.txtFind.Text));
    txtFind_->selectAll();
    show();
    txtFind_->setFocus(Qt::PopupFocusReason);
    mark();
}

void SymbolSearchBox::narrow(const QString& text) {
    found_->change([&] { txtFind_Change(program_.frmFind, fromQString(text)); });
    mark();
}

void SymbolSearchBox::mark() {
    const SymbolSearch& search = program_.frmFind;
    const QModelIndex row = found_->index(search.ListIndex, 0);
    lstFound_->setCurrentIndex(row);
    if (row.isValid()) lstFound_->scrollTo(row);
    const int count = found_->rowCount();
    lblCount_->setText(count == 0   ? tr("No symbol has these words.")
                       : count == 1 ? tr("1 symbol")
                                    : tr("%1 symbols").arg(count));
}

bool SymbolSearchBox::takeKey(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Up:
            moveFindMark(program_.frmFind, -1);
            break;
        case Qt::Key_Down:
            moveFindMark(program_.frmFind, 1);
            break;
        case Qt::Key_PageUp:
            moveFindMark(program_.frmFind, -(RowsShown - 1));
            break;
        case Qt::Key_PageDown:
            moveFindMark(program_.frmFind, RowsShown - 1);
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            choose(program_.frmFind.ListIndex);
            return true;
        case Qt::Key_Escape:
            hide();
            return true;
        default:
            return false;
    }
    mark();
    return true;
}

void SymbolSearchBox::choose(int row) {
    if (row < 0 || row >= found_->rowCount()) return;
    // What it tells must not stand under a box that is still open.
    const SearchEntry entry = found_->entry(row);
    hide();
    pressFound(entry, program_.usersymbols, program_.editor);
    emit chosen();
    emit handled();
}

bool SymbolSearchBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtFind_ && event->type() == QEvent::KeyPress)
        return takeKey(*static_cast<QKeyEvent*>(event));
    return QFrame::eventFilter(watched, event);
}

// Closed by the toolkit: the state follows.
void SymbolSearchBox::hideEvent(QHideEvent*) {
    found_->change([&] { frmFind_Close(program_.frmFind); });
}

}  // namespace ladrix
