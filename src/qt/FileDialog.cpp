#include "qt/FileDialog.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/FileCommands.h"
#include "browser/BrowserFolders.h"
#include "browser/BrowserSaving.h"
#include "qt/FileIcons.h"
#include "qt/FileListView.h"
#include "qt/PathBar.h"
#include "qt/PreviewBox.h"
#include "qt/QtText.h"

namespace ladrix {

namespace {

constexpr int Space = 8;
constexpr int Margin = 12;

QPushButton* makeButton(const char* name, QWidget* parent) {
    auto* const button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

void showButton(QPushButton* button, const Control& control) {
    button->setText(toQString(control.Caption));
    button->setEnabled(control.Enabled);
    button->setVisible(control.Visible);
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
    layout->addWidget(makeTop());
    layout->addWidget(makeMiddle(), 1);
    layout->addWidget(makeNameRow());
    layout->addWidget(makeButtons());
    connectControls();
    makeShortcuts();
    setTabOrders();
}

QWidget* FileDialog::makeTop() {
    auto* const row = new QWidget(this);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space);
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

QWidget* FileDialog::makeMiddle() {
    auto* const splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(Space);
    FileList1_ = new FileListView(browser_, splitter);
    FileList1_->setObjectName(QStringLiteral("FileList1"));
    FileList1_->setAccessibleName(tr("Folders and files"));

    preview_ = new QWidget(splitter);
    framPreview_ = new QGroupBox(preview_);
    framPreview_->setObjectName(QStringLiteral("framPreview"));
    auto* const frame = new QVBoxLayout(framPreview_);
    frame->setContentsMargins(Space, Space, Space, Space);
    picPreview_ = new PreviewBox(program_, framPreview_);
    picPreview_->setObjectName(QStringLiteral("picPreview"));
    frame->addWidget(picPreview_);

    auto* const label = new QLabel(tr("&Description"), preview_);
    txtDescription_ = new QPlainTextEdit(preview_);
    txtDescription_->setObjectName(QStringLiteral("txtDescription"));
    txtDescription_->setReadOnly(true);
    txtDescription_->setTabChangesFocus(true);
    txtDescription_->setFixedHeight(5 * fontMetrics().lineSpacing());
    label->setBuddy(txtDescription_);

    auto* const layout = new QVBoxLayout(preview_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space / 2);
    layout->addWidget(framPreview_, 1);
    layout->addSpacing(Space / 2);
    layout->addWidget(label);
    layout->addWidget(txtDescription_);
    splitter->addWidget(FileList1_);
    splitter->addWidget(preview_);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setSizes({600, 400});  // shares, not pixels: the splitter fits them to its width
    return splitter;
}

QWidget* FileDialog::makeNameRow() {
    nameRow_ = new QWidget(this);
    auto* const layout = new QGridLayout(nameRow_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space);
    auto* const name = new QLabel(tr("&File name"), nameRow_);
    txtSaveAs_ = new QLineEdit(nameRow_);
    txtSaveAs_->setObjectName(QStringLiteral("txtSaveAs"));
    name->setBuddy(txtSaveAs_);
    auto* const type = new QLabel(tr("File type"), nameRow_);
    auto* const types = new QWidget(nameRow_);
    types->setObjectName(QStringLiteral("optFileType"));
    auto* const row = new QHBoxLayout(types);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * Margin);
    optFileType_ = new QButtonGroup(this);
    const QString captions[] = {tr("&Drawing (.els)"), tr("&Template (.tpl)")};
    for (int i = 0; i < 2; ++i) {
        auto* const option = new QRadioButton(captions[i], types);
        option->setObjectName(QStringLiteral("optFileType%1").arg(i));
        optFileType_->addButton(option, i);
        row->addWidget(option);
    }
    row->addStretch(1);
    layout->addWidget(name, 0, 0);
    layout->addWidget(txtSaveAs_, 0, 1);
    layout->addWidget(type, 1, 0);
    layout->addWidget(types, 1, 1);
    return nameRow_;
}

QWidget* FileDialog::makeButtons() {
    auto* const row = new QWidget(this);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, Space / 2, 0, 0);
    layout->setSpacing(Space);
    cmdOpenOK_ = makeButton("cmdOpenOK", row);
    cmdSaveAs_ = makeButton("cmdSaveAs", row);
    cmdOpenCancel_ = makeButton("cmdOpenCancel", row);
    layout->addStretch(1);
    layout->addWidget(cmdOpenOK_);
    layout->addWidget(cmdSaveAs_);
    layout->addWidget(cmdOpenCancel_);
    return row;
}

void FileDialog::connectControls() {
    connect(cmdUp_, &QToolButton::clicked, this,
            [this] { handle([this] { goToParentFolder(browser_, editor_); }); });
    connect(Dir1_, &PathBar::folderChosen, this, [this](const std::string& folder) {
        handle([&] { Dir1_Change(browser_, editor_, folder); });
        FileList1_->setFocus();
    });
    connect(Dir1_, &PathBar::pathTyped, this, [this](const std::string& path) {
        handle([&] { goToPath(browser_, editor_, path); });
    });
    connect(Dir1_, &PathBar::editEnded, FileList1_, [this] { FileList1_->setFocus(); });
    connect(FileList1_, &FileListView::marked, this, [this] {
        handle([this] { FileList1_Click(browser_, editor_, FileList1_->markedRow()); });
    });
    connect(FileList1_, &FileListView::chosen, this,
            [this](int row) { handle([&] { FileList1_DblClick(browser_, editor_, row); }); });
    connect(FileList1_, &FileListView::parentWanted, cmdUp_, &QToolButton::click);
    connect(FileList1_, &FileListView::columnClicked, this, [this](BrowserOrder order) {
        handle([&] { FileList1_ColumnClick(browser_, order); });
    });
    connect(txtSaveAs_, &QLineEdit::textEdited, this, [this](const QString& text) {
        handle([&] { txtSaveAs_Change(browser_, fromQString(text)); });
    });
    connect(optFileType_, &QButtonGroup::idClicked, this, [this](int type) {
        handle([&] { optFileType_Click(browser_, editor_, static_cast<Short>(type)); });
    });
    connect(cmdNewFolder_, &QPushButton::clicked, this,
            [this] { handle([this] { cmdNewFolder_Click(browser_, editor_); }); });
    connect(cmdOpenOK_, &QPushButton::clicked, this,
            [this] { handle([this] { cmdOpenOK_Click(browser_, editor_); }); });
    connect(cmdSaveAs_, &QPushButton::clicked, this,
            [this] { handle([this] { cmdSaveAs_Click(browser_, editor_); }); });
    connect(cmdOpenCancel_, &QPushButton::clicked, this, &FileDialog::reject);
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
    QWidget* const order[] = {FileList1_,
                              txtDescription_,
                              txtSaveAs_,
                              optFileType_->button(0),
                              optFileType_->button(1),
                              cmdOpenOK_,
                              cmdSaveAs_,
                              cmdOpenCancel_,
                              cmdNewFolder_,
                              cmdUp_};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

int FileDialog::run() {
    loadBrowser(program_);
    takeSize();
    showState();
    if (editor_.drawing.SaveInProgress)
        txtSaveAs_->setFocus();
    else
        FileList1_->setFocus();
    exec();
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

void FileDialog::showState() {
    if (!browser_.Visible) return done(0);
    setWindowTitle(toQString(browser_.Caption));
    if (shownFolder_ != browser_.BrowserFolder) {
        shownFolder_ = browser_.BrowserFolder;
        Dir1_->setPath(pathParts(browser_, *program_.platform.files));
        cmdUp_->setEnabled(parentFolder(*program_.platform.files, shownFolder_) != shownFolder_);
    }
    FileList1_->showState();
    showButton(cmdNewFolder_, browser_.cmdNewFolder);
    showButton(cmdOpenOK_, browser_.cmdOpenOK);
    showButton(cmdSaveAs_, browser_.cmdSaveAs);
    showButton(cmdOpenCancel_, browser_.cmdOpenCancel);
    (browser_.cmdSaveAs.Visible ? cmdSaveAs_ : cmdOpenOK_)->setDefault(true);
    showSaveName();
    showPreview();
}

void FileDialog::showSaveName() {
    nameRow_->setVisible(browser_.txtSaveAs.Visible);
    const QString name = toQString(browser_.txtSaveAs.Text);
    if (txtSaveAs_->text() != name) txtSaveAs_->setText(name);
    optFileType_->button(browser_.optFileType)->setChecked(true);
    if (selectRequests_ == browser_.txtSaveAs.SelectAllRequests) return;
    selectRequests_ = browser_.txtSaveAs.SelectAllRequests;
    // The name is what will be typed over; its extension may stay.
    const std::string_view stem = nameWithoutExtension(browser_.txtSaveAs.Text);
    txtSaveAs_->setSelection(0, static_cast<int>(toQString(stem).size()));
}

void FileDialog::showPreview() {
    preview_->setVisible(browser_.framPreview.Visible);
    framPreview_->setTitle(toQString(browser_.framPreview.Caption));
    if (shownPreview_ == browser_.PreviewVersion) return;
    shownPreview_ = browser_.PreviewVersion;
    txtDescription_->setPlainText(toQString(browser_.txtDescription.Text));
    picPreview_->update();
}

}  // namespace ladrix
