#include "qt/MainWindow.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <algorithm>

#include "app/CommandHandlers.h"
#include "app/FileMenu.h"
#include "canvas/gestures/Keys.h"
#include "canvas/labels/Labels.h"
#include "canvas/tools/ToolTable.h"
#include "qt/KeyCodes.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int FootHeight = 28;
constexpr QSize SmallestWindow{800, 560};

bool isField(const QObject* widget) {
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget);
}

// What moves about in a text or changes it.
bool isEditingKey(const QKeyEvent& press) {
    switch (press.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            return true;
        default:
            break;
    }
    if (!press.modifiers().testFlag(Qt::ControlModifier) ||
        press.modifiers().testFlag(Qt::AltModifier))
        return false;
    constexpr Qt::Key Keys[] = {Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Y, Qt::Key_Z};
    return std::find(std::begin(Keys), std::end(Keys), press.key()) != std::end(Keys);
}

}  // namespace

MainWindow::MainWindow(Program& program, QtCanvas& canvas) : program_(program) {
    setObjectName("frmLX");
    setMinimumSize(SmallestWindow);
    makeMenus();

    auto* inside = new QWidget(this);
    auto* column = new QVBoxLayout(inside);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    picTop_ = new ToolStrip(program, inside);
    column->addWidget(picTop_);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    picTools_ = new PalettePanel(program, buttonImages_, inside);
    picFrame_ = new CanvasFrame(program, canvas, inside);
    picUserTools_ = new UserPalettePanel(program, inside);
    middle->addWidget(picTools_);
    middle->addWidget(picUserTools_);
    picSimulation_ = new SimulationPanel(program, inside);
    auto* right = new QVBoxLayout;
    right->setSpacing(0);
    right->addWidget(picSimulation_);
    right->addWidget(picFrame_, 1);
    middle->addLayout(right, 1);
    column->addLayout(middle, 1);
    makeFoot(*column);
    setCentralWidget(inside);
    picMoreSym_ = new FlyOutWidget(program, buttonImages_, picTools_->palette(), inside);
    frmFind_ = new SymbolSearchBox(program, buttonImages_, picTools_);
    orderBar_ = new OrderBar(program, *picFrame_, inside);

    connect(picTop_, &ToolStrip::handled, this, &MainWindow::refresh);
    connect(picSimulation_, &SimulationPanel::handled, this, &MainWindow::refresh);
    connect(picTools_, &PalettePanel::handled, this, &MainWindow::refresh);
    connect(picUserTools_, &UserPalettePanel::handled, this, &MainWindow::refresh);
    connect(frmFind_, &SymbolSearchBox::handled, this, &MainWindow::refresh);
    connect(frmFind_, &SymbolSearchBox::chosen, this, &MainWindow::revealTool);
    connect(orderBar_, &OrderBar::handled, this, &MainWindow::refresh);
    connect(picFrame_, &CanvasFrame::handled, this, &MainWindow::refresh);
    connect(picMoreSym_, &FlyOutWidget::handled, this, &MainWindow::refresh);
    connect(picTop_, &ToolStrip::escapePressed, this, [this] {
        Form_KeyDown(program_.editor, key::Escape, NoShift);
        refresh();
    });
    bindings_.watch(program.editor.form.Caption,
                    [this](const std::string& caption) { setWindowTitle(toQString(caption)); });
    bindings_.addPanel(*picTop_, program.editor.form.picTop);
    bindings_.watch(program.editor.form.menu, [this](const MenuStates&) { showMenus(); });
    watchKeys();
    refresh();
    picFrame_->canvas().setFocus();
}

