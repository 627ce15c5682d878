#include "qt/FileDialog.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/FileCommands.h"
#include "browser/BrowserSaving.h"
#include "qt/ElidedLabel.h"
#include "qt/FileIcons.h"
#include "qt/FileListView.h"
#include "qt/PathBar.h"
#include "qt/PreviewBox.h"
#include "qt/PreviewSheet.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Space = 2 * theme::Unit;
constexpr int Margin = 3 * theme::Unit;

QPushButton* makeButton(const char* name, QWidget* parent) {
    auto* const button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

QHBoxLayout* makeRow(QWidget* row) {
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space);
    return layout;
}

}  // namespace

template <class Handler>
void FileDialog::handle(const Handler& handler) {
    handler();
    showState();
}

FileDialog::FileDialog(Program& program, QWidget* parent)
    : QDialog(parent), program_(program), browser_(program.frmFile), editor_(program.editor) {
    setObjectName(QStringLiteral("frmFile"));
    setSizeGripEnabled(true);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Space);
    layout->addWidget(makePrompt());
    layout->addWidget(makeTop());
    layout->addWidget(makeFavorites());
    layout->addWidget(makeMiddle(), 1);
    layout->addWidget(makeNameRow());
    layout->addWidget(makeButtons());
    connectControls();
    connectFolders();
    connectList(FileList1_);
    connectList(sheet_);
    makeShortcuts();
    setTabOrders();
    for (QWidget* const widget : findChildren<QWidget*>())
        if (widget->focusPolicy() != Qt::NoFocus) widget->installEventFilter(this);
}

QWidget* FileDialog::makePrompt() {
    auto* const box = new QWidget(this);
    auto* const layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space / 2);
    lblHeading_ = new QLabel(box);
    lblHeading_->setObjectName(QStringLiteral("lblHeading"));
    QFont bold = lblHeading_->font();
    bold.setBold(true);
    lblHeading_->setFont(bold);
    lblPrompt_ = new QLabel(box);
    lblPrompt_->setObjectName(QStringLiteral("lblPrompt"));
    lblPrompt_->setWordWrap(true);
    layout->addWidget(lblHeading_);
    layout->addWidget(lblPrompt_);
    return box;
}

QWidget* FileDialog::makeTop() {
    auto* const row = new QWidget(this);
    auto* const layout = makeRow(row);
    cmdUp_ = new QToolButton(row);
    cmdUp_->setObjectName(QStringLiteral("cmdUp"));
    cmdUp_->setIcon(fileIcon(FileIcon::Up));
    const int icon = qMax(fontMetrics().height(), 16);
    cmdUp_->setIconSize(QSize(icon, icon));
    cmdUp_->setToolTip(tr("Folder above (Backspace)"));
    cmdUp_->setAccessibleName(tr("Folder above"));
    cmdUp_->setFocusPolicy(Qt::TabFocus);
    cmdUp_->setAutoRaise(true);
    Dir1_ = new PathBar(row);
    Dir1_->setObjectName(QStringLiteral("Dir1"));
    cmdNewFolder_ = makeButton("cmdNewFolder", row);
    layout->addWidget(cmdUp_);
    layout->addWidget(Dir1_, 1);
    layout->addWidget(cmdNewFolder_);
    return row;
}

QWidget* FileDialog::makeFavorites() {
    auto* const row = new QWidget(this);
    auto* const layout = makeRow(row);
    auto* const label = new QLabel(tr("Favo&rites"), row);
    cmbFavorites_ = new QComboBox(row);
    cmbFavorites_->setObjectName(QStringLiteral("cmbFavorites"));
    cmbFavorites_->setMinimumContentsLength(10);
    cmbFavorites_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    label->setBuddy(cmbFavorites_);
    cmdGoFavorite_ = makeButton("cmdGoFavorite", row);
    cmdAddToFavorites_ = makeButton("cmdAddToFavorites", row);
    options_ = new QToolButton(row);
    options_->setObjectName(QStringLiteral("mnuOptions"));
    options_->setText(tr("O&ptions"));
    options_->setPopupMode(QToolButton::InstantPopup);
    options_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto* const menu = new QMenu(options_);
    menu->addAction(tr("&Add This Folder to Favorites"), cmdAddToFavorites_, &QPushButton::click)
        ->setObjectName(QStringLiteral("mnuOptAddToFavorites"));
    menu->addAction(tr("&Manage Favorites..."), this,
                    [this] { handle([this] { mnuOptManageFavorites_Click(program_); }); })
        ->setObjectName(QStringLiteral("mnuOptManageFavorites"));
    options_->setMenu(menu);
    layout->addWidget(label);
    layout->addWidget(cmbFavorites_, 1);
    layout->addWidget(cmdGoFavorite_);
    layout->addWidget(cmdAddToFavorites_);
    layout->addWidget(options_);
    return row;
}

