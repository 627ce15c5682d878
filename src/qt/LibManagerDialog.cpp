#include "qt/LibManagerDialog.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <cmath>

#include "qt/InputFilters.h"
#include "qt/QtImages.h"
#include "qt/QtText.h"
#include "qt/Theme.h"
#include "usersymbols/UserButtonOrder.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {

namespace {

constexpr int Space = 2 * theme::Unit;
constexpr int Margin = 3 * theme::Unit;
constexpr int ListWidth = 300;
constexpr double PixelsPerInch = 96;
constexpr QSize FirstSize{1120, 780}, WindowFrame{16, 48};

void showButton(QPushButton& button, const Control& state) {
    button.setText(toQString(state.Caption));
    button.setEnabled(state.Enabled);
}

void fillList(QListWidget& widget, const ListBox& state) {
    const QSignalBlocker quiet(&widget);
    QStringList items;
    for (const std::string& item : state.List)
        items << toQString(item);
    bool same = widget.count() == items.size();
    for (int i = 0; same && i < items.size(); ++i)
        same = widget.item(i)->text() == items[i];
    if (!same) {
        widget.clear();
        widget.addItems(items);
    }
    widget.setCurrentRow(state.ListIndex);
}

}  // namespace

// picPreview, a sheet of paper at the screen's size of an inch.
class PreviewPane final : public QWidget {
  public:
    PreviewPane(Program& program, QWidget* parent) : QWidget(parent), program_(program) {
        setObjectName(QStringLiteral("picPreview"));
        setAttribute(Qt::WA_OpaquePaintEvent);
        setMinimumSize(240, 200);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        setCursor(Qt::CrossCursor);
    }

    std::function<void()> pressed;  // a handler has run
    QMenu* menu = nullptr;

    void refresh() {
        if (shown_ == program_.frmLibManager.PreviewVersion) return;
        shown_ = program_.frmLibManager.PreviewVersion;
        update();
    }

  protected:
    void resizeEvent(QResizeEvent*) override {
        const double ratio = devicePixelRatioF();
        picPreview_Resize(program_.frmLibManager, program_.editor,
                          static_cast<int>(std::lround(width() * ratio)),
                          static_cast<int>(std::lround(height() * ratio)), PixelsPerInch * ratio);
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        if (program_.frmLibManager.picPreview) {
            const auto image = program_.frmLibManager.picPreview->Image();
            if (const auto* shown = dynamic_cast<const QtPicture*>(image.get()))
                painter.drawImage(rect(), shown->image());
        }
        painter.setPen(theme::Edge);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::RightButton && menu)
            menu->popup(event->globalPosition().toPoint());
        if (event->button() != Qt::LeftButton) return;
        const QPointF at = event->position() / PixelsPerInch;
        picPreview_MouseDown(program_.frmLibManager, program_.editor, static_cast<Single>(at.x()),
                             static_cast<Single>(at.y()));
        if (pressed) pressed();
    }

  private:
    Program& program_;
    unsigned shown_ = 0;
};

// A row acts when it becomes the marked one, and again with each click while it is.
class ChoiceList final : public QListWidget {
  public:
    ChoiceList(QWidget* parent, std::function<void(int row)> chosen)
        : QListWidget(parent), chosen_(std::move(chosen)) {
        connect(this, &QListWidget::currentRowChanged, this, chosen_);
    }

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        const int marked = currentRow();
        QListWidget::mousePressEvent(event);
        const QListWidgetItem* const pressed = itemAt(event->position().toPoint());
        if (event->button() == Qt::LeftButton && pressed && row(pressed) == marked) chosen_(marked);
    }

  private:
    std::function<void(int row)> chosen_;
};

template <class Handler>
QPushButton* LibManagerDialog::makeButton(const char* name, const Control& state, Handler handler) {
    auto* const button = new QPushButton(toQString(state.Caption), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, handler] {
        handler();
        showState();
    });
    return button;
}

template <class Handler>
void LibManagerDialog::addEntry(QMenu& menu, const char* name, const QString& caption,
                                Handler handler) {
    QAction* const entry = menu.addAction(caption);
    entry->setObjectName(QString::fromLatin1(name));
    connect(entry, &QAction::triggered, this, [this, handler] {
        handler();
        showState();
    });
}

