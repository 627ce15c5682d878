// A user's symbols from the selection on the page to the search after a restart, through the real
// window and its dialogs.
#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeView>

#include "ProgramOnQt.h"
#include "app/CommandTable.h"
#include "qt/ColorPanel.h"
#include "qt/LibManagerDialog.h"
#include "qt/QtImages.h"
#include "qt/RemovedDialog.h"
#include "qt/SymbolDialogs.h"
#include "qt/Theme.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {
namespace {

using test::named;
using test::settle;

using test::click;

struct UserSymbolWindowTest : test::WindowOnQt {
    QtImages images;

    void SetUp() override {
        machine.platform.images = &images;
        start();
    }
    void run(Menu entry) {
        runCommand(*program, entry);
        window->refresh();
        settle();
    }
    SymbolButtons& buttons() { return window->userPalette().buttons(); }
    QStringList names() {
        QStringList list;
        for (const SymbolButton& button : buttons().buttons())
            list << button.tip;
        return list;
    }
    void draw(Short tool, std::initializer_list<std::pair<Single, Single>> points) {
        choose(tool);
        for (const auto& [x, y] : points)
            clickPage(x, y);
        run(Menu::mnuOptionReset);
    }

    // All that is drawn becomes a symbol with its insertion point at (2, 2).
    void capture(const QString& name) {
        run(Menu::mnuEditSelectAll);
        machine.dialogs.duringForm = [&](Form form) {
            if (form == Form::frmButtonColor)
                test::drive<ButtonColorDialog>(*program, [](ButtonColorDialog& dialog) {
                    named<ColorSwatch>(dialog, "cmdColor10").click();
                    named<QPushButton>(dialog, "cmdOK").click();
                });
            if (form == Form::frmUS)
                test::drive<SaveSymbolDialog>(*program, [&](SaveSymbolDialog& dialog) {
                    named<QLineEdit>(dialog, "txtSymbolName").setText(name);
                    test::press(Qt::Key_Return);
                });
        };
        run(Menu::mnuEditSaveUserSymbol);
        clickPage(2, 2);
        run(Menu::mnuOptionReset);
    }
    void drag(int from, int to) {
        test::drag(buttons(), buttons().rectOf(from).center(), buttons().rectOf(to).center());
    }
    void moveToNewLibrary(int symbol) {
        machine.dialogs.inputAnswers = {"Second"};
        machine.dialogs.duringForm = [&, symbol](Form) {
            test::drive<LibManagerDialog>(*program, [&](LibManagerDialog& dialog) {
                named<QAction>(dialog, "mnuFileNew").trigger();
                auto& shown = named<SymbolButtons>(dialog, "picSymbols");
                click(shown, shown.rectOf(symbol).center());
                named<QListWidget>(dialog, "lstDestinationLibrary").setCurrentRow(0);
                named<QPushButton>(dialog, "cmdMove").click();
            });
        };
        run(Menu::mnuLibManageUserLibraries);
    }
    void search(const QString& text) {
        run(Menu::mnuLibFind);
        window->openFind();
        auto& field = named<QLineEdit>(*window, "txtFind");
        field.setText(text);
        emit field.textEdited(text);
        test::press(field, Qt::Key_Return);
    }
    std::string toolTag() {
        const Short tool = editor().gesture.CurrentTool;
        return tool < 0 ? "" : editor().form.cmdSym[static_cast<std::size_t>(tool)].Tag;
    }
};

TEST_F(UserSymbolWindowTest, CapturedPlacedArrangedTransferredAndFoundAfterARestart) {
    const int pageWidth = window->canvas().width();
    EXPECT_FALSE(window->userPalette().isVisible());
    constexpr Short Line = 3, LargeCircle = 9;
    draw(Line, {{2, 2}, {3, 2}});
    draw(LargeCircle, {{2.5f, 2.5f}});
    ASSERT_EQ(editor().drawing.devices.DeviceCount, 2);
    for (const char* name : {"Alpha Pump", "Beta", "Gamma"})
        capture(name);
    EXPECT_EQ(names(), (QStringList{"Alpha Pump", "Beta", "Gamma"}));
    EXPECT_LT(window->canvas().width(), pageWidth) << "one column has come";
    EXPECT_TRUE(machine.reports.empty());

    click(buttons(), buttons().rectOf(1).center());
    EXPECT_EQ(toolTag(), "Beta");
    EXPECT_EQ(buttons().buttons()[1].picture, program->usersymbols.UserSymbolCyanPicture[1]);
    clickPage(5, 5);
    const DeviceTable& devices = editor().drawing.devices;
    ASSERT_EQ(devices.DeviceCount, 4);
    EXPECT_EQ(devices.DeviceX[2], 5);
    EXPECT_EQ(devices.DeviceX2[2], 6);

    run(Menu::mnuLibManageOrder);
    drag(0, 2);
    EXPECT_EQ(names(), (QStringList{"Beta", "Gamma", "Alpha Pump"}));
    named<QPushButton>(*window, "cmdSaveSymbolOrder").click();
    moveToNewLibrary(2);
    EXPECT_EQ(names(), (QStringList{"Beta", "Gamma"}));

    editor().drawing.DrawingChanged = false;
    start();
    EXPECT_EQ(names(), (QStringList{"Beta", "Gamma"}));
    search("pump al");
    EXPECT_EQ(toolTag(), "Alpha Pump");
    EXPECT_EQ(program->usersymbols.LibraryFile, "Second Symbols.lib");
    EXPECT_EQ(names(), QStringList{"Alpha Pump"});
    search("gam");
    EXPECT_EQ(toolTag(), "Gamma");
    search("zener");
    EXPECT_EQ(toolTag(), "Zener Diode");
    EXPECT_FALSE(window->palette().buttonRect(editor().gesture.CurrentTool).isEmpty());
}

TEST_F(UserSymbolWindowTest, ADeletedSymbolIsSeenAndBroughtBack) {
    draw(3, {{2, 2}, {3, 2}});
    for (const char* name : {"Alpha", "Beta"})
        capture(name);
    for (int i = 0; i < 2; ++i) {
        openUserButtonMenu(program->usersymbols, editor(), 92);
        machine.dialogs.answers = {Answer::Yes};
        run(Menu::mnuLibManageDelete);
    }
    ASSERT_EQ(names(), QStringList());
    machine.dialogs.duringForm = [&](Form) {
        test::drive<RemovedDialog>(*program, [&](RemovedDialog& dialog) {
            auto& shown = named<QTreeView>(dialog, "lstRemoved");
            const QAbstractItemModel& rows = *shown.model();
            ASSERT_EQ(rows.rowCount(), 2);
            EXPECT_EQ(rows.index(1, 0).data(), "Alpha");
            EXPECT_EQ(rows.index(1, 1).data(), "User Symbols");
            const auto picture = rows.index(1, 0).data(Qt::DecorationRole).value<QPixmap>();
            EXPECT_EQ(picture.toImage().pixelColor(0, 0).alpha(), 255) << "it has been read";
            test::press(Qt::Key_Down);
            test::press(Qt::Key_Return);
        });
    };
    run(Menu::mnuLibBringBack);
    EXPECT_EQ(names(), QStringList{"Alpha"});
    EXPECT_EQ(editor().form.lblMessage.Caption, "Alpha is back in User Symbols.");
    EXPECT_TRUE(machine.reports.empty());
}

TEST_F(UserSymbolWindowTest, AClickOnAMarkedRowOfTheManagerActsAgain) {
    draw(3, {{2, 2}, {3, 2}});
    for (const char* name : {"Alpha", "Beta"})
        capture(name);
    machine.dialogs.duringForm = [&](Form) {
        test::drive<LibManagerDialog>(*program, [&](LibManagerDialog& dialog) {
            auto& shown = named<SymbolButtons>(dialog, "picSymbols");
            for (const int symbol : {0, 1})
                click(shown, shown.rectOf(symbol).center());
            const LibManager& form = program->frmLibManager;
            for (const char* name : {"lstSelected", "lstDestinationLibrary"}) {
                auto& list = named<QListWidget>(dialog, name);
                const auto acted = [&, at = list.visualItemRect(list.item(0)).center()] {
                    program->frmLibManager.ManagerCurrent = -1;
                    program->frmLibManager.ManagerDestLines = {"stale"};
                    click(*list.viewport(), at);
                    return form.ManagerCurrent == 0 ||
                           form.ManagerDestLines == std::vector<std::string>{"Alpha", "Beta"};
                };
                EXPECT_TRUE(acted()) << name;
                EXPECT_TRUE(acted()) << name << ", marked";
            }
        });
    };
    run(Menu::mnuLibManageUserLibraries);
}

TEST_F(UserSymbolWindowTest, ColumnsLeaveThePageItsRoomAndEverySymbolCanBeReached) {
    std::string list;
    const auto picture = images.makePicture(25, 25);
    const std::string bitmap = images.bitmapText(*picture->Image());
    for (int i = 0; i < 60; ++i) {
        const std::string name = "S" + std::to_string(100 + i);
        for (const char* ending : {".bmp", "_Cyan.bmp"})
            machine.folder.write("documents/Ladrix/User Symbols/" + name + ending, bitmap);
        machine.folder.write("documents/Ladrix/User Symbols/" + name + ".uds", "");
        list += name + "\r\n";
    }
    machine.folder.write("documents/Ladrix/User Symbols.lib", list);
    start();
    struct {
        int width, height, columns;
    } const sizes[] = {{1000, 560, 1}, {1240, 900, 3}, {1900, 1000, 3}};
    for (const auto& size : sizes) {
        SCOPED_TRACE(size.width);
        test::resizeAndWait(*window, {size.width, size.height});
        EXPECT_EQ(window->userPalette().columnsInView(), size.columns);
        if (size.columns > 1) {
            EXPECT_GE(window->canvas().width(), 8.5 * 96);
        }
        for (const Short button : {Short{92 + 59}, Short{92}, Short{92 + 21}}) {
            window->userPalette().reveal(button);
            window->refresh();
            EXPECT_FALSE(buttons().rectOf(button - 92).isEmpty()) << button;
        }
    }
}

}  // namespace
}  // namespace ladrix
