#include "qt/UserPaletteWidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <cmath>

#include "canvas/tools/Tools.h"
#include "qt/PaletteWidget.h"
#include "qt/QtCanvas.h"
#include "qt/QtText.h"
#include "qt/Theme.h"
#include "usersymbols/UserButtonOrder.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {

namespace {

constexpr int Cell = SymbolButtons::Cell;
constexpr int Inset = theme::Unit;
constexpr int ArrowHeight = 24;  // of cmdPrev and cmdNext, at the foot
constexpr int RowArrowHeight = 16;
constexpr int RowsPerWheelStep = 2;
constexpr int PixelsPerInch = 96;

}  // namespace

static_assert(SymbolButtons::Cell == PaletteWidget::Cell, "the rows of both palettes are level");

UserPalettePanel::UserPalettePanel(Program& program, QWidget* parent)
    : QWidget(parent), program_(program), buttons_(new SymbolButtons(this)) {
    setObjectName("picUserTools");
    buttons_->setObjectName("cmdUserSym");
    buttons_->setAccessibleName(tr("User symbols"));
    rowsUp_ = makeArrow("cmdRowsUp", "chevron-up", tr("Rows above"), &UserPalettePanel::rowsUp);
    rowsDown_ =
        makeArrow("cmdRowsDown", "chevron-down", tr("Rows below"), &UserPalettePanel::rowsDown);
    cmdPrev_ = makeArrow("cmdPrev", "chevron-left", tr("Previous user symbols"),
                         &UserPalettePanel::previousColumn);
    cmdNext_ = makeArrow("cmdNext", "chevron-right", tr("More user symbols"),
                         &UserPalettePanel::nextColumn);
    buttons_->mayDrag = [this](int button) {
        return beginButtonDrag(program_.usersymbols, program_.editor, indexOf(button));
    };
    connect(buttons_, &SymbolButtons::clicked, this, [this](int button) {
        cmdSym_Click(program_.editor, indexOf(button));
        emit handled();
    });
    connect(buttons_, &SymbolButtons::menuRequested, this, [this](int button) {
        openUserButtonMenu(program_.usersymbols, program_.editor, indexOf(button));
        emit handled();
    });
    connect(buttons_, &SymbolButtons::dropped, this, [this](int button) {
        cmdSym_DragDrop(program_.usersymbols, program_.editor, indexOf(button));
        emit handled();
    });
    connect(buttons_, &SymbolButtons::wheelTurned, this, &UserPalettePanel::turnWheel);
    parent->installEventFilter(this);
    hide();
}

QToolButton* UserPalettePanel::makeArrow(const char* name, const char* icon, const QString& tip,
                                         void (UserPalettePanel::*press)()) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setIcon(theme::icon(icon));
    button->setIconSize({12, 12});
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, press);
    return button;
}

Short UserPalettePanel::indexOf(int button) const {
    return button < 0 ? Short{-1}
                      : static_cast<Short>(program_.usersymbols.FirstUserButton + button);
}

void UserPalettePanel::previousColumn() {
    cmdPrev_Click(program_.usersymbols, program_.editor);
    emit handled();
}

void UserPalettePanel::nextColumn() {
    cmdNext_Click(program_.usersymbols, program_.editor);
    emit handled();
}

void UserPalettePanel::turnWheel(int steps, bool sideways) {
    if (!sideways) return scrollRows(steps * RowsPerWheelStep);
    for (int i = 0; i < std::abs(steps); ++i)
        if (columnsHidden(steps)) steps < 0 ? previousColumn() : nextColumn();
}

// Columns out of view at the left (-1) or at the right (1).
bool UserPalettePanel::columnsHidden(int side) const {
    const UserSymbols& symbols = program_.usersymbols;
    if (symbols.UserButtonPlace.empty()) return false;
    const int first = cellOf(symbols, symbols.UserButtonPlace.front()).column;
    return side < 0 ? first < 0 : first + userColumns(symbols) > columns_;
}

void UserPalettePanel::refresh() {
    const Basis now{program_.editor.form.PaletteVersion, parentWidget()->width(),
                    program_.editor.PageWidth, program_.editor.Arranging};
    if (shown_ == now) return;
    shown_ = now;
    fillButtons();
    fitWidth();
    arrange();
}

void UserPalettePanel::fillButtons() {
    const UserSymbols& symbols = program_.usersymbols;
    std::vector<SymbolButton> buttons;
    buttons.reserve(symbols.UserButtonPlace.size());
    for (Short i = symbols.FirstUserButton; i < symbols.LastUserButton; ++i) {
        const PaletteButton& button = program_.editor.form.cmdSym[static_cast<std::size_t>(i)];
        if (!button.Visible) continue;
        const ButtonCell cell = cellOf(symbols, {button.Left, button.Top});
        buttons.push_back({button.Pressed ? button.CyanPicture : button.UpPicture,
                           toQString(button.Tag), cell.column, cell.row});
    }
    setVisible(!buttons.empty());
    buttons_->setButtons(std::move(buttons));
}

