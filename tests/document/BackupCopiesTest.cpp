// The copies of a drawing's former texts on a real disk.
#include "document/BackupCopies.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/Failures.h"
#include "support/FaultyFiles.h"
#include "support/TemporaryFolder.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

struct BackupCopiesTest : testing::Test {
    TemporaryFolder folder;
    FaultyFiles files;

    std::string backupsOf(const std::string& name) const {
        return backupFolder(files, folder.path(), folder / "drawings/", name);
    }
    void keep(const std::string& text, const std::string& name = "Pump.els") {
        keepBackup(files, backupsOf(name), {text, std::chrono::system_clock::now()}, false);
    }
    std::vector<std::string> texts(const std::string& name = "Pump.els") const {
        const std::string inside = backupsOf(name).substr(folder.path().size());
        std::vector<std::string> found;
        for (const std::string& entry : folder.entries(inside))
            found.push_back(folder.read(inside + entry));
        return found;
    }
};

TEST_F(BackupCopiesTest, TheNewestTenStayAndWhatIsNotOneIsLeftAlone) {
    EXPECT_FALSE(hasBackups(files, backupsOf("Pump.els")));
    keep("0");
    const std::string inside = backupsOf("Pump.els").substr(folder.path().size());
    folder.write(inside + "My own note.els", "mine");
    for (int i = 1; i <= 11; ++i)
        keep(std::to_string(i));
    EXPECT_TRUE(hasBackups(files, backupsOf("Pump.els")));
    EXPECT_THAT(texts(), testing::UnorderedElementsAre("2", "3", "4", "5", "6", "7", "8", "9", "10",
                                                       "11", "mine"));
}

TEST_F(BackupCopiesTest, TheSameTextTwiceInARowIsOneCopy) {
    for (const char* text : {"A", "A", "B", "B", "A"})
        keep(text);
    EXPECT_THAT(texts(), testing::UnorderedElementsAre("A", "B", "A"));
}

TEST_F(BackupCopiesTest, DrawingsOfOneNameInTwoFoldersAreApart) {
    EXPECT_NE(backupFolder(files, folder.path(), "/a/", "Pump.els"),
              backupFolder(files, folder.path(), "/b/", "Pump.els"));
    EXPECT_NE(backupsOf("Pump.els"), backupsOf("Pump.tpl"));
}

// Each name is as long as the file system allows; those of one letter more are not confused.
TEST_F(BackupCopiesTest, AnyNameThatAFileCanBearHasAFolder) {
    std::string russian, euro;
    for (int i = 0; i < 125; ++i)
        russian +=
            "\x81"
            "d0"
            "\x81"
            "96";
    for (int i = 0; i < 83; ++i)
        euro += '\x80';
    for (const std::string& name : {std::string(250, 'x'), russian, euro}) {
        keep("first", name + ".els");
        keep("second", name.substr(0, name.size() - 6) + ".els");
        EXPECT_THAT(texts(name + ".els"), ElementsAre("first"));
    }
}

TEST_F(BackupCopiesTest, AFullDiskLeavesTheFormerCopies) {
    for (int i = 0; i < 10; ++i)
        keep(std::to_string(i));
    files.fail(Operation::Replace, {failure::DiskFull, "No space left on device"});
    EXPECT_EQ(failureNumber([&] { keep("new"); }), failure::DiskFull);
    EXPECT_EQ(texts().size(), 10u);
}

TEST_F(BackupCopiesTest, AFileWhoseDateTellsItsLayoutReadsTheSameFromItsCopy) {
    const auto long_ago = FileTime(std::chrono::seconds(1000000000));
    const std::string labels =
        "\r\nMotor\xFF"
        "1\xFF"
        "2\xFF"
        "0\r\n";
    keepBackup(files, backupsOf("Old.els"), {labels, long_ago}, false);
    const std::string copy = texts("Old.els").at(0);
    EXPECT_EQ(splitFile(copy, std::chrono::system_clock::now()).labels,
              splitFile(labels, long_ago).labels);
    EXPECT_THAT(copy, StartsWith("8.5x11Portrait\r\n\r\n"));

    const std::string devices = "InsertGround, 1, 1, 0, \r\n\r\n";
    keepBackup(files, backupsOf("Older.els"), {devices, long_ago}, false);
    EXPECT_THAT(texts("Older.els"), ElementsAre(devices)) << "plain from its beginning";
}

}  // namespace
}  // namespace ladrix::test
