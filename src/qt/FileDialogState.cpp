// How the dialog shows what its state says.
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QToolButton>

#include "qt/ElidedLabel.h"
#include "qt/FileDialog.h"
#include "qt/FileListView.h"
#include "qt/PathBar.h"
#include "qt/PreviewBox.h"
#include "qt/PreviewSheet.h"
#include "qt/QtText.h"

namespace ladrix {

namespace {

void showButton(QPushButton* button, const Control& control) {
    button->setText(toQString(control.Caption));
    button->setEnabled(control.Enabled);
    button->setVisible(control.Visible);
}

void showLabel(QLabel* label, const Control& control) {
    label->setText(toQString(control.Caption));
    label->setVisible(control.Visible);
}

}  // namespace

void FileDialog::showState() {
    if (!browser_.Visible) return done(0);
    setWindowTitle(toQString(browser_.Caption));
    if (shownFolder_ != browser_.BrowserFolder) {
        shownFolder_ = browser_.BrowserFolder;
        Dir1_->setPath(pathParts(browser_, *program_.platform.files));
        cmdUp_->setEnabled(parentFolder(*program_.platform.files, shownFolder_) != shownFolder_);
    }
    showPrompt();
    showFavorites();
    showList();
    showButton(cmdNewFolder_, browser_.cmdNewFolder);
    lblNote_->setText(toQString(browser_.lblNote.Caption));
    showButton(cmdOpenOK_, browser_.cmdOpenOK);
    showButton(cmdSaveAs_, browser_.cmdSaveAs);
    showButton(cmdOpenCancel_, browser_.cmdOpenCancel);
    (browser_.cmdSaveAs.Visible ? cmdSaveAs_ : cmdOpenOK_)->setDefault(true);
    showSaveName();
    showFileTypes();
    showPreview();
}

void FileDialog::showPrompt() {
    showLabel(lblHeading_, browser_.lblHeading);
    showLabel(lblPrompt_, browser_.lblPrompt);
    lblPrompt_->parentWidget()->setVisible(browser_.lblHeading.Visible ||
                                           browser_.lblPrompt.Visible);
}

void FileDialog::showFavorites() {
    const ComboBox& box = browser_.cmbFavorites;
    QStringList folders;
    for (const std::string& folder : box.List)
        folders << toQString(folder);
    if (folders.isEmpty()) folders << toQString(box.Text);
    QStringList shown;
    for (int i = 0; i < cmbFavorites_->count(); ++i)
        shown << cmbFavorites_->itemText(i);
    if (shown != folders) {
        cmbFavorites_->clear();
        cmbFavorites_->addItems(folders);
    }
    cmbFavorites_->setCurrentIndex(static_cast<int>(folders.indexOf(toQString(box.Text))));
    cmbFavorites_->setEnabled(box.Enabled);
    showButton(cmdGoFavorite_, browser_.cmdGoFavorite);
    showButton(cmdAddToFavorites_, browser_.cmdAddToFavorites);
    options_->setVisible(browser_.cmdAddToFavorites.Visible);
}

void FileDialog::showList() {
    FileList1_->showState();
    if (browser_.PreviewAllShown) sheet_->showState();
    lists_->setCurrentWidget(browser_.PreviewAllShown ? static_cast<QWidget*>(sheet_) : FileList1_);
    showButton(cmdPreviewAll_, browser_.cmdPreviewAll);
    cmdPreviewAll_->setChecked(browser_.PreviewAllShown);
}

void FileDialog::showSaveName() {
    nameRow_->setVisible(browser_.txtSaveAs.Visible);
    showLabel(lblSaveAs_, browser_.lblSaveAs);
    const QString name = toQString(browser_.txtSaveAs.Text);
    if (txtSaveAs_->text() != name) txtSaveAs_->setText(name);
    if (selectRequests_ == browser_.txtSaveAs.SelectAllRequests) return;
    selectRequests_ = browser_.txtSaveAs.SelectAllRequests;
    // The name is what will be typed over; its extension may stay.
    const std::string_view stem = nameWithoutExtension(browser_.txtSaveAs.Text);
    txtSaveAs_->setSelection(0, static_cast<int>(toQString(stem).size()));
}

// A single type is no choice.
void FileDialog::showFileTypes() {
    const std::vector<FileType>& types = browser_.FileTypes;
    const auto same = [](const FileType& a, const FileType& b) {
        return a.extension == b.extension;
    };
    if (!std::equal(types.begin(), types.end(), shownTypes_.begin(), shownTypes_.end(), same)) {
        shownTypes_ = types;
        qDeleteAll(optFileType_->buttons());
        while (QLayoutItem* const rest = fileTypeRow_->takeAt(0))
            delete rest;
        QWidget* former = txtSaveAs_;
        for (std::size_t i = 0; i < types.size(); ++i) {
            auto* const option =
                new QRadioButton(toQString(std::string(types[i].caption)), fileTypes_);
            option->setObjectName(QStringLiteral("optFileType%1").arg(i));
            optFileType_->addButton(option, static_cast<int>(i));
            fileTypeRow_->addWidget(option);
            setTabOrder(former, option);
            former = option;
        }
        fileTypeRow_->addStretch(1);
    }
    const bool choice = types.size() > 1;
    lblFileType_->setVisible(choice);
    fileTypes_->setVisible(choice);
    if (auto* const option = optFileType_->button(browser_.optFileType)) option->setChecked(true);
}

void FileDialog::showPreview() {
    preview_->setVisible(browser_.framPreview.Visible);
    framPreview_->setTitle(toQString(browser_.framPreview.Caption));
    lblDescription_->setVisible(browser_.txtDescription.Visible);
    txtDescription_->setVisible(browser_.txtDescription.Visible);
    if (shownPreview_ == browser_.PreviewVersion) return;
    shownPreview_ = browser_.PreviewVersion;
    txtDescription_->setPlainText(toQString(browser_.txtDescription.Text));
    picPreview_->update();
}

}  // namespace ladrix