void UserPalettePanel::fitWidth() {
    const int page = static_cast<int>(std::lround(program_.editor.PageWidth * PixelsPerInch));
    const int builtIn = PaletteWidget::Columns * Cell + 1 + 2 * Inset + 1;
    const int frame = 2 * Inset + 2;
    const int room = parentWidget()->width() - builtIn - page - 2 * QtCanvas::Margin - frame;
    const int all = userColumns(program_.usersymbols);
    columns_ = std::clamp(room / Cell, 1, std::max(all, 1));
    setFixedWidth(columns_ * Cell + frame);
}

int UserPalettePanel::rowsInView() const {
    return std::max(1, (buttons_->height() - 1) / Cell);
}

void UserPalettePanel::scrollRows(int rows) {
    const int all = std::min<int>(program_.usersymbols.PaletteRows,
                                  static_cast<int>(buttons_->buttons().size()));
    const int last = std::max(0, all - rowsInView());
    buttons_->setFirstRow(std::clamp(buttons_->firstRow() + rows, 0, last));
    rowsUp_->setEnabled(buttons_->firstRow() > 0);
    rowsDown_->setEnabled(buttons_->firstRow() < last);
}

void UserPalettePanel::arrange() {
    const QRect inner = rect().adjusted(Inset, Inset, -Inset - 1, -Inset);
    const bool scrolled = (columnsHidden(-1) || columnsHidden(1)) && !program_.editor.Arranging;
    const int count = static_cast<int>(buttons_->buttons().size());
    const int rows = std::min<int>(program_.usersymbols.PaletteRows, count);
    int room = inner.height() - (scrolled ? ArrowHeight : 0);
    const bool low = rows * Cell + 1 > room;
    if (low) room -= 2 * RowArrowHeight;
    const int shownRows = std::clamp((room - 1) / Cell, 1, std::max(rows, 1));
    const int top = inner.top() + (low ? RowArrowHeight : 0);
    const int width = columns_ * Cell + 1;
    buttons_->setGeometry(inner.left(), top, width, shownRows * Cell + 1);
    rowsUp_->setGeometry(inner.left(), inner.top(), width, RowArrowHeight);
    rowsDown_->setGeometry(inner.left(), buttons_->geometry().bottom() + 1, width, RowArrowHeight);
    rowsUp_->setVisible(low);
    rowsDown_->setVisible(low);
    const int foot = inner.bottom() + 1 - ArrowHeight;
    cmdPrev_->setGeometry(inner.left(), foot, width / 2, ArrowHeight);
    cmdNext_->setGeometry(inner.left() + width / 2, foot, width - width / 2, ArrowHeight);
    cmdPrev_->setVisible(scrolled);
    cmdNext_->setVisible(scrolled);
    cmdPrev_->setEnabled(columnsHidden(-1));
    cmdNext_->setEnabled(columnsHidden(1));
    scrollRows(0);
}

void UserPalettePanel::reveal(Short button) {
    const UserSymbols& symbols = program_.usersymbols;
    const Short row = symbolOfButton(symbols, button);
    if (row < 0) return;
    refresh();
    showUserButton(program_.usersymbols, program_.editor, button, columns_);
    const int place = row % symbols.PaletteRows;
    if (place < buttons_->firstRow()) scrollRows(place - buttons_->firstRow());
    const int beyond = place - (buttons_->firstRow() + rowsInView() - 1);
    if (beyond > 0) scrollRows(beyond);
}

bool UserPalettePanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) refresh();
    return QWidget::eventFilter(watched, event);
}

void UserPalettePanel::resizeEvent(QResizeEvent*) {
    arrange();
}

void UserPalettePanel::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), theme::Chrome);
    painter.fillRect(width() - 1, 0, 1, height(), theme::Hairline);
}

OrderBar::OrderBar(Program& program, QWidget& canvas, QWidget* parent)
    : QFrame(parent),
      program_(program),
      canvas_(canvas),
      cmdSaveSymbolOrder_(new QPushButton(this)) {
    setObjectName("orderBar");
    setAutoFillBackground(true);
    setFrameShape(QFrame::StyledPanel);
    cmdSaveSymbolOrder_->setObjectName("cmdSaveSymbolOrder");
    cmdSaveSymbolOrder_->setFocusPolicy(Qt::NoFocus);
    auto* const text = new QLabel(tr("Drag the user buttons to their new positions."), this);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(3 * theme::Unit, 2 * theme::Unit, 2 * theme::Unit, 2 * theme::Unit);
    row->setSpacing(3 * theme::Unit);
    row->addWidget(text);
    row->addWidget(cmdSaveSymbolOrder_);
    connect(cmdSaveSymbolOrder_, &QPushButton::clicked, this, [this] {
        ladrix::cmdSaveSymbolOrder_Click(program_.usersymbols, program_.editor);
        emit handled();
    });
    hide();
}

void OrderBar::refresh() {
    const Control& state = program_.usersymbols.cmdSaveSymbolOrder;
    setVisible(state.Visible);
    if (!state.Visible) return;
    cmdSaveSymbolOrder_->setText(toQString(state.Caption));
    resize(sizeHint());
    move(canvas_.mapTo(parentWidget(), QPoint(2 * theme::Unit, 2 * theme::Unit)));
    raise();
}

}  // namespace ladrix
