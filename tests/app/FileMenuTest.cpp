// The recent drawings and the backup copies in the File menu.
#include "app/FileMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "app/CommandTable.h"
#include "app/FileCommands.h"
#include "app/Startup.h"
#include "canvas/file/DrawingCommands.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using test::Operation;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::string_view Drawn = "8.5x11Portrait\r\n\r\nInsertGround, 1, 1, 0, \r\n\r\n";

struct FileMenuTest : testing::Test {
    test::FakePlatform fake;
    std::unique_ptr<Program> program = std::make_unique<Program>(fake.platform);
    Drawing& drawing() { return program->editor.drawing; }
    const std::string list = "documents/Ladrix/Data Files/Recent Files.txt";

    void start() { ASSERT_TRUE(startProgram(*program)); }
    void restart() {
        program = std::make_unique<Program>(fake.platform);
        start();
    }
    void open(const std::string& folder, const std::string& name) {
        fake.folder.write(folder + name, Drawn);
        drawing().CurrentFolder = fake.folder / folder;
        drawing().CurrentFileName = name;
        OpenDrawing(program->editor);
    }
    // The entries shown, those greyed in brackets.
    std::vector<std::string> recent() {
        mnuFile_Popup(*program);
        std::vector<std::string> shown;
        for (int i = 0; i < 9; ++i) {
            const auto entry = static_cast<Menu>(static_cast<int>(Menu::mnuFileRecent0) + i);
            const MenuState& state = program->editor.form.menu[entry];
            if (!state.Visible) continue;
            shown.push_back(state.Enabled ? state.Caption : '[' + state.Caption + ']');
        }
        return shown;
    }
};

TEST_F(FileMenuTest, RecentDrawingsAreShownNewestFirstWithoutDoublesAndComeBack) {
    start();
    EXPECT_FALSE(program->editor.form.menu[Menu::mnuFileRecent0].Visible);
    const std::string own = "documents/Ladrix/Drawings/";
    open("program/", "Demo1.els");
    EXPECT_THAT(recent(), IsEmpty()) << "what is shipped is found elsewhere";
    open(own, "A.els");
    open(own, "R&D.tpl");
    drawing().TemplateActive = false;
    open("documents/Ladrix/Backups of mine/", "C.els");
    open(own, "A.els");
    std::filesystem::remove(fake.folder.native("documents/Ladrix/Backups of mine/C.els"));
    const std::vector<std::string> expected = {
        "&1 A.els", recentCaption(*program, 1).insert(0, "[") + "]", "&3 R&&D.tpl"};
    EXPECT_EQ(recent(), expected);
    EXPECT_THAT(expected[1], HasSubstr("&2 C.els\t"));
    restart();
    EXPECT_EQ(recent(), expected);
    for (int i = 0; i < 12; ++i)
        open(own, std::to_string(i) + ".els");
    ASSERT_EQ(recent().size(), 9u);
    EXPECT_EQ(recent()[0], "&1 11.els");
    EXPECT_EQ(recent()[8], "&9 3.els");
}

TEST_F(FileMenuTest, ADamagedListIsReadAsFarAsItGoesAndAHugeOneNotAtAll) {
    const std::string path = fake.folder / "documents/Ladrix/A.els";
    const std::string noise("\0\xFF\x81\n\n\r\r\n..\nA.els\n/\n", 19);
    fake.folder.write(list, noise + path + "\r\n/tmp/\r\n" + path);
    start();
    EXPECT_THAT(program->recentFiles.paths, ElementsAre(path));
    const std::string huge = std::string(70000, '/') + path;
    fake.folder.write(list, huge);
    restart();
    EXPECT_THAT(program->recentFiles.paths, IsEmpty());
    ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
    EXPECT_THAT(fake.dialogs.boxes[0].text, HasSubstr("Recent Files.txt: Larger than 65536 bytes"));
    open("documents/Ladrix/Drawings/", "A.els");
    EXPECT_EQ(fake.folder.read(list), huge);
}

TEST_F(FileMenuTest, AListThatCannotBeReadIsToldOnceAndLeftAloneUntilItCan) {
    const std::string own = "documents/Ladrix/Drawings/",
                      former = fake.folder / (own + "former.els");
    fake.folder.write(list, former + "\r\n");
    fake.files.fail(Operation::Read, {failure::PermissionDenied, "no"}, "Recent");
    start();
    open(own, "A.els");
    open(own, "B.els");
    EXPECT_THAT(program->recentFiles.paths,
                ElementsAre(fake.folder / (own + "B.els"), fake.folder / (own + "A.els")));
    EXPECT_EQ(fake.folder.read(list), former + "\r\n");
    ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
    EXPECT_THAT(fake.dialogs.boxes[0].text, HasSubstr("Error Description: no"));
    EXPECT_THAT(fake.folder.read("documents/Ladrix/Error Messages.txt"),
                HasSubstr("Recent Files: What could not be read is not written over. no"));
    fake.files.heal();
    open(own, "A.els");
    EXPECT_EQ(fake.folder.read(list), fake.folder / (own + "A.els") + "\r\n" + fake.folder.path() +
                                          own + "B.els\r\n" + former + "\r\n");
    fake.files.fail(Operation::Replace, {failure::DiskFull, "full"}, "Recent");
    open(own, "B.els");
    EXPECT_THAT(fake.folder.read("documents/Ladrix/Error Messages.txt"),
                HasSubstr("Recent Files: full"));
    EXPECT_EQ(fake.dialogs.boxes.size(), 1u);
}