QWidget* FileDialog::makeMiddle() {
    auto* const splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(Space);
    lists_ = new QStackedWidget(splitter);
    FileList1_ = new FileListView(browser_, lists_);
    FileList1_->setObjectName(QStringLiteral("FileList1"));
    FileList1_->setAccessibleName(tr("Folders and files"));
    sheet_ = new PreviewSheet(program_, lists_);
    sheet_->setObjectName(QStringLiteral("previewSheet"));
    sheet_->setAccessibleName(tr("Previews of the folder's drawings"));
    lists_->addWidget(FileList1_);
    lists_->addWidget(sheet_);
    splitter->addWidget(lists_);
    splitter->addWidget(preview_ = makePreview());
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setSizes({600, 400});  // shares, not pixels: the splitter fits them to its width
    return splitter;
}

QWidget* FileDialog::makePreview() {
    auto* const side = new QWidget(this);
    framPreview_ = new QGroupBox(side);
    framPreview_->setObjectName(QStringLiteral("framPreview"));
    auto* const frame = new QVBoxLayout(framPreview_);
    frame->setContentsMargins(Space, Space, Space, Space);
    picPreview_ = new PreviewBox(program_, framPreview_);
    picPreview_->setObjectName(QStringLiteral("picPreview"));
    frame->addWidget(picPreview_);

    lblDescription_ = new QLabel(tr("&Description"), side);
    txtDescription_ = new QPlainTextEdit(side);
    txtDescription_->setObjectName(QStringLiteral("txtDescription"));
    txtDescription_->setReadOnly(true);
    txtDescription_->setTabChangesFocus(true);
    txtDescription_->setFixedHeight(5 * fontMetrics().lineSpacing());
    lblDescription_->setBuddy(txtDescription_);

    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space / 2);
    layout->addWidget(framPreview_, 1);
    layout->addSpacing(Space / 2);
    layout->addWidget(lblDescription_);
    layout->addWidget(txtDescription_);
    return side;
}

QWidget* FileDialog::makeNameRow() {
    nameRow_ = new QWidget(this);
    auto* const layout = new QGridLayout(nameRow_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space);
    lblSaveAs_ = new QLabel(nameRow_);
    txtSaveAs_ = new QLineEdit(nameRow_);
    txtSaveAs_->setObjectName(QStringLiteral("txtSaveAs"));
    lblSaveAs_->setBuddy(txtSaveAs_);
    lblFileType_ = new QLabel(tr("File type"), nameRow_);
    fileTypes_ = new QWidget(nameRow_);
    fileTypes_->setObjectName(QStringLiteral("optFileType"));
    fileTypeRow_ = makeRow(fileTypes_);
    fileTypeRow_->setSpacing(2 * Margin);
    optFileType_ = new QButtonGroup(this);
    layout->addWidget(lblSaveAs_, 0, 0);
    layout->addWidget(txtSaveAs_, 0, 1);
    layout->addWidget(lblFileType_, 1, 0);
    layout->addWidget(fileTypes_, 1, 1);
    return nameRow_;
}

QWidget* FileDialog::makeButtons() {
    auto* const row = new QWidget(this);
    auto* const layout = makeRow(row);
    layout->setContentsMargins(0, Space / 2, 0, 0);
    cmdPreviewAll_ = makeButton("cmdPreviewAll", row);
    cmdPreviewAll_->setCheckable(true);
    lblNote_ = new ElidedLabel(row);
    lblNote_->setObjectName(QStringLiteral("lblNote"));
    cmdOpenOK_ = makeButton("cmdOpenOK", row);
    cmdSaveAs_ = makeButton("cmdSaveAs", row);
    cmdOpenCancel_ = makeButton("cmdOpenCancel", row);
    layout->addWidget(cmdPreviewAll_);
    layout->addWidget(lblNote_, 1);
    layout->addWidget(cmdOpenOK_);
    layout->addWidget(cmdSaveAs_);
    layout->addWidget(cmdOpenCancel_);
    return row;
}

void FileDialog::connectControls() {
    connect(txtSaveAs_, &QLineEdit::textEdited, this, [this](const QString& text) {
        handle([&] { txtSaveAs_Change(browser_, fromQString(text)); });
    });
    connect(optFileType_, &QButtonGroup::idClicked, this, [this](int type) {
        handle([&] { optFileType_Click(browser_, editor_, static_cast<Short>(type)); });
    });
    connect(cmdNewFolder_, &QPushButton::clicked, this,
            [this] { handle([this] { cmdNewFolder_Click(browser_, editor_); }); });
    connect(cmdPreviewAll_, &QPushButton::clicked, this, [this] {
        handle([this] { cmdPreviewAll_Click(browser_); });
        lists_->currentWidget()->setFocus();
    });
    connect(cmdOpenOK_, &QPushButton::clicked, this,
            [this] { handle([this] { cmdOpenOK_Click(browser_, editor_); }); });
    connect(cmdSaveAs_, &QPushButton::clicked, this,
            [this] { handle([this] { cmdSaveAs_Click(browser_, editor_); }); });
    connect(cmdOpenCancel_, &QPushButton::clicked, this, &FileDialog::reject);
}

