#include "qt/HelpWindow.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <map>

#include "help/HelpCommands.h"
#include "qt/HelpText.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Space = 2 * theme::Unit;
constexpr int Margin = 3 * theme::Unit;
constexpr QSize FirstSize{1000, 720};
constexpr QSize SmallestWindow{560, 360};

QLabel* makeCaption(const QString& text, QWidget* parent) {
    auto* const caption = new QLabel(text, parent);
    caption->setForegroundRole(QPalette::PlaceholderText);
    return caption;
}

// A column of a splitter: a caption above its content.
QWidget* makeColumn(const QString& caption, QWidget* content, QWidget* parent) {
    auto* const column = new QWidget(parent);
    auto* const layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::Unit);
    layout->addWidget(makeCaption(caption, column));
    layout->addWidget(content, 1);
    return column;
}

}  // namespace

template <class Handler>
void HelpWindow::handle(const Handler& handler) {
    handler();
    showState();
}

HelpWindow::HelpWindow(Program& program, QWidget* owner)
    : QWidget(owner, Qt::Window),
      program_(program),
      help_(program.frmHelp),
      shownList_(help_.ListVersion - 1),
      shownText_(help_.txtHelp.Version - 1) {
    setObjectName(QStringLiteral("frmHelp"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setMinimumSize(SmallestWindow);
    setWindowTitle(toQString(help_.Caption));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Space, Margin, Margin);
    layout->setSpacing(Space);
    layout->setMenuBar(makeMenus());
    layout->addLayout(makeSearch());
    auto* const splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(Space);
    splitter->addWidget(makeTopics());
    splitter->addWidget(makeDescription());
    splitter->setStretchFactor(1, 1);
    layout->addWidget(splitter, 1);
    connectControls();
    takeSize();
    splitter->setSizes({width() * 3 / 10, width() * 7 / 10});
}

QMenuBar* HelpWindow::makeMenus() {
    auto* const bar = new QMenuBar(this);
    bar->setObjectName(QStringLiteral("menuBar"));
    std::map<HelpMenu, QMenu*> menus;
    for (const HelpMenu menu : {HelpMenu::File, HelpMenu::Edit, HelpMenu::Options, HelpMenu::Help})
        menus[menu] = bar->addMenu(toQString(captionOf(menu)));
    for (const HelpCommand& command : helpCommands()) {
        QMenu& menu = *menus.at(command.menu);
        if (command.separatorBefore) menu.addSeparator();
        auto* const entry = new QAction(toQString(command.caption), this);
        entry->setObjectName(toQString(command.name));
        entry->setMenuRole(QAction::NoRole);
        entry->setShortcut(QKeySequence(toQString(command.shortcut)));
        connect(entry, &QAction::triggered, this,
                [this, &command] { handle([&] { command.handler(help_); }); });
        if (command.enabled) switchedEntries_.emplace_back(entry, command.enabled);
        menu.addAction(entry);
    }
    return bar;
}

QBoxLayout* HelpWindow::makeSearch() {
    auto* const row = new QHBoxLayout;
    row->setSpacing(Space);
    auto* const label = new QLabel(toQString(help_.lblSearch.Caption), this);
    label->setObjectName(QStringLiteral("lblSearch"));
    txtSearch_ = new QLineEdit(this);
    txtSearch_->setObjectName(QStringLiteral("txtSearch"));
    txtSearch_->setAccessibleName(tr("Phrase to search for"));
    txtSearch_->setToolTip(tr("Phrase to search for in all topics (Ctrl+F)"));
    txtSearch_->setClearButtonEnabled(true);
    label->setBuddy(txtSearch_);
    row->addWidget(label);
    row->addWidget(txtSearch_, 1);
    const QString tips[] = {tr("First place of the phrase (Enter)"),
                            tr("Next place of the phrase (F3)")};
    for (int i = 0; i < 2; ++i) {
        const Control& state = help_.cmdSearch[static_cast<std::size_t>(i)];
        cmdSearch_[i] = new QPushButton(toQString(state.Caption), this);
        cmdSearch_[i]->setObjectName(QStringLiteral("cmdSearch%1").arg(i));
        cmdSearch_[i]->setToolTip(tips[i]);
        row->addWidget(cmdSearch_[i]);
    }
    return row;
}

QWidget* HelpWindow::makeTopics() {
    lstHelp_ = new QListWidget(this);
    lstHelp_->setObjectName(QStringLiteral("lstHelp"));
    lstHelp_->setAccessibleName(tr("Help Topics"));
    lstHelp_->setToolTip(tr("Topics; type the first letters to find one"));
    lstHelp_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstHelp_->setTextElideMode(Qt::ElideRight);
    return makeColumn(tr("Help Topics"), lstHelp_, this);
}

QWidget* HelpWindow::makeDescription() {
    auto* const page = new QFrame(this);
    page->setFrameShape(QFrame::StyledPanel);
    page->setBackgroundRole(QPalette::Base);
    page->setAutoFillBackground(true);
    lblTitle_ = new QLabel(page);
    lblTitle_->setObjectName(QStringLiteral("lblTitle"));
    lblTitle_->setTextFormat(Qt::PlainText);
    lblTitle_->setWordWrap(true);
    QFont font(toQString(help_.txtHelp.Font.name));
    font.setPointSizeF(1.5 * static_cast<double>(help_.txtHelp.Font.size));
    font.setWeight(QFont::DemiBold);
    lblTitle_->setFont(font);
    txtHelp_ = new HelpText(page);
    txtHelp_->setObjectName(QStringLiteral("txtHelp"));
    txtHelp_->setAccessibleName(tr("Topic Description"));
    auto* const inside = new QVBoxLayout(page);
    inside->setContentsMargins(6 * theme::Unit, 4 * theme::Unit, theme::Unit, theme::Unit);
    inside->setSpacing(3 * theme::Unit);
    inside->addWidget(lblTitle_);
    inside->addWidget(txtHelp_, 1);
    return makeColumn(tr("Topic Description"), page, this);
}

void HelpWindow::connectControls() {
    connect(txtSearch_, &QLineEdit::textEdited, this,
            [this](const QString& text) { help_.txtSearch.Text = fromQString(text); });
    connect(txtSearch_, &QLineEdit::returnPressed, this,
            [this] { handle([this] { cmdSearch_Click(help_, 0); }); });
    for (int i = 0; i < 2; ++i)
        connect(cmdSearch_[i], &QPushButton::clicked, this,
                [this, i] { handle([&] { cmdSearch_Click(help_, i); }); });
    // Once the list is through with the press: a question is then asked, and answered with Cancel,
    // while nothing goes on to mark the row that was pressed.
    connect(
        lstHelp_, &QListWidget::currentRowChanged, this,
        [this](int row) { handle([&] { lstHelp_Click(help_, row); }); }, Qt::QueuedConnection);
    connect(txtHelp_, &HelpText::edited, this, [this](const std::string& text) {
        txtHelp_Change(help_, text);
        txtHelp_->correct(help_.txtHelp);
    });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F), this), &QShortcut::activated,
            txtSearch_, [this] {
                txtSearch_->setFocus(Qt::ShortcutFocusReason);
                txtSearch_->selectAll();
            });
}