LibManagerDialog::LibManagerDialog(Program& program, QWidget* parent)
    : QDialog(parent), program_(program), form_(program.frmLibManager) {
    setObjectName(QStringLiteral("frmLibManager"));
    setWindowTitle(tr("User Symbol Library Manager"));
    setSizeGripEnabled(true);
    cmdExit_ = makeButton("cmdExit", form_.cmdExit, [this] { reject(); });
    cmdExit_->setDefault(true);
    auto* const columns = new QHBoxLayout;
    columns->setSpacing(4 * theme::Unit);
    columns->addLayout(makeSource(), 3);
    columns->addLayout(makeLists());
    columns->addLayout(makePreview(), 2);
    auto* const foot = new QHBoxLayout;
    foot->addWidget(lblOrder_, 1);
    foot->addWidget(cmdExit_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Space, Margin, Margin);
    layout->setSpacing(Margin);
    layout->setMenuBar(makeMenus());
    layout->addLayout(columns, 1);
    layout->addLayout(foot);
    resize(FirstSize.boundedTo(screen()->availableSize() - WindowFrame));
}

QMenuBar* LibManagerDialog::makeMenus() {
    auto* const bar = new QMenuBar(this);
    QMenu& file = *bar->addMenu(tr("&File"));
    const auto onAll = [this](void (*handler)(LibManager&, UserSymbols&, Editor&)) {
        return [this, handler] { handler(form_, program_.usersymbols, program_.editor); };
    };
    addEntry(file, "mnuFileNew", tr("Create &New Library"), onAll(mnuFileNew_Click));
    addEntry(file, "mnuFileName", tr("&Rename Current Library"), onAll(mnuFileName_Click));
    addEntry(file, "mnuFileDelete", tr("&Delete Current Library"), onAll(mnuFileDelete_Click));
    file.addSeparator();
    addEntry(file, "mnuFileSaveOrder", tr("&Save User Symbol Order"),
             onAll(mnuFileSaveOrder_Click));
    mnuEdit_ = bar->addMenu(tr("&Edit"));
    addEntry(*mnuEdit_, "mnuEditSelectAll", tr("Select &All Symbols"),
             [this] { mnuEditSelectAll_Click(form_); });
    addEntry(*mnuEdit_, "mnuEditDeselectAll", tr("D&eselect All Symbols"),
             [this] { mnuEditDeselectAll_Click(form_); });
    mnuEdit_->addSeparator();
    addEntry(*mnuEdit_, "mnuEditClear", tr("&Clear Preview"),
             [this] { mnuEditClear_Click(form_); });
    mnuEdit_->addSeparator();
    addEntry(*mnuEdit_, "mnuEditEnableOrderChange", tr("Change &Order of Symbols"),
             [this] { mnuEditEnableOrderChange_Click(form_, program_.editor); });
    picPreview_->menu = mnuEdit_;
    return bar;
}

QLabel* LibManagerDialog::makeLabel(const QString& text, QWidget* buddy) {
    auto* const label = new QLabel(text, this);
    label->setBuddy(buddy);
    return label;
}

QVBoxLayout* LibManagerDialog::makeSource() {
    cmbSourceLibrary_ = new QComboBox(this);
    cmbSourceLibrary_->setObjectName(QStringLiteral("cmbSourceLibrary"));
    cmbSourceLibrary_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cmbSourceLibrary_->setMinimumContentsLength(16);
    connect(cmbSourceLibrary_, &QComboBox::activated, this, [this] {
        form_.cmbSourceLibrary.Text = fromQString(cmbSourceLibrary_->currentText());
    });
    cmdOpen_ = makeButton("cmdOpen", form_.cmdOpen,
                          [this] { cmdOpen_Click(form_, program_.usersymbols, program_.editor); });
    auto* const choice = new QHBoxLayout;
    choice->setSpacing(Space);
    choice->addWidget(cmbSourceLibrary_, 1);
    choice->addWidget(cmdOpen_);
    lblOrder_ = new QLabel(this);
    lblOrder_->setForegroundRole(QPalette::PlaceholderText);
    auto* const column = new QVBoxLayout;
    column->setSpacing(Space);
    column->addWidget(
        makeLabel(tr("Source Library - Select Another Library Below"), cmbSourceLibrary_));
    column->addLayout(choice);
    column->addSpacing(Space);
    column->addWidget(new QLabel(tr("Click to Select or De-select Symbols Below"), this));
    column->addWidget(makeSymbols(), 1);
    column->addWidget(HScroll1_);
    return column;
}