// An entry with entries below it is a menu of its own.
void MainWindow::makeMenus() {
    menuBar()->setObjectName("menuBar");
    for (const Command& command : commandTable())
        if (command.menu != command.entry) menus_[command.menu] = nullptr;
    for (const Command& command : commandTable()) {
        QAction* entry = makeEntry(command);
        entries_[command.entry] = entry;
        if (command.menu == command.entry) {
            menuBar()->addAction(entry);
        } else {
            QMenu& menu = *menus_.at(command.menu);
            if (command.separatorBefore) menu.addSeparator();
            menu.addAction(entry);
        }
    }
    connect(menus_.at(Menu::mnuFile), &QMenu::aboutToShow, this, [this] {
        mnuFile_Popup(program_);
        showMenus();
    });
}

QAction* MainWindow::makeEntry(const Command& command) {
    const QString name =
        QString::fromLatin1(command.name.data(), static_cast<int>(command.name.size()));
    const bool opensMenu = command.menu == command.entry || menus_.contains(command.entry);
    if (opensMenu) {
        auto* menu = new QMenu(toQString(command.caption), this);
        menu->setObjectName(name);
        menus_[command.entry] = menu;
        menu->menuAction()->setObjectName(name);
        return menu->menuAction();
    }
    auto* entry = new QAction(toQString(command.caption), this);
    entry->setObjectName(name);
    entry->setCheckable(command.checkable);
    entry->setMenuRole(QAction::NoRole);
    entry->setShortcuts(QKeySequence::listFromString(toQString(command.shortcut)));
    // The toolkit has flipped the check mark; the state puts it right.
    connect(entry, &QAction::triggered, this, [this, which = command.entry] {
        runCommand(program_, which);
        showMenus();
        settle();
    });
    return entry;
}

void MainWindow::showMenus() {
    for (const Command& command : commandTable()) {
        const MenuState& state = program_.editor.form.menu[command.entry];
        QAction& entry = *entries_.at(command.entry);
        entry.setVisible(state.Visible);
        entry.setText(toQString(state.Caption.empty() ? command.caption : state.Caption));
        entry.setEnabled(ladrix::isEnabled(program_, command));
        if (command.checkable) entry.setChecked(state.Checked);
    }
}

void MainWindow::popUp(std::string_view menuName) {
    for (const auto& [entry, menu] : menus_)
        if (command(entry).name == menuName) menu->popup(QCursor::pos());
}

void MainWindow::makeFoot(QBoxLayout& column) {
    const FormLX& form = program_.editor.form;
    auto* picBottom = new QWidget(this);
    picBottom->setObjectName("picBottom");
    picBottom->setFixedHeight(FootHeight);
    auto* row = new QHBoxLayout(picBottom);
    row->setContentsMargins(3 * theme::Unit, 0, 3 * theme::Unit, 0);
    row->setSpacing(4 * theme::Unit);
    auto* lblMessage = new ElidedLabel(picBottom);
    lblMessage->setObjectName("lblMessage");
    row->addWidget(lblMessage, 1);
    bindings_.watch(form.lblMessage, [lblMessage](const Control& state) {
        lblMessage->setText(toQString(state.Caption));
    });
    makeField("lblUndoCount", form.lblUndoCount, *row);
    makeField("lblTime", form.lblTime, *row);
    QLabel* lblCoords = makeField("lblCoords", form.lblCoords, *row);
    lblCoords->setMinimumWidth(
        lblCoords->fontMetrics().horizontalAdvance("X = 00.0000, Y = 00.0000"));
    lblCoords->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    makeField("lblSelected", form.lblSelected, *row);
    column.addWidget(picBottom);
}

QLabel* MainWindow::makeField(const char* name, const Control& state, QBoxLayout& row) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setForegroundRole(QPalette::PlaceholderText);
    row.addWidget(label);
    bindings_.watch(state, [label](const Control& now) {
        label->setText(toQString(now.Caption));
        label->setVisible(now.Visible && (!now.Caption.empty() || label->minimumWidth() > 0));
    });
    return label;
}

void MainWindow::refresh() {
    if (refreshing_) {
        refreshAgain_ = true;
        return;
    }
    refreshing_ = true;
    do {
        refreshAgain_ = false;
        showState();
    } while (refreshAgain_);
    refreshing_ = false;
    if (program_.Ending && isVisible()) close();
}

