// frmFile on the screen: the program's own dialog for opening and saving.
#pragma once

#include <QDialog>

#include "app/Program.h"

class QButtonGroup;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QToolButton;

namespace ladrix {

class FileListView;
class PathBar;
class PreviewBox;

class FileDialog final : public QDialog {
    Q_OBJECT

  public:
    FileDialog(Program& program, QWidget* parent);

    // Loads the form, shows it until its Visible is false, and unloads it.
    int run();

    void reject() override;

  private:
    QWidget* makeTop();
    QWidget* makeMiddle();
    QWidget* makeNameRow();
    QWidget* makeButtons();
    void makeShortcuts();
    void connectControls();
    void setTabOrders();
    void takeSize();

    // Runs a handler, then shows what the state says.
    template <class Handler>
    void handle(const Handler& handler);
    void showState();
    void showSaveName();
    void showPreview();

    Program& program_;
    FileBrowser& browser_;
    Editor& editor_;
    PathBar* Dir1_;
    QToolButton* cmdUp_;
    FileListView* FileList1_;
    QWidget* preview_;  // the right side
    QGroupBox* framPreview_;
    PreviewBox* picPreview_;
    QPlainTextEdit* txtDescription_;
    QWidget* nameRow_;
    QLineEdit* txtSaveAs_;
    QButtonGroup* optFileType_;
    QPushButton *cmdNewFolder_, *cmdOpenOK_, *cmdSaveAs_, *cmdOpenCancel_;
    std::string shownFolder_;
    unsigned shownPreview_ = 0;
    int selectRequests_ = 0;
};

}  // namespace ladrix
