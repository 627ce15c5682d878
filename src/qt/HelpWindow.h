// frmHelp on the screen: the topics at the left, the chosen one's text at the right, the search on
// top. It stands beside the main window.
#pragma once

#include <QWidget>

#include "app/Program.h"

class QAction;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenuBar;
class QPushButton;

namespace ladrix {

class HelpText;

class HelpWindow final : public QWidget {
    Q_OBJECT

  public:
    HelpWindow(Program& program, QWidget* owner);

    // Shows what the state says now; a form that is no longer visible closes.
    void showState();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QMenuBar* makeMenus();
    QBoxLayout* makeSearch();
    QWidget* makeTopics();
    QWidget* makeDescription();
    void connectControls();
    void takeSize();

    template <class Handler>
    void handle(const Handler& handler);
    void showTopics();
    void showText();
    void giveFocus();

    Program& program_;
    HelpForm& help_;
    std::vector<std::pair<QAction*, bool (*)(const HelpForm&)>> switchedEntries_;
    QLineEdit* txtSearch_;
    QPushButton* cmdSearch_[2];
    QListWidget* lstHelp_;
    QLabel* lblTitle_;
    HelpText* txtHelp_;
    unsigned shownList_, shownText_;
};

}  // namespace ladrix