TEST_F(FileMenuTest, LongPathsAreCutBetweenFoldersAndNeverInACharacter) {
    start();
    const std::string longName = std::string(55, 'x'), longFolder = std::string(90, 'x');
    const std::pair<std::string, std::string> cases[] = {
        {"/srv/A.els", "&1 A.els\t/srv"},
        {"/A.els", "&1 A.els\t/"},
        {"/srv/projects/customers/north/line four/pumping station/A.els",
         "&1 A.els\t\x85/customers/north/line four/pumping station"},
        {"/" + longFolder + "/A.els", "&1 A.els\t\x85/" + longFolder.substr(0, 44) + "\x85"},
        {"/srv/" + longName +
             "\x81"
             "d0\x81"
             "96.els",
         "&1 " + longName + "\x85.els\t/srv"},
    };
    for (const auto& [path, caption] : cases) {
        program->recentFiles.paths = {path};
        EXPECT_EQ(recentCaption(*program, 0), caption);
    }
}

TEST_F(FileMenuTest, OpeningOneAsksAboutChangesAndMissesNothingWithoutAWord) {
    start();
    const std::string own = "documents/Ladrix/Drawings/";
    open(own, "A.els");
    open(own, "B.els");
    recent();
    drawing().DrawingChanged = true;
    fake.dialogs.answers = {Answer::Cancel, Answer::Yes};
    runCommand(*program, Menu::mnuFileRecent1);
    EXPECT_EQ(drawing().CurrentFileName, "B.els");
    runCommand(*program, Menu::mnuFileRecent1);
    EXPECT_EQ(drawing().CurrentFileName, "A.els");
    EXPECT_THAT(fake.dialogs.forms, IsEmpty()) << "no browser after the save";
    EXPECT_THAT(recent(), ElementsAre("&1 A.els", "&2 B.els"));

    std::filesystem::remove(fake.folder.native(own + "B.els"));
    drawing().DrawingChanged = true;
    fake.dialogs.boxes.clear();
    runCommand(*program, Menu::mnuFileRecent1);  // gone since the menu was shown
    ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
    EXPECT_THAT(fake.dialogs.boxes[0].text, HasSubstr("B.els could not be found."));
    EXPECT_EQ(drawing().CurrentFileName, "A.els");
    EXPECT_TRUE(drawing().DrawingChanged);
}

TEST_F(FileMenuTest, BackupsAreOfferedInTheBrowserWhereThereAreSome) {
    start();
    const auto enabled = [&] {
        mnuFile_Popup(*program);
        return isEnabled(*program, command(Menu::mnuFileBackups));
    };
    EXPECT_FALSE(enabled()) << "untitled";
    open("documents/Ladrix/Drawings/", "A.els");
    EXPECT_FALSE(enabled()) << "never saved";
    drawing().FileDescription = "new";
    SaveDrawing(program->editor);
    ASSERT_THAT(fake.dialogs.boxes, IsEmpty());
    ASSERT_TRUE(enabled());

    FileBrowser& browser = program->frmFile;
    fake.dialogs.duringForm = [&](Form) {
        loadBrowser(*program);
        ASSERT_EQ(browser.entries.size(), 1u);
        FileList1_Click(browser, program->editor, 0);
        EXPECT_TRUE(browser.PreviewShown);
        cmdOpenOK_Click(browser, program->editor);
        frmFile_Unload(browser, program->editor);
    };
    runCommand(*program, Menu::mnuFileBackups);
    EXPECT_EQ(drawing().CurrentFileName, "A.els");
    EXPECT_EQ(drawing().CurrentFolder, program->paths.DrawingsPath);
    EXPECT_EQ(drawing().FileDescription, "");
    EXPECT_TRUE(drawing().DrawingChanged);
    EXPECT_EQ(browser.sorting, Sorting{});
    EXPECT_TRUE(program->editor.backups.offered.empty());
    EXPECT_THAT(recent(), ElementsAre("&1 A.els")) << "a copy is no drawing of its own";
}

}  // namespace
}  // namespace ladrix
