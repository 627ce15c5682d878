#include "browser/Favorites.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "browser/BrowserFolders.h"
#include "browser/FileBrowser.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using test::FakeDialogs;
using test::Operation;
using testing::ElementsAre;
using testing::IsEmpty;

class FavoritesTest : public testing::Test {
  protected:
    FavoritesTest() {
        editor.AppFilePath = fake.folder / "program/";
        fake.folder.makeFolder("drawings/pumps");
    }

    void list(const std::string& text) { fake.folder.write("program/" + File, text); }
    std::string file() const { return fake.folder.read("program/" + File); }
    void showForm() {
        ReadFavorites(favorites, editor);
        frmFavorites_Load(form, favorites);
    }
    void showBrowser() { frmFile_Load(browser, editor, favorites, {fake.folder / "drawings/"}); }

    const std::string File = "Favorite Folders.hst";
    test::FakePlatform fake;
    Editor editor{fake.platform};
    FileBrowser browser;
    Favorites favorites;
    FavoritesForm form;
};

TEST_F(FavoritesTest, TheFolderShownIsAddedOnceAndFoundAgain) {
    showBrowser();
    EXPECT_EQ(browser.cmbFavorites.Text, "No Favorite Folders Exist");
    EXPECT_FALSE(browser.cmdGoFavorite.Enabled);
    browser.FileBrowserMode = BrowserMode::Picture;
    const std::string pumps = fake.folder / "drawings/pumps/";
    Dir1_Change(browser, editor, pumps);
    cmdAddToFavorites_Click(browser, favorites, editor);
    EXPECT_EQ(browser.FileBrowserMode, BrowserMode::Picture);
    EXPECT_EQ(file(), pumps + "\r\n");
    cmdAddToFavorites_Click(browser, favorites, editor);
    EXPECT_EQ(favorites.FavoriteCount, 1);
    EXPECT_EQ(fake.dialogs.boxes.size(), 1u) << "told that it is there";

    goToParentFolder(browser, editor);
    cmdGoFavorite_Click(browser, editor);
    EXPECT_EQ(browser.BrowserFolder, pumps);
    goToParentFolder(browser, editor);
    std::filesystem::remove(fake.folder.native("drawings/pumps"));
    cmdGoFavorite_Click(browser, editor);
    EXPECT_EQ(browser.BrowserFolder, fake.folder / "drawings/");
    EXPECT_THAT(fake.dialogs.boxes.back().text, testing::HasSubstr("drawings/pumps"));
    EXPECT_THAT(fake.reports, IsEmpty());
}

TEST_F(FavoritesTest, EntriesAreMovedAndRemovedWithinTheirEnds) {
    list("/a/\r\n/b/\n/c/");
    showForm();
    EXPECT_FALSE(form.cmdRemove.Enabled || form.cmdMoveUp.Enabled || form.cmdMoveDown.Enabled);
    lstFavorites_Click(form, 0);
    EXPECT_FALSE(form.cmdMoveUp.Enabled);
    frmFavorites_cmdMoveUp_Click(form, favorites);
    EXPECT_FALSE(favorites.FavoritesChanged);
    frmFavorites_cmdMoveDown_Click(form, favorites);
    frmFavorites_cmdMoveDown_Click(form, favorites);
    EXPECT_FALSE(form.cmdMoveDown.Enabled);
    frmFavorites_cmdMoveDown_Click(form, favorites);
    EXPECT_EQ(form.lstFavorites.ListIndex, 2);
    EXPECT_THAT(form.lstFavorites.List, ElementsAre("/b/", "/c/", "/a/"));
    lstFavorites_Click(form, 1);
    frmFavorites_cmdRemove_Click(form, favorites);
    EXPECT_THAT(form.lstFavorites.List, ElementsAre("/b/", "/a/"));
    EXPECT_EQ(form.lstFavorites.ListIndex, 1);
    EXPECT_EQ(file(), "/a/\r\n/b/\n/c/") << "not before the save";
    frmFavorites_cmdSave_Click(form, favorites, browser, editor);
    EXPECT_EQ(file(), "/b/\r\n/a/\r\n");
    frmFavorites_cmdRemove_Click(form, favorites);
    frmFavorites_cmdRemove_Click(form, favorites);
    EXPECT_EQ(form.lstFavorites.ListIndex, -1);
    frmFavorites_cmdSave_Click(form, favorites, browser, editor);
    EXPECT_EQ(file(), "") << "an empty file, not a missing one";
}

