// frmLX, the main window: menus from the command table, the tool strip, the palette, the canvas and
// the foot. It passes events on to the handlers and then shows what the state says.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <map>

#include "app/CommandTable.h"
#include "app/Program.h"
#include "qt/Binding.h"
#include "qt/CanvasWidget.h"
#include "qt/ElidedLabel.h"
#include "qt/PaletteWidget.h"
#include "qt/SimulationPanel.h"
#include "qt/SymbolSearchBox.h"
#include "qt/ToolStrip.h"
#include "qt/UserPaletteWidget.h"

namespace ladrix {

class MainWindow final : public QMainWindow {
    Q_OBJECT

  public:
    MainWindow(Program& program, QtCanvas& canvas);

    // Shows what the state says now. Called after every handler; costs what has changed.
    void refresh();

    CanvasWidget& canvas() { return picFrame_->canvas(); }
    PaletteWidget& palette() { return picTools_->palette(); }
    UserPalettePanel& userPalette() { return *picUserTools_; }

    // Pops up the menu of this name at the pointer.
    void popUp(std::string_view menuName);

    // Shows frmFind from its state.
    void openFind() { frmFind_->refresh(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void makeMenus();
    QAction* makeEntry(const Command& command);
    void makeFoot(QBoxLayout& column);
    QLabel* makeField(const char* name, const Control& state, QBoxLayout& row);
    void watchKeys();
    void pressFormKey(const QKeyEvent& event);
    bool typeIntoText(const QKeyEvent& event);
    void settle();
    void showState();
    void revealTool();
    void showMenus();
    void giveFocus();

    Program& program_;
    ButtonImages buttonImages_;
    Bindings bindings_;
    std::map<Menu, QAction*> entries_;
    std::map<Menu, QMenu*> menus_;
    ToolStrip* picTop_ = nullptr;
    SimulationPanel* picSimulation_ = nullptr;
    PalettePanel* picTools_ = nullptr;
    UserPalettePanel* picUserTools_ = nullptr;
    OrderBar* orderBar_ = nullptr;
    SymbolSearchBox* frmFind_ = nullptr;
    CanvasFrame* picFrame_ = nullptr;
    FlyOutWidget* picMoreSym_ = nullptr;
    bool refreshing_ = false, refreshAgain_ = false;
};

}  // namespace ladrix