QWidget* LibManagerDialog::makeSymbols() {
    picMain_ = new QScrollArea(this);
    picMain_->setObjectName(QStringLiteral("picMain"));
    picMain_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    picMain_->setMinimumWidth(7 * SymbolButtons::Cell);
    picSymbols_ = new SymbolButtons(picMain_);
    picSymbols_->setObjectName(QStringLiteral("picSymbols"));
    picSymbols_->setAccessibleName(tr("Symbols of the source library"));
    picMain_->setWidget(picSymbols_);
    picMain_->setWidgetResizable(true);
    HScroll1_ = new QScrollBar(Qt::Horizontal, this);
    HScroll1_->setObjectName(QStringLiteral("HScroll1"));
    picSymbols_->mayDrag = [this](int button) {
        return beginManagerDrag(form_, static_cast<Short>(button));
    };
    connect(picSymbols_, &SymbolButtons::clicked, this, [this](int button) {
        frmLibManager_cmdSym_Click(form_, static_cast<Short>(button));
        showState();
    });
    connect(picSymbols_, &SymbolButtons::dropped, this, [this](int button) {
        frmLibManager_cmdSym_DragDrop(form_, static_cast<Short>(button));
        showState();
    });
    connect(picSymbols_, &SymbolButtons::wheelTurned, this, [this](int steps, bool sideways) {
        QScrollBar& bar = sideways ? *HScroll1_ : *picMain_->verticalScrollBar();
        bar.setValue(bar.value() + steps * 2 * bar.singleStep());
    });
    connect(HScroll1_, &QScrollBar::valueChanged, this, [this](int value) {
        if (showing_) return;
        HScroll1_Change(form_, value);
        placeColumns();
    });
    return picMain_;
}

QVBoxLayout* LibManagerDialog::makeLists() {
    const auto makeList = [this](const char* name, void (*choose)(LibManager&, Editor&, int)) {
        auto* const list = new ChoiceList(this, [this, choose](int row) {
            choose(form_, program_.editor, row);
            showState();
        });
        list->setObjectName(QString::fromLatin1(name));
        list->setFixedWidth(ListWidth);
        list->setTextElideMode(Qt::ElideMiddle);
        return list;
    };
    lstSelected_ = makeList("lstSelected", lstSelected_Click);
    lstDestinationLibrary_ = makeList("lstDestinationLibrary", lstDestinationLibrary_Click);
    const auto handler = [this](void (*press)(LibManager&, UserSymbols&, Editor&)) {
        return [this, press] { press(form_, program_.usersymbols, program_.editor); };
    };
    cmdDelete_ = makeButton("cmdDelete", form_.cmdDelete, handler(cmdDelete_Click));
    cmdCopy_ = makeButton("cmdCopy", form_.cmdCopy, handler(cmdCopy_Click));
    cmdMove_ = makeButton("cmdMove", form_.cmdMove, handler(cmdMove_Click));
    auto* const column = new QVBoxLayout;
    column->setSpacing(Space);
    column->addWidget(makeLabel(tr("Selected Symbols by Name"), lstSelected_));
    column->addWidget(lstSelected_, 1);
    column->addWidget(cmdDelete_);
    column->addSpacing(Space);
    column->addWidget(
        makeLabel(tr("Destination Library - Click to Select"), lstDestinationLibrary_));
    column->addWidget(lstDestinationLibrary_, 1);
    column->addWidget(cmdCopy_);
    column->addWidget(cmdMove_);
    return column;
}

QVBoxLayout* LibManagerDialog::makePreview() {
    picPreview_ = new PreviewPane(program_, this);
    picPreview_->pressed = [this] { showState(); };
    cmbScale_ = new QComboBox(this);
    cmbScale_->setObjectName(QStringLiteral("cmbScale"));
    cmbScale_->setEditable(true);
    cmbScale_->setInsertPolicy(QComboBox::NoInsert);
    cmbScale_->setValidator(new NumberFilter(cmbScale_));
    for (const std::string& scale : form_.cmbScale.List)
        cmbScale_->addItem(toQString(scale));
    connect(cmbScale_, &QComboBox::activated, this, [this] {
        form_.cmbScale.Text = fromQString(cmbScale_->currentText());
        cmbScale_Click(form_, program_.editor);
        showState();
    });
    connect(cmbScale_->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        form_.cmbScale.Text = fromQString(text);
        cmbScale_Change(form_, program_.editor);
        showState();
    });
    picCurrent_ = new QLabel(this);
    lblCurrent_ = new QLabel(this);
    auto* const row = new QHBoxLayout;
    row->setSpacing(Space);
    row->addWidget(picCurrent_);
    row->addWidget(lblCurrent_, 1);
    row->addWidget(makeLabel(tr("Scale"), cmbScale_));
    row->addWidget(cmbScale_);
    auto* const column = new QVBoxLayout;
    column->setSpacing(Space);
    column->addWidget(new QLabel(tr("Place Symbol for Preview Below"), this));
    column->addWidget(picPreview_, 1);
    column->addLayout(row);
    return column;
}