// The size that the user left last; before that one that suits the screen.
void HelpWindow::takeSize() {
    QSize size = FirstSize;
    if (help_.Width > 0)
        size = QSize(static_cast<int>(help_.Width), static_cast<int>(help_.Height));
    resize(size.boundedTo(screen()->availableSize() * 0.9));
}

void HelpWindow::showState() {
    if (!help_.Visible) {
        close();
        return;
    }
    showTopics();
    showText();
    const QString phrase = toQString(help_.txtSearch.Text);
    if (txtSearch_->text() != phrase) txtSearch_->setText(phrase);
    for (std::size_t i = 0; i < 2; ++i)
        cmdSearch_[i]->setEnabled(help_.cmdSearch[i].Enabled);
    for (const auto& [entry, enabled] : switchedEntries_)
        entry->setEnabled(enabled(help_));
    giveFocus();
}

void HelpWindow::showTopics() {
    const QSignalBlocker quiet(lstHelp_);
    if (shownList_ != help_.ListVersion) {
        shownList_ = help_.ListVersion;
        lstHelp_->clear();
        const QSize row(0, fontMetrics().height() + 2 * theme::Unit);
        for (const std::string& title : help_.lstHelp.List) {
            lstHelp_->addItem(toQString(title));
            lstHelp_->item(lstHelp_->count() - 1)->setSizeHint(row);
        }
    }
    lstHelp_->setCurrentRow(help_.lstHelp.ListIndex);
    lblTitle_->setText(toQString(currentTitle(help_)));
}

void HelpWindow::showText() {
    if (shownText_ == help_.txtHelp.Version) return;
    shownText_ = help_.txtHelp.Version;
    txtHelp_->showState(help_.txtHelp);
}

void HelpWindow::giveFocus() {
    const HelpFocus wanted = std::exchange(help_.FocusRequest, HelpFocus::None);
    if (wanted == HelpFocus::List) lstHelp_->setFocus();
    if (wanted == HelpFocus::Text) txtHelp_->setFocus();
}

void HelpWindow::closeEvent(QCloseEvent* event) {
    if (help_.Visible && !Form_QueryUnload(help_)) {
        event->ignore();
        return showState();
    }
    Form_Unload(help_);
    event->accept();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void HelpWindow::resizeEvent(QResizeEvent* event) {
    help_.Width = static_cast<Single>(width());
    help_.Height = static_cast<Single>(height());
    QWidget::resizeEvent(event);
}

}  // namespace ladrix
