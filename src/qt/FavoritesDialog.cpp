#include "qt/FavoritesDialog.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Space = 2 * theme::Unit;
constexpr int Margin = 3 * theme::Unit;

void showButton(QPushButton* button, const Control& control) {
    button->setText(toQString(control.Caption));
    button->setEnabled(control.Enabled);
}

}  // namespace

FavoritesDialog::FavoritesDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      lblFavorites_(new QLabel(this)),
      lstFavorites_(new QListWidget(this)) {
    setObjectName(QStringLiteral("frmFavorites"));
    setSizeGripEnabled(true);
    lstFavorites_->setObjectName(QStringLiteral("lstFavorites"));
    lstFavorites_->setTextElideMode(Qt::ElideMiddle);
    lstFavorites_->setSpacing(theme::Unit / 2);
    lblFavorites_->setBuddy(lstFavorites_);
    connect(lstFavorites_, &QListWidget::currentRowChanged, this, [this](int row) {
        lstFavorites_Click(program_.frmFavorites, row);
        showState();
    });

    cmdBrowse_ = addButton("cmdBrowse", [](Program& p) {
        frmFavorites_cmdBrowse_Click(p.frmFavorites, p.favorites, p.frmFile, p.editor);
    });
    cmdRemove_ = addButton(
        "cmdRemove", [](Program& p) { frmFavorites_cmdRemove_Click(p.frmFavorites, p.favorites); });
    cmdMoveUp_ = addButton(
        "cmdMoveUp", [](Program& p) { frmFavorites_cmdMoveUp_Click(p.frmFavorites, p.favorites); });
    cmdMoveDown_ = addButton("cmdMoveDown", [](Program& p) {
        frmFavorites_cmdMoveDown_Click(p.frmFavorites, p.favorites);
    });
    cmdSave_ = addButton("cmdSave", [](Program& p) {
        frmFavorites_cmdSave_Click(p.frmFavorites, p.favorites, p.frmFile, p.editor);
    });
    cmdExit_ = addButton("cmdExit", [](Program& p) {
        frmFavorites_QueryUnload(p.frmFavorites, p.favorites, p.frmFile, p.editor);
    });
    cmdExit_->setDefault(true);

    auto* const buttons = new QVBoxLayout;
    buttons->setSpacing(Space);
    for (QPushButton* const button : {cmdBrowse_, cmdRemove_, cmdMoveUp_, cmdMoveDown_})
        buttons->addWidget(button);
    buttons->addStretch(1);
    for (QPushButton* const button : {cmdSave_, cmdExit_})
        buttons->addWidget(button);
    auto* const middle = new QHBoxLayout;
    middle->setSpacing(Margin);
    middle->addWidget(lstFavorites_, 1);
    middle->addLayout(buttons);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Space);
    layout->addWidget(lblFavorites_);
    layout->addLayout(middle, 1);
    const int line = fontMetrics().height();
    resize(40 * line, 24 * line);
}

QPushButton* FavoritesDialog::addButton(const char* name, void (*handler)(Program& program)) {
    auto* const button = new QPushButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, handler] {
        handler(program_);
        showState();
    });
    return button;
}

int FavoritesDialog::run() {
    showState();
    lstFavorites_->setFocus();
    return exec();
}

void FavoritesDialog::reject() {
    cmdExit_->click();
}

void FavoritesDialog::showState() {
    const FavoritesForm& form = program_.frmFavorites;
    if (!form.Visible) return done(0);
    setWindowTitle(toQString(form.Caption));
    lblFavorites_->setText(toQString(form.lblFavorites.Caption));
    const QSignalBlocker quiet(lstFavorites_);
    const QStringList folders = toQStringList(form.lstFavorites.List);
    while (lstFavorites_->count() > folders.size())
        delete lstFavorites_->takeItem(lstFavorites_->count() - 1);
    for (int i = 0; i < folders.size(); ++i) {
        if (i == lstFavorites_->count()) lstFavorites_->addItem(QString());
        lstFavorites_->item(i)->setText(folders[i]);
        lstFavorites_->item(i)->setToolTip(plainTip(folders[i]));
    }
    lstFavorites_->setCurrentRow(form.lstFavorites.ListIndex);
    showButton(cmdBrowse_, form.cmdBrowse);
    showButton(cmdRemove_, form.cmdRemove);
    showButton(cmdMoveUp_, form.cmdMoveUp);
    showButton(cmdMoveDown_, form.cmdMoveDown);
    showButton(cmdSave_, form.cmdSave);
    showButton(cmdExit_, form.cmdExit);
}

}  // namespace ladrix