TEST_F(FavoritesTest, ClosingAsksAboutChangesAndAFailedSaveKeepsThemAndTheForm) {
    list("/a/\r\n/b/\r\n");
    const auto change = [&] {
        showForm();
        lstFavorites_Click(form, 0);
        frmFavorites_cmdRemove_Click(form, favorites);
    };
    change();
    fake.dialogs.answers = {Answer::No};
    EXPECT_TRUE(frmFavorites_QueryUnload(form, favorites, browser, editor));
    EXPECT_THAT(favorites.FavoriteFolders, ElementsAre("/a/", "/b/"));
    EXPECT_THAT(fake.dialogs.boxes,
                ElementsAre(FakeDialogs::Box{
                    "Favorites have been changed. Do you want to save the changes?",
                    "Favorites Modified", Buttons::YesNo}));
    change();
    fake.files.failOnce(Operation::Replace, {failure::DiskFull, "No space left on device"});
    fake.dialogs.answers = {Answer::Yes};
    EXPECT_FALSE(frmFavorites_QueryUnload(form, favorites, browser, editor));
    ASSERT_EQ(fake.reports.size(), 1u);
    EXPECT_EQ(fake.reports[0].description, "SaveFavorite Folders");
    EXPECT_TRUE(form.Visible && favorites.FavoritesChanged);
    EXPECT_EQ(file(), "/a/\r\n/b/\r\n");
    fake.dialogs.answers = {Answer::Yes};
    EXPECT_TRUE(frmFavorites_QueryUnload(form, favorites, browser, editor));
    EXPECT_EQ(file(), "/b/\r\n");
}

TEST_F(FavoritesTest, AListThatCannotBeReadIsToldOnceAndLeftAloneUntilItCan) {
    list("/a/\r\n/b/\r\n");
    fake.files.fail(Operation::Read, {failure::DeviceIO, "bad sector"}, "Favorite");
    showBrowser();
    showBrowser();
    ASSERT_EQ(fake.reports.size(), 1u);
    EXPECT_EQ(fake.reports[0].text, "bad sector");
    cmdAddToFavorites_Click(browser, favorites, editor);
    EXPECT_EQ(file(), "/a/\r\n/b/\r\n");
    ASSERT_EQ(fake.reports.size(), 2u);
    EXPECT_EQ(fake.reports[1].description, "SaveFavorite Folders");
    EXPECT_EQ(fake.reports[1].text, "What could not be read is not written over. bad sector");
    EXPECT_TRUE(favorites.FavoritesChanged);

    fake.files.heal();
    SaveFavorites(favorites, browser, editor);
    EXPECT_EQ(file(), "/a/\r\n/b/\r\n" + (fake.folder / "drawings/") + "\r\n");
    EXPECT_FALSE(favorites.FavoritesChanged);
}

TEST_F(FavoritesTest, BrowsingForAFolderLeavesTheBrowserBehindAndTheListAsTheyWere) {
    list("/a/\r\n");
    editor.drawing.SaveInProgress = true;
    showBrowser();
    showForm();
    favorites.FavoritesChanged = true;
    favorites.FavoriteFolders[0] = "/changed/";
    fake.dialogs.duringForm = [&](Form) {
        showBrowser();
        EXPECT_EQ(browser.Caption, "Adding a Favorite Folder");
        EXPECT_EQ(browser.lblHeading.Caption, "How to Add a Favorite Folder");
        FileList1_Click(browser, editor, 0);
        cmdOpenOK_Click(browser, editor);
        frmFile_Unload(browser, editor);
    };
    frmFavorites_cmdBrowse_Click(form, favorites, browser, editor);
    EXPECT_THAT(form.lstFavorites.List, ElementsAre("/changed/", fake.folder / "drawings/pumps/"));
    EXPECT_TRUE(editor.drawing.SaveInProgress);
    EXPECT_TRUE(browser.Visible);
    EXPECT_EQ(browser.Caption, "Saving File as...");
    EXPECT_EQ(browser.BrowserFolder, fake.folder / "drawings/");
}

}  // namespace
}  // namespace ladrix
