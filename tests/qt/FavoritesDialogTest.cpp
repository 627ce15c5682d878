// The real dialog of the favorites, over the browser from which it is shown.
#include "qt/FavoritesDialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QListWidget>
#include <QPushButton>

#include "qt/Driving.h"
#include "qt/FileDialog.h"
#include "qt/QtText.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using test::named;
using test::press;
using test::settle;

TEST(FavoritesDialogTest, ManagesTheListBehindTheBrowserAndBrowsesForNewOnes) {
    test::FakePlatform fake;
    Program program{fake.platform};
    fake.folder.makeFolder("drawings/pumps");
    fake.folder.write("drawings/a.els", "");
    fake.folder.write("program/Favorite Folders.hst", "/one/\r\n/two/\r\n");
    program.editor.AppFilePath = fake.folder / "program/";
    program.paths.DrawingsPath = fake.folder / "drawings/";
    bool browsed = false;
    fake.dialogs.duringForm = [&](Form form) {
        if (form == Form::frmFile) {
            test::drive<FileDialog>(program, [&](FileDialog& dialog) {
                EXPECT_FALSE(named<QPushButton>(dialog, "cmdAddToFavorites").isVisible());
                press(Qt::Key_Down);
                named<QPushButton>(dialog, "cmdOpenOK").click();
                browsed = true;
            });
            return;
        }
        test::drive<FavoritesDialog>(program, [&](FavoritesDialog& dialog) {
            auto& list = named<QListWidget>(dialog, "lstFavorites");
            auto& remove = named<QPushButton>(dialog, "cmdRemove");
            auto& up = named<QPushButton>(dialog, "cmdMoveUp");
            EXPECT_EQ(list.count(), 2);
            named<QPushButton>(dialog, "cmdBrowse").click();
            settle();
            EXPECT_EQ(list.count(), 3);
            EXPECT_EQ(list.currentRow(), 2);
            up.click();
            EXPECT_EQ(list.item(1)->text(), toQString(fake.folder / "drawings/pumps/"));
            list.setCurrentRow(0);
            EXPECT_FALSE(up.isEnabled());
            remove.click();
            fake.dialogs.answers = {Answer::Yes};
            list.setFocus();
            test::activate(dialog);
            press(Qt::Key_Escape);
            EXPECT_FALSE(dialog.isVisible());
        });
    };
    test::drive<FileDialog>(program, [&](FileDialog& dialog) {
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        EXPECT_EQ(program.frmFile.BrowserFile, "a.els");
        named<QAction>(dialog, "mnuOptManageFavorites").trigger();
        settle();
        EXPECT_EQ(program.frmFile.BrowserFile, "a.els") << "the browser is as it was";
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(program.frmFile.cmbFavorites.List.size(), 2u);
    });
    EXPECT_TRUE(browsed);
    EXPECT_EQ(fake.folder.read("program/Favorite Folders.hst"),
              fake.folder / "drawings/pumps/\r\n/two/\r\n");
}

}  // namespace
}  // namespace ladrix