// The end of whatever may have changed what the pointer rests on: a command, a key, a dialog.
void MainWindow::settle() {
    picFrame_->canvas().tellPointer();
    refresh();
}

void MainWindow::showState() {
    bindings_.refresh();
    picTop_->refresh();
    picSimulation_->refresh();
    picTools_->refresh();
    picUserTools_->refresh();
    orderBar_->refresh();
    picFrame_->refresh();
    picMoreSym_->refresh();
    giveFocus();
}

// The button of the tool in hand comes into view.
void MainWindow::revealTool() {
    const Short tool = program_.editor.gesture.CurrentTool;
    if (tool < 0) return;
    refresh();
    picUserTools_->reveal(tool);
    picTools_->palette().reveal(tool);
    refresh();
}

// A field in a panel that is closed cannot take the focus: the canvas has it until the panel opens.
void MainWindow::giveFocus() {
    const Focus wanted = std::exchange(program_.editor.form.FocusRequest, Focus::None);
    switch (wanted) {
        case Focus::Canvas:
            return picFrame_->canvas().setFocus();
        case Focus::TextEdit:
            if (picTop_->txtEdit().isVisible()) return picTop_->txtEdit().setFocus();
            txtEdit_LostFocus(program_.editor);
            return picFrame_->canvas().setFocus();
        case Focus::CircleEnd:
            picTop_->txtCircleEnd().setFocus();
            picTop_->txtCircleEnd().selectAll();
            return;
        case Focus::None:
            return;
    }
}

void MainWindow::watchKeys() {
    for (QWidget* widget : findChildren<QWidget*>())
        if (widget->focusPolicy() != Qt::NoFocus && widget != menuBar())
            widget->installEventFilter(this);
}

void MainWindow::pressFormKey(const QKeyEvent& event) {
    Form_KeyDown(program_.editor, classicKeyCode(event), classicShift(event.modifiers()));
}

// A character typed over the canvas with the Text tool in hand belongs in its field.
bool MainWindow::typeIntoText(const QKeyEvent& event) {
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (command || event.text().isEmpty() || !event.text().at(0).isPrint()) return false;
    if (toolInHand(program_.editor).kind != ToolKind::Text) return false;
    openTextToolByKey(program_.editor);
    refresh();
    QKeyEvent typed(event.type(), event.key(), event.modifiers(), event.text());
    QCoreApplication::sendEvent(&picTop_->txtEdit(), &typed);
    return true;
}

// The form sees keys before the widget that has the focus. While a field has it the keys that edit
// its text are the field's own: neither the form nor a command takes them.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool asked = event->type() == QEvent::ShortcutOverride;
    if (!asked && event->type() != QEvent::KeyPress)
        return QMainWindow::eventFilter(watched, event);
    const auto& press = *static_cast<QKeyEvent*>(event);
    const bool ofField = isField(watched) && isEditingKey(press);
    if (asked) {
        if (ofField) event->accept();
        return ofField;
    }
    if (ofField || press.key() == Qt::Key_Tab || press.key() == Qt::Key_Backtab) return false;
    const bool onCanvas = watched == &picFrame_->canvas();
    if (onCanvas && typeIntoText(press)) return true;
    pressFormKey(press);
    if (onCanvas)
        picLX_KeyDown(program_.editor, classicKeyCode(press), classicShift(press.modifiers()));
    settle();
    return onCanvas || press.key() == Qt::Key_Escape;
}

// What no widget has taken comes here; the filter has seen it already unless nothing had the focus.
void MainWindow::keyPressEvent(QKeyEvent* event) {
    QWidget* focused = focusWidget();
    if (focused && focused != this && focused->hasFocus()) return QMainWindow::keyPressEvent(event);
    pressFormKey(*event);
    settle();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!program_.Ending && !mayEnd(program_)) {
        event->ignore();
        return refresh();
    }
    program_.Ending = true;
    event->accept();
}

}  // namespace ladrix