void FileDialog::connectFolders() {
    connect(cmdUp_, &QToolButton::clicked, this,
            [this] { handle([this] { goToParentFolder(browser_, editor_); }); });
    connect(Dir1_, &PathBar::folderChosen, this, [this](const std::string& folder) {
        handle([&] { Dir1_Change(browser_, editor_, folder); });
        lists_->currentWidget()->setFocus();
    });
    connect(Dir1_, &PathBar::pathTyped, this, [this](const std::string& path) {
        handle([&] { goToPath(browser_, editor_, path); });
    });
    connect(Dir1_, &PathBar::editEnded, this, [this] { lists_->currentWidget()->setFocus(); });
    connect(cmbFavorites_, &QComboBox::textActivated, this, [this](const QString& folder) {
        handle([&] { cmbFavorites_Change(browser_, fromQString(folder)); });
    });
    connect(cmdGoFavorite_, &QPushButton::clicked, this,
            [this] { handle([this] { cmdGoFavorite_Click(browser_, editor_); }); });
    connect(cmdAddToFavorites_, &QPushButton::clicked, this, [this] {
        handle([this] { cmdAddToFavorites_Click(browser_, program_.favorites, editor_); });
    });
}

void FileDialog::connectList(FileListView* list) {
    connect(list, &FileListView::marked, this, [this, list] {
        handle([&] { FileList1_Click(browser_, editor_, list->markedRow()); });
    });
    connect(list, &FileListView::chosen, this,
            [this](int row) { handle([&] { FileList1_DblClick(browser_, editor_, row); }); });
    connect(list, &FileListView::parentWanted, cmdUp_, &QToolButton::click);
    connect(list, &FileListView::columnClicked, this, [this](BrowserOrder order) {
        handle([&] { FileList1_ColumnClick(browser_, order); });
    });
}

void FileDialog::connectList(PreviewSheet* sheet) {
    connect(sheet, &PreviewSheet::marked, this, [this, sheet] {
        handle([&] { FileList1_Click(browser_, editor_, sheet->markedRow()); });
    });
    connect(sheet, &PreviewSheet::chosen, this,
            [this](int row) { handle([&] { FileList1_DblClick(browser_, editor_, row); }); });
    connect(sheet, &PreviewSheet::parentWanted, cmdUp_, &QToolButton::click);
}

void FileDialog::makeShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    add(QKeySequence(Qt::ALT | Qt::Key_Up), [this] { cmdUp_->click(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_L), [this] { Dir1_->edit(); });
    add(QKeySequence(Qt::Key_F5),
        [this] { handle([this] { FileList1_Refresh(browser_, editor_); }); });
}

// What is used most comes first; the folders of the path come last.
void FileDialog::setTabOrders() {
    QWidget* const order[] = {FileList1_,     sheet_,         txtDescription_, txtSaveAs_,
                              fileTypes_,     cmdPreviewAll_, cmdOpenOK_,      cmdSaveAs_,
                              cmdOpenCancel_, cmbFavorites_,  cmdGoFavorite_,  cmdAddToFavorites_,
                              options_,       cmdNewFolder_,  cmdUp_};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

// Enter that is held down acts once: the focus goes on to other controls, which it is not meant
// for.
bool FileDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* const press = static_cast<QKeyEvent*>(event);
        const bool enter = press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter;
        if (enter && press->isAutoRepeat()) return true;
    }
    return QDialog::eventFilter(watched, event);
}

int FileDialog::run() {
    loadBrowser(program_);
    takeSize();
    showState();
    if (isSaving(browser_, editor_.drawing))
        txtSaveAs_->setFocus();
    else
        lists_->currentWidget()->setFocus();
    exec();
    // Where a box over the dialog has just gone too, a window manager may forget who is next.
    if (parentWidget()) parentWidget()->activateWindow();
    browser_.Width = static_cast<Single>(width());
    browser_.Height = static_cast<Single>(height());
    frmFile_Unload(browser_, editor_);
    return 0;
}

// The size that the user left last; before that one that suits the font.
void FileDialog::takeSize() {
    const int line = fontMetrics().height();
    QSize size(64 * line, 40 * line);
    if (browser_.Width > 0)
        size = QSize(static_cast<int>(browser_.Width), static_cast<int>(browser_.Height));
    resize(size.boundedTo(screen()->availableSize() * 0.9));
}

void FileDialog::reject() {
    handle([this] { cmdOpenCancel_Click(browser_, editor_); });
}

}  // namespace ladrix
