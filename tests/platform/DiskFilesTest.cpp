#include "platform/DiskFiles.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <functional>

#include "platform/Encoding.h"
#include "support/Failures.h"
#include "support/TemporaryFolder.h"

namespace ladrix::test {
namespace {

using Names = std::vector<std::string>;

class DiskFilesTest : public testing::Test {
  protected:
    mode_t modeOf(std::string_view name) const {
        struct stat info {};
        EXPECT_EQ(stat(folder.native(name).c_str(), &info), 0) << name;
        return info.st_mode & 07777;
    }
    void setMode(std::string_view name, mode_t mode) const {
        ASSERT_EQ(chmod(folder.native(name).c_str(), mode), 0) << name;
    }
    void link(const std::string& target, std::string_view name) const {
        ASSERT_EQ(symlink(target.c_str(), folder.native(name).c_str()), 0);
    }

    TemporaryFolder folder;
    DiskFiles files;
};

// Runs the step in a process of its own; its exit status is what waitpid tells.
int inChild(const std::function<int()>& step) {
    const pid_t child = fork();
    if (child == 0) _exit(step());
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
}

std::string largeContent(char first) {
    std::string content(300'000, 'x');
    content.front() = content.back() = first;
    return content;
}

TEST_F(DiskFilesTest, ContentOfAnyBytesIsWrittenReadAndCopiedWhole) {
    std::string content = largeContent('\0');
    for (int byte = 0; byte < 256; ++byte)
        content += static_cast<char>(byte);
    files.replace(folder / "Demo.els", content, false);
    EXPECT_EQ(folder.read("Demo.els"), content);
    EXPECT_EQ(files.read(folder / "Demo.els", content.size()), content);

    folder.write("Old.els", "much longer than what comes");
    files.replace(folder / "Old.els", "", false);
    EXPECT_EQ(files.read(folder / "Old.els", 0), "");
    files.copy(folder / "Demo.els", folder / "Old.els");
    EXPECT_EQ(folder.read("Old.els"), content);
    EXPECT_EQ(folder.entries(), (Names{"Demo.els", "Old.els"})) << "no temporary is left";
}

TEST_F(DiskFilesTest, ReplacingKeepsTheModeAndClearsAReadOnlyMark) {
    for (const auto& [before, after] : {std::pair<mode_t, mode_t>{0640, 0640},
                                        {0664, 0664},
                                        {0755, 0755},
                                        {0444, 0644},
                                        {0400, 0600}}) {
        folder.write("Demo.els", "old");
        setMode("Demo.els", before);
        files.replace(folder / "Demo.els", "new", false);
        EXPECT_EQ(folder.read("Demo.els"), "new");
        EXPECT_EQ(modeOf("Demo.els"), after) << std::oct << before;
        files.remove(folder / "Demo.els");
    }
}

TEST_F(DiskFilesTest, ANewFileHasTheUsersModeAndAPrivateOneItsOwnersAlone) {
    const mode_t before = umask(027);
    files.replace(folder / "new.els", "", false);
    files.replace(folder / "private.els", "", true);
    umask(0);
    files.replace(folder / "private2.els", "", true);
    folder.write("was open.els", "");
    setMode("was open.els", 0666);
    files.replace(folder / "was open.els", "", true);
    umask(before);
    EXPECT_EQ(modeOf("new.els"), 0640u);
    EXPECT_EQ(modeOf("private.els"), 0600u);
    EXPECT_EQ(modeOf("private2.els"), 0600u);
    EXPECT_EQ(modeOf("was open.els"), 0600u);
}

TEST_F(DiskFilesTest, ASymbolicLinkStaysAndWhatItPointsToIsReplaced) {
    folder.write("shared/Demo.els", "old");
    folder.makeFolder("mine");
    link("../shared/Demo.els", "mine/first");
    link(toUtf8(folder / "mine/first"), "mine/second");
    link("../shared/later.els", "mine/dangling");
    link("circle", "mine/circle");

    files.replace(folder / "mine/second", "new", false);
    files.replace(folder / "mine/dangling", "made", false);
    EXPECT_EQ(folder.read("shared/Demo.els"), "new");
    EXPECT_EQ(folder.read("shared/later.els"), "made");
    link("../shared", "mine/folder");
    for (const char* name :
         {"mine/first", "mine/second", "mine/dangling", "mine/circle", "mine/folder"}) {
        EXPECT_TRUE(files.isLink(folder / name)) << name;
    }
    for (const char* name : {"shared", "shared/Demo.els", "mine/nothing", "shared/Demo.els/below"})
        EXPECT_FALSE(files.isLink(folder / name)) << name;
    EXPECT_EQ(failureNumber([&] { files.replace(folder / "mine/circle", "x", false); }),
              failure::PathFileAccess);
    EXPECT_EQ(folder.entries("shared"), (Names{"Demo.els", "later.els"}));

    files.remove(folder / "mine/second");
    files.remove(folder / "mine/folder");
    EXPECT_EQ(folder.read("shared/Demo.els"), "new") << "only the link is removed";
    EXPECT_FALSE(files.isLink(folder / "mine/second") || files.isLink(folder / "mine/folder"));
}

TEST_F(DiskFilesTest, ReplacingRemovesWhatAKilledRunLeftBesideTheFile) {
    const pid_t ended = fork();
    if (ended == 0) _exit(0);
    waitpid(ended, nullptr, 0);
    const auto temporary = [](pid_t process) {
        return ".ladrix-" + std::to_string(process) + "-0.tmp";
    };
    const auto write = [&](const std::string& name, int minutesAgo) {
        folder.write(name, "half of it");
        const timespec then{time(nullptr) - 60 * minutesAgo - 5, 0};
        const timespec times[2] = {then, then};
        ASSERT_EQ(utimensat(AT_FDCWD, folder.native(name).c_str(), times, 0), 0);
    };
    write(temporary(ended), 1);
    write(temporary(getppid()), 1);
    write(".ladrix-notes.tmp", 60);
    files.replace(folder / "a.els", "whole", false);
    EXPECT_EQ(folder.entries(), (Names{".ladrix-" + std::to_string(getppid()) + "-0.tmp",
                                       ".ladrix-notes.tmp", "a.els"}));
    write(temporary(ended), 0);
    files.replace(folder / "a.els", "whole", false);
    EXPECT_TRUE(folder.has(temporary(ended))) << "perhaps another machine's";
}

TEST_F(DiskFilesTest, WhatIsNotARegularFileIsNeitherReadNorWritten) {
    folder.makeFolder("Folder");
    ASSERT_EQ(mkfifo(folder.native("Pipe").c_str(), 0600), 0);
    alarm(20);  // a read that waits for a writer fails here
    for (const std::string& path : {folder / "Folder", folder / "Pipe", std::string("/dev/null"),
                                    std::string("/dev/full"), folder.path()}) {
        for (const auto& step : std::initializer_list<std::function<void()>>{
                 [&] { files.read(path, LargestDocument); },
                 [&] { files.replace(path, "x", false); }, [&] { files.append(path, "x"); },
                 [&] { files.copy(path, folder / "copy"); }}) {
            const std::optional<Failure> failure = failureOf(step);
            ASSERT_TRUE(failure) << path;
            EXPECT_EQ(failure->number, failure::PathFileAccess) << path << ": " << failure->text;
        }
    }
    alarm(0);
    EXPECT_EQ(failureOf([&] { files.read("/dev/null", 1); })->text, "null: Not a regular file");
    EXPECT_EQ(failureOf([&] { files.read(folder / "Folder", 1); })->text, "Folder: Is a directory");
    EXPECT_EQ(folder.entries(), (Names{"Folder/", "Pipe"}));
}

TEST_F(DiskFilesTest, AFileOverTheLimitIsRefusedAndSaysSo) {
    folder.write("Demo.els", "12345");
    EXPECT_EQ(files.read(folder / "Demo.els", 5), "12345");
    const std::optional<Failure> over = failureOf([&] { files.read(folder / "Demo.els", 4); });
    ASSERT_TRUE(over);
    EXPECT_EQ(over->number, failure::PathFileAccess);
    EXPECT_EQ(over->text, "Demo.els: Larger than 4 bytes");

    std::filesystem::resize_file(folder.native("Demo.els"), LargestDocument + 1);  // sparse
    EXPECT_EQ(failureOf([&] { static_cast<Files&>(files).read(folder / "Demo.els"); })->text,
              "Demo.els: Larger than 64 MiB");
}

TEST_F(DiskFilesTest, AppendingAddsToTheEndAndClearsAReadOnlyMark) {
    files.append(folder / "Error Log.txt", "one\r\n");
    setMode("Error Log.txt", 0444);
    files.append(folder / "Error Log.txt", "two\r\n");
    EXPECT_EQ(folder.read("Error Log.txt"), "one\r\ntwo\r\n");
    EXPECT_EQ(modeOf("Error Log.txt"), 0644u);
}

TEST_F(DiskFilesTest, AppendingFollowsNoLinkThatAnyoneCouldHaveMade) {
    folder.makeFolder("own");
    folder.makeFolder("open");
    setMode("open", 01777);
    link(toUtf8(folder / "target"), "own/link");
    link(toUtf8(folder / "target"), "open/link");
    link(toUtf8(folder / "none"), "open/dangling");
    link("../open/link", "own/by way of open");
    for (const char* name : {"open/link", "open/dangling", "own/by way of open"}) {
        folder.write("target", "mine");
        setMode("target", 0444);
        const std::optional<Failure> failure = failureOf([&] { files.append(folder / name, "x"); });
        ASSERT_TRUE(failure) << name;
        EXPECT_EQ(failure->number, failure::PermissionDenied) << failure->text;
        EXPECT_EQ(folder.read("target"), "mine") << name;
        EXPECT_EQ(modeOf("target"), 0444u) << name;
        files.remove(folder / "target");
    }
    EXPECT_FALSE(folder.has("none"));
    for (const char* name : {"own/link", "open/file"}) {
        files.append(folder / name, "one");
        files.append(folder / name, "two");
        EXPECT_EQ(folder.read(name), "onetwo") << name;
    }
}

TEST_F(DiskFilesTest, AFolderIsTheUsersOwnWhereNobodyElseCanChangeIt) {
    files.makeFolder(folder / "private/", true);
    EXPECT_EQ(modeOf("private"), 0700u);
    folder.write("file", "");
    link("private", "link");
    link("nowhere", "dangling");
    const std::pair<const char*, mode_t> modes[] = {
        {"tight", 0755}, {"of the group", 0775}, {"open", 0757}, {"sticky", 01777}};
    for (const auto& [name, mode] : modes) {
        folder.makeFolder(name);
        setMode(name, mode);
    }
    for (const char* name : {"private", "private/", "tight"})
        EXPECT_EQ(files.ownerOf(folder / name), FolderOwner::User) << name;
    for (const char* name : {"of the group", "open", "sticky", "file", "link", "link/", "dangling"})
        EXPECT_EQ(files.ownerOf(folder / name), FolderOwner::Others) << name;
    EXPECT_EQ(files.ownerOf(folder / "none"), FolderOwner::Nobody);
    if (geteuid() == 0) {
        ASSERT_EQ(chown(folder.native("tight").c_str(), 65534, 0), 0);
        EXPECT_EQ(files.ownerOf(folder / "tight"), FolderOwner::Others);
    }
}

TEST_F(DiskFilesTest, RemovingAndRenamingLoseNothingByMistake) {
    folder.write("a.els", "a");
    folder.write("b.els", "b");
    setMode("a.els", 0444);
    folder.makeFolder("Folder");
    EXPECT_EQ(failureNumber([&] { files.rename(folder / "a.els", folder / "b.els"); }),
              failure::PathFileAccess);
    EXPECT_EQ(folder.read("b.els"), "b");
    EXPECT_EQ(failureNumber([&] { files.remove(folder / "Folder"); }), failure::PathFileAccess);
    EXPECT_EQ(failureNumber([&] { files.remove(folder / "none"); }), failure::FileNotFound);
    EXPECT_EQ(failureNumber([&] { files.rename(folder / "none", folder / "c"); }),
              failure::FileNotFound);
    files.rename(folder / "a.els", folder / "A.els");
    files.rename(folder / "Folder", folder / "Renamed");
    files.remove(folder / "b.els");
    EXPECT_EQ(folder.entries(), (Names{"A.els", "Renamed/"}));
    files.remove(folder / "A.els");
    EXPECT_EQ(folder.entries(), (Names{"Renamed/"})) << "a read-only file is removed too";
}

TEST_F(DiskFilesTest, AListingTellsEveryEntryButTheFoldersOwnDots) {
    folder.write("Demo.els", "12345");
    folder.write(".hidden", "");
    folder.makeFolder("Bitmaps");
    link("Bitmaps", "linked folder");
    link("nowhere", "dangling");
    std::vector<FileEntry> entries = files.list(folder.path());
    std::sort(entries.begin(), entries.end(),
              [](const FileEntry& a, const FileEntry& b) { return a.name < b.name; });
    Names names;
    for (const FileEntry& entry : entries) {
        names.push_back(entry.name + (entry.isFolder ? "/" : "") +
                        (entry.isHidden ? " hidden" : ""));
    }
    EXPECT_EQ(names,
              (Names{".hidden hidden", "Bitmaps/", "Demo.els", "dangling", "linked folder/"}));
    EXPECT_EQ(entries[2].size, 5u);
    Names fileNames = files.fileNames(folder.path());
    std::sort(fileNames.begin(), fileNames.end());
    EXPECT_EQ(fileNames, (Names{".hidden", "Demo.els", "dangling"}));

    const std::optional<FileEntry> status = files.status(folder / "Demo.els");
    ASSERT_TRUE(status);
    EXPECT_EQ(status->name, "Demo.els");
    EXPECT_EQ(status->modified, entries[2].modified);
    EXPECT_LT(std::chrono::abs(std::chrono::system_clock::now() - status->modified),
              std::chrono::minutes(5));
    EXPECT_TRUE(files.status(folder / "linked folder")->isFolder);
    for (const std::string& none : {folder / "none", folder / "Demo.els/x", folder / "dangling",
                                    folder / std::string(300, 'n')}) {
        EXPECT_FALSE(files.status(none)) << none;
    }
}

TEST_F(DiskFilesTest, NamesOutsideTheCodePageAreFilesLikeAnyOther) {
    const std::string name = fromUtf8("Схема №1 – Größe.els");
    const std::string broken = fromUtf8("not utf-8 \xFF\xC3.els");
    files.replace(folder / name, "drawing", false);
    files.replace(folder / broken, "drawing", false);
    EXPECT_TRUE(std::filesystem::exists(toUtf8(folder.path()) + "Схема №1 – Größe.els"));
    Names listed;
    for (const FileEntry& entry : files.list(folder.path()))
        listed.push_back(entry.name);
    std::sort(listed.begin(), listed.end());
    EXPECT_EQ(listed, (Names{broken, name}));
    for (const std::string& found : listed)
        EXPECT_EQ(files.read(folder / found, 99), "drawing");
    EXPECT_TRUE(FileExists(files, folder.path(), lowerCase(name)));
    EXPECT_EQ(files.read(folder / lowerCase(broken), 99), "drawing")
        << "lower-casing does not touch what is escaped";
}

TEST_F(DiskFilesTest, FailuresTellTheNumberTheNameAndTheSystemsReason) {
    folder.write("file", "");
    const std::string tooLong(300, 'n');
    struct Case {
        std::string what;
        std::function<void()> step;
        int number;
        std::string text;
    };
    const Case cases[] = {
        {"read", [&] { files.read(folder / "none.els", 1); }, failure::FileNotFound,
         "none.els: No such file or directory"},
        {"read in no folder", [&] { files.read(folder / "none/x.els", 1); }, failure::PathNotFound,
         "x.els: No such file or directory"},
        {"replace in no folder", [&] { files.replace(folder / "none/x.els", "", false); },
         failure::PathNotFound, "x.els: No such file or directory"},
        {"replace below a file", [&] { files.replace(folder / "file/x.els", "", false); },
         failure::PathNotFound, "x.els: Not a directory"},
        {"replace with a long name", [&] { files.replace(folder / tooLong, "", false); },
         failure::PathFileAccess, tooLong + ": File name too long"},
        {"append", [&] { files.append(folder / "none/log", ""); }, failure::PathNotFound,
         "log: No such file or directory"},
        {"list", [&] { files.list(folder / "none/"); }, failure::PathNotFound,
         "none: No such folder"},
        {"list a file", [&] { files.list(folder / "file"); }, failure::PathNotFound,
         "file: Not a directory"},
        {"make an existing folder", [&] { files.makeFolder(folder.path(), false); },
         failure::PathFileAccess, ""},
        {"make two levels", [&] { files.makeFolder(folder / "none/x/", false); },
         failure::PathNotFound, "x: No such file or directory"},
        {"a zero byte", [&] { files.read(folder / std::string("file\0.els", 9), 1); },
         failure::PathFileAccess, "File name with a zero byte"},
    };
    for (const Case& one : cases) {
        const std::optional<Failure> failure = failureOf(one.step);
        ASSERT_TRUE(failure) << one.what;
        EXPECT_EQ(failure->number, one.number) << one.what << ": " << failure->text;
        if (one.text.empty()) continue;
        EXPECT_EQ(failure->text, one.text) << one.what;
    }
    EXPECT_EQ(folder.entries(), (Names{"file"}));
}

TEST_F(DiskFilesTest, AFolderThatMayNotBeWrittenRefusesAndKeepsItsFile) {
    folder.makeFolder("locked");
    folder.write("locked/Demo.els", "old");
    setMode("locked/Demo.els", 0666);
    setMode("locked", 0555);
    setMode("", 0755);
    const int status = inChild([&] {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && seteuid(nobody) != 0) return 1;
        if (files.writable(folder / "locked")) return 2;
        const auto failure =
            failureOf([&] { files.replace(folder / "locked/Demo.els", "new", false); });
        if (!failure || failure->number != failure::PermissionDenied) return 3;
        if (failure->text != "Demo.els: Permission denied") return 4;
        if (failureNumber([&] { files.remove(folder / "locked/Demo.els"); }) !=
            failure::PermissionDenied) {
            return 5;
        }
        return 0;
    });
    setMode("locked", 0755);
    EXPECT_EQ(status, 0) << "check " << WEXITSTATUS(status);
    EXPECT_EQ(folder.read("locked/Demo.els"), "old");
    EXPECT_EQ(folder.entries("locked"), (Names{"Demo.els"}));
    EXPECT_TRUE(files.writable(folder / "locked"));
    EXPECT_FALSE(files.writable(folder / "locked/Demo.els"));
    EXPECT_FALSE(files.writable(folder / "none"));
}

// The system takes the first part of the content and then no more, as a full disk does.
TEST_F(DiskFilesTest, ContentThatTheDiskTakesOnlyInPartLeavesTheOldOne) {
    folder.write("Demo.els", "old");
    folder.write("log", "old");
    const int status = inChild([&] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{10'000, 10'000};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return 1;
        const std::string content = largeContent('n');
        const auto failure = failureOf([&] { files.replace(folder / "Demo.els", content, false); });
        if (!failure || failure->text != "Demo.els: File too large") return 2;
        return failureNumber([&] { files.append(folder / "log", content); }) == 0 ? 3 : 0;
    });
    EXPECT_EQ(status, 0) << "check " << WEXITSTATUS(status);
    EXPECT_EQ(folder.read("Demo.els"), "old");
    EXPECT_EQ(folder.read("log"), "old") << "no half entry";
    EXPECT_EQ(folder.entries(), (Names{"Demo.els", "log"}));
}

}  // namespace
}  // namespace ladrix::test
