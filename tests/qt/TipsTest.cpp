// Every button and field tells what it does, by a tip or at least by its caption.
#include "qt/Tips.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

#include "ProgramOnQt.h"
#include "canvas/tools/Tools.h"
#include "qt/DescriptionDialog.h"
#include "qt/FavoritesDialog.h"
#include "qt/FileDialog.h"
#include "qt/LayoutDialog.h"
#include "qt/LibManagerDialog.h"
#include "qt/LogDialog.h"
#include "qt/MainWindow.h"
#include "qt/PreviewDialog.h"
#include "qt/PrinterDialog.h"
#include "qt/PrintersDialog.h"
#include "qt/RemovedDialog.h"
#include "qt/SymbolDialogs.h"
#include "qt/TextPropsDialog.h"

namespace ladrix {
namespace {

// A control's tip may be that of the one that it is a part of.
QString tipOf(const QWidget& control) {
    for (const QWidget* widget = &control; widget && !widget->isWindow();
         widget = widget->parentWidget())
        if (!widget->toolTip().isEmpty()) return widget->toolTip();
    return {};
}

bool tells(const QWidget& control) {
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    return !tipOf(control).isEmpty() || (button && !button->text().isEmpty());
}

// The names of what is shown and tells nothing, and of tips in another style.
QStringList faultsOf(const QWidget& window) {
    QStringList faults;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const bool asks = qobject_cast<const QAbstractButton*>(control) ||
                          qobject_cast<const QLineEdit*>(control) ||
                          qobject_cast<const QComboBox*>(control);
        if (asks && control->isVisibleTo(&window) && !tells(*control))
            faults << control->objectName() + ": no tip";
        const QString tip = control->toolTip();
        const bool plain = !tip.endsWith(u'.') && (tip.isEmpty() || tip.at(0).isUpper());
        if (asks && !plain) faults << control->objectName() + ": \"" + tip + '"';
    }
    return faults;
}

struct TipsTest : test::ProgramOnQt {
    void SetUp() override { startAnew(); }
};

TEST_F(TipsTest, EveryControlOfTheMainWindowTellsWhatItDoes) {
    MainWindow window(*program, canvas);
    window.show();
    giveTips(window);
    for (const Short tool : {Short{-1}, Short{0}, Short{4}}) {  // none, text, arc
        if (tool >= 0) cmdSym_Click(program->editor, tool);
        window.refresh();
        QCoreApplication::processEvents();
        EXPECT_EQ(faultsOf(window).join("; ").toStdString(), "") << tool;
    }
}

TEST_F(TipsTest, EveryControlOfTheSimulationTellsWhatItDoes) {
    MainWindow window(*program, canvas);
    window.show();
    giveTips(window);
    mnuSimCircuit_Click(program->simulation, program->editor, 1);
    window.refresh();
    QCoreApplication::processEvents();
    EXPECT_EQ(faultsOf(window).join("; ").toStdString(), "");
}

template <class... Dialogs>
void expectTips(Program& program) {
    const auto check = [](QDialog&& dialog) {
        giveTips(dialog);
        EXPECT_EQ(faultsOf(dialog).join("; ").toStdString(), "")
            << dialog.windowTitle().toStdString();
    };
    (check(Dialogs(program, nullptr)), ...);
}

TEST_F(TipsTest, EveryControlOfADialogTellsWhatItDoes) {
    frmLayout_Load(program->frmLayout, program->editor);
    expectTips<FileDialog, DescriptionDialog, LogDialog, TextPropsDialog, FavoritesDialog,
               LayoutDialog, PreviewDialog, PaletteRowsDialog, PrinterDialog, PrintersDialog,
               ButtonColorDialog, SaveSymbolDialog, LibManagerDialog, RemovedDialog>(*program);
}

}  // namespace
}  // namespace ladrix
