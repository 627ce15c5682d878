// frmFile on the screen: the program's own dialog for opening and saving.
#pragma once

#include <QDialog>

#include "app/Program.h"

class QButtonGroup;
class QComboBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QStackedWidget;
class QToolButton;

namespace ladrix {

class ElidedLabel;
class FileListView;
class PathBar;
class PreviewBox;
class PreviewSheet;

class FileDialog final : public QDialog {
    Q_OBJECT

  public:
    FileDialog(Program& program, QWidget* parent);

    // Loads the form, shows it until its Visible is false, and unloads it.
    int run();
    void showState();

    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* makePrompt();
    QWidget* makeTop();
    QWidget* makeFavorites();
    QWidget* makeMiddle();
    QWidget* makePreview();
    QWidget* makeNameRow();
    QWidget* makeButtons();
    void makeShortcuts();
    void connectControls();
    void connectFolders();
    void connectList(FileListView* list);
    void connectList(PreviewSheet* sheet);
    void setTabOrders();
    void takeSize();

    // Runs a handler, then shows what the state says.
    template <class Handler>
    void handle(const Handler& handler);
    void showPrompt();
    void showFavorites();
    void showList();
    void showSaveName();
    void showFileTypes();
    void showPreview();

    Program& program_;
    FileBrowser& browser_;
    Editor& editor_;
    PathBar* Dir1_;
    QToolButton* cmdUp_;
    QLabel *lblHeading_, *lblPrompt_;
    QComboBox* cmbFavorites_;
    QPushButton *cmdGoFavorite_, *cmdAddToFavorites_;
    QToolButton* options_;
    QStackedWidget* lists_;  // the list or the sheet
    FileListView* FileList1_;
    PreviewSheet* sheet_;
    QWidget* preview_;  // the right side
    QGroupBox* framPreview_;
    PreviewBox* picPreview_;
    QLabel* lblDescription_;
    QPlainTextEdit* txtDescription_;
    QWidget* nameRow_;
    QLabel *lblSaveAs_, *lblFileType_;
    QLineEdit* txtSaveAs_;
    QWidget* fileTypes_;
    QHBoxLayout* fileTypeRow_;
    ElidedLabel* lblNote_;
    QButtonGroup* optFileType_;
    QPushButton *cmdNewFolder_, *cmdPreviewAll_, *cmdOpenOK_, *cmdSaveAs_, *cmdOpenCancel_;
    std::vector<FileType> shownTypes_;
    std::string shownFolder_;
    unsigned shownPreview_ = 0;
    int selectRequests_ = 0;
};

}  // namespace ladrix