void LibManagerDialog::run() {
    showState();
    cmbSourceLibrary_->setFocus();
    exec();
}

void LibManagerDialog::reject() {
    frmLibManager_Unload(form_, program_.usersymbols, program_.editor);
    done(0);
}

// Escape clears the preview; the window closes by its button.
void LibManagerDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QDialog::keyPressEvent(event);
    mnuEditClear_Click(form_);
    showState();
}

void LibManagerDialog::showState() {
    if (!form_.Visible) return;
    showing_ = true;
    showLists();
    showSymbols();
    showButton(*cmdOpen_, form_.cmdOpen);
    showButton(*cmdCopy_, form_.cmdCopy);
    showButton(*cmdMove_, form_.cmdMove);
    showButton(*cmdDelete_, form_.cmdDelete);
    picPreview_->refresh();
    if (cmbScale_->currentText() != toQString(form_.cmbScale.Text))
        cmbScale_->setEditText(toQString(form_.cmbScale.Text));
    lblOrder_->setText(form_.ManagerArranging
                           ? tr("Drag the symbols to their new positions, then save the order.")
                           : QString());
    showing_ = false;
}

void LibManagerDialog::showLists() {
    const QSignalBlocker quiet(cmbSourceLibrary_);
    cmbSourceLibrary_->clear();
    for (const std::string& file : form_.cmbSourceLibrary.List)
        cmbSourceLibrary_->addItem(toQString(file));
    const QString source = toQString(form_.cmbSourceLibrary.Text);
    if (cmbSourceLibrary_->findText(source) < 0) cmbSourceLibrary_->addItem(source);
    cmbSourceLibrary_->setCurrentText(source);
    fillList(*lstSelected_, form_.lstSelected);
    fillList(*lstDestinationLibrary_, form_.lstDestinationLibrary);
}

void LibManagerDialog::showSymbols() {
    const bool current = form_.ManagerCurrent >= 0;
    const auto row = static_cast<std::size_t>(std::max<Short>(form_.ManagerCurrent, 0));
    lblCurrent_->setText(current ? toQString(form_.ManagerSymbolName[row]) : QString());
    picCurrent_->clear();
    if (current)
        if (const auto* picture =
                dynamic_cast<const QtPicture*>(form_.ManagerSymbolPicture[row].get()))
            picCurrent_->setPixmap(QPixmap::fromImage(picture->image()));
    if (buttonVersion_ == form_.ButtonVersion) return;
    buttonVersion_ = form_.ButtonVersion;
    HScroll1_->setValue(form_.HScroll1.Value);
    placeColumns();
}

void LibManagerDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    layout()->activate();
    placeColumns();
}

void LibManagerDialog::placeColumns() {
    const int inView = std::max(1, picMain_->viewport()->width() / SymbolButtons::Cell);
    HScroll1_->setRange(0, std::max(0, form_.HScroll1.Max + 1 - inView));
    HScroll1_->setEnabled(HScroll1_->maximum() > 0);
    const Single size = program_.usersymbols.UserButtonSize;
    const auto steps = [size](Single distance) {
        return static_cast<int>(std::lround(distance / size));
    };
    std::vector<SymbolButton> buttons;
    int rows = 0;
    for (std::size_t i = 0; i < form_.ManagerSymbolState.size(); ++i) {
        const ButtonPlace& place = form_.ManagerButtonPlace[i];
        const ManagerSymbol& state = form_.ManagerSymbolState[i];
        rows = std::max(rows, steps(place.Top) + 1);
        buttons.push_back(
            {state.Selected ? form_.ManagerSymbolCyanPicture[i] : form_.ManagerSymbolPicture[i],
             toQString(state.Name), steps(place.Left) - form_.HScroll1.Value, steps(place.Top)});
    }
    picSymbols_->setMinimumHeight(rows * SymbolButtons::Cell + 1);
    picSymbols_->setButtons(std::move(buttons));
}

}  // namespace ladrix
