#include "platform/Files.h"

#include <gtest/gtest.h>

#include "support/Failures.h"
#include "support/FaultyFiles.h"
#include "support/TemporaryFolder.h"

namespace ladrix::test {
namespace {

class FilesTest : public testing::Test {
  protected:
    TemporaryFolder folder;
    FaultyFiles files;
};

TEST_F(FilesTest, FilesAndFoldersExistInAnyCaseAndAreNotEachOther) {
    for (const char* name : {"Demo1.els", ".hidden.els", "\xC4nderung.els"})
        folder.write(name, "");
    folder.makeFolder("Bitmaps");
    for (const char* name : {"Demo1.els", "DEMO1.ELS", ".Hidden.els", "\xE4NDERUNG.els"})
        EXPECT_TRUE(FileExists(files, folder.path(), name)) << name;
    for (const char* name : {"Bitmaps", "Demo2.els", "Demo1", "", ".", "*.els"})
        EXPECT_FALSE(FileExists(files, folder.path(), name)) << name;
    EXPECT_TRUE(FolderExists(files, folder.path(), "bitmaps"));
    for (const char* name : {"Demo1.els", "Drawings", "", ".", ".."})
        EXPECT_FALSE(FolderExists(files, folder.path(), name)) << name;
}

TEST_F(FilesTest, AFolderCheckThatFailsIsReportedAndAnsweredWithNo) {
    std::vector<std::string> reports;
    files.ReportError = [&](std::string_view description, const Failure& failure) {
        reports.push_back(std::string(description) + "|" + failure.text);
    };
    folder.makeFolder("Bitmaps");
    EXPECT_FALSE(FolderExists(files, folder / "none/", "Bitmaps"));
    files.fail(Operation::List, {failure::PermissionDenied, "locked"});
    EXPECT_FALSE(FolderExists(files, folder.path(), "Bitmaps"));
    const auto report = [](const std::string& parent) {
        return "Error encountered during Folder check. Folder Check: MySearchPath = " + parent +
               ": MyFolderName = Bitmaps: MyTestName = |";
    };
    EXPECT_EQ(reports, (std::vector<std::string>{report(folder / "none/") + "none: No such folder",
                                                 report(folder.path()) + "locked"}));
}

TEST_F(FilesTest, AMissingFolderHoldsNoFileAndALockedOneCannotBeAsked) {
    EXPECT_FALSE(FileExists(files, folder / "none/", "Demo1.els"));
    files.fail(Operation::List, {failure::PermissionDenied, "locked"});
    EXPECT_EQ(failureNumber([&] { FileExists(files, folder.path(), "Demo1.els"); }),
              failure::PermissionDenied)
        << "not the same as no";
}

TEST_F(FilesTest, AFolderVariableEndsInOneSeparator) {
    EXPECT_EQ(withSeparator(files, "/home/anna"), "/home/anna/");
    EXPECT_EQ(withSeparator(files, "/home/anna//"), "/home/anna/");
    EXPECT_EQ(withSeparator(files, "/"), "/");
    EXPECT_EQ(withSeparator(files, ""), "/");
}

TEST(FileNames, ThoseThatNoFileMayHaveAreTold) {
    for (const char* name : {"Demo1", "My drawing.els", "a..b", "...", ".profile", "\xC4.els",
                             "\x81"
                             "d0\x81"
                             "96.els",
                             "quote\"'s"}) {
        EXPECT_TRUE(isLegalFileName(name)) << name;
        EXPECT_TRUE(isBareName(name)) << name;
    }
    for (const char* name : {"", ".", "..", "a/b", "a\\b", "../Demo1", "C:x", "a\nb", "\x7F"}) {
        EXPECT_FALSE(isLegalFileName(name)) << name;
        EXPECT_FALSE(isBareName(name)) << name;
    }
    for (const char* name : {"what?", "a*b", "<a>", "a|b"}) {
        EXPECT_FALSE(isLegalFileName(name)) << name;
        EXPECT_TRUE(isBareName(name)) << name;
    }
    EXPECT_FALSE(isBareName(std::string_view("logo.bmp\0/..", 12)));
}

TEST(FileNames, TheExtensionBeginsAtTheLastDot) {
    EXPECT_EQ(nameWithoutExtension("Demo1.els"), "Demo1");
    EXPECT_EQ(nameWithoutExtension("Pump 1.2.els"), "Pump 1.2");
    EXPECT_EQ(nameWithoutExtension("Demo1"), "Demo1");
    EXPECT_EQ(nameWithoutExtension(".els"), ".els");
    EXPECT_EQ(extensionOf("Demo1.ELS"), ".els");
    EXPECT_EQ(extensionOf("Demo1"), "");
    EXPECT_EQ(extensionOf(".els"), "");
    EXPECT_EQ(extensionOf(""), "");
}

}  // namespace
}  // namespace ladrix::test
