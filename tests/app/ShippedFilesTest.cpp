#include "app/ShippedFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "support/FaultyFiles.h"
#include "support/TemporaryFolder.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Failure Full{failure::DiskFull, "No space left on device"};

struct ShippedFiles : testing::Test {
    TemporaryFolder disk;
    FaultyFiles files;
    const ShippedFolders folders{disk / "usr/share/ladrix/", disk / "home/data/ladrix/"};

    using Contents = std::map<std::string, std::string>;

    void ship(const Contents& contents) const {
        for (const auto& [name, content] : contents)
            disk.write("usr/share/ladrix/" + name, content);
    }
    void write(const std::string& name, const std::string& content) const {
        disk.write("home/data/ladrix/" + name, content);
    }
    void remove(const std::string& name) const {
        std::filesystem::remove(disk.native("home/data/ladrix/" + name));
    }
    // What stands in the work folder, the account apart.
    Contents present() const {
        Contents contents;
        const auto root = disk.native("home/data/ladrix");
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
            const std::string name = entry.path().lexically_relative(root);
            if (entry.is_regular_file() && name != ".shipped")
                contents[name] = disk.read("home/data/ladrix/" + name);
        }
        return contents;
    }
    std::vector<std::string> renew(const std::string& version) {
        std::vector<std::string> names;
        for (const NotPut& each : renewShippedFiles(files, folders, version))
            names.push_back(each.name);
        return names;
    }
};

TEST_F(ShippedFiles, ANewVersionRenewsAllButWhatTheUserChangedOrDeleted) {
    ship(
        {{"Demo1.els", "one"}, {"Demo2.els", "one"}, {"Sub/state.els", "one"}, {"Own.tpl", "one"}});
    write("Mine.els", "mine");
    write("Own.tpl", "mine before the program came");
    write("Demo1.els", "one");  // as a copy of another day left it
    EXPECT_THAT(renew("1"), IsEmpty());

    write("Demo2.els", "changed");
    remove("Sub/state.els");
    ship(
        {{"Demo1.els", "two"}, {"Demo2.els", "two"}, {"Sub/state.els", "two"}, {"New.els", "two"}});
    const int reads = files.count(Operation::Read);
    EXPECT_THAT(renew("1"), IsEmpty());
    EXPECT_EQ(present()["Demo1.els"], "one") << "the version has not changed";
    EXPECT_EQ(files.count(Operation::Read), reads + 1)
        << "an ordinary start reads the account alone";
    EXPECT_THAT(renew("2"), IsEmpty());
    const Contents renewed = {{"Demo1.els", "two"},
                              {"Demo2.els", "changed"},
                              {"New.els", "two"},
                              {"Mine.els", "mine"},
                              {"Own.tpl", "mine before the program came"}};
    EXPECT_EQ(present(), renewed);

    // What was deleted stays so for good, and what the user gave back is renewed again.
    write("Demo2.els", "one");
    ship({{"Demo2.els", "three"}, {"Sub/state.els", "three"}});
    EXPECT_THAT(renew("3"), IsEmpty());
    EXPECT_EQ(present()["Demo2.els"], "three");
    EXPECT_FALSE(present().contains("Sub/state.els"));
}

TEST_F(ShippedFiles, WhatAFailureKeptAwayComesAtTheNextStartAndWhatTheUserDeletedDoesNot) {
    ship({{"A.els", "a"}, {"B.els", "b"}, {"C.els", "c"}, {"Sub/D.els", "d"}});
    files.fail(Operation::Replace, Full, "B.els");
    files.fail(Operation::MakeFolder, Full, "Sub");
    files.fail(Operation::Read, Full, "share/ladrix/C.els");
    EXPECT_THAT(renew("1"), ElementsAre("C.els", "B.els", "Sub/D.els"));
    EXPECT_EQ(present(), (Contents{{"A.els", "a"}}));
    files.heal();
    EXPECT_THAT(renew("1"), IsEmpty());
    EXPECT_EQ(present(),
              (Contents{{"A.els", "a"}, {"B.els", "b"}, {"C.els", "c"}, {"Sub/D.els", "d"}}));

    remove("A.els");
    write("B.els", "");
    write("C.els", "mine");
    EXPECT_THAT(renew("1"), IsEmpty());
    EXPECT_EQ(present(), (Contents{{"B.els", "b"}, {"C.els", "mine"}, {"Sub/D.els", "d"}}));
}

// Stopped before each change of the disk in turn, at a first start and at an upgrade, and gone on
// with by the same version and by a later one: nothing is taken for the user's, nothing is lost.
TEST_F(ShippedFiles, ARunThatIsKilledAnywhereIsFinishedByTheNext) {
    const Contents first = {{"A.els", "a"}, {"B.els", "b"}, {"Sub/C.els", "c"}};
    const Contents second = {{"A.els", "a2"}, {"B.els", "b2"}, {"Sub/C.els", "c2"}};
    const Contents third = {{"A.els", "a3"}, {"B.els", "b3"}, {"Sub/C.els", "c3"}};
    struct Killed {};
    int kills = 0;
    for (const bool isUpgrade : {false, true})
        for (const bool laterVersion : {false, true})
            for (int passed = 0, ended = false; !ended; ++passed) {
                std::filesystem::remove_all(disk.native("home"));
                ship(first);
                if (isUpgrade) renew("1");
                ship(second);
                files.beforeChange = [left = passed]() mutable {
                    if (left-- == 0) throw Killed{};
                };
                try {
                    renew("2");
                    ended = true;
                } catch (const Killed&) {
                    ++kills;
                }
                files.beforeChange = {};
                if (laterVersion) ship(third);
                EXPECT_THAT(renew(laterVersion ? "3" : "2"), IsEmpty());
                EXPECT_EQ(present(), laterVersion ? third : second) << passed << isUpgrade;
            }
    EXPECT_GT(kills, 15);
}

TEST_F(ShippedFiles, AnAccountThatCannotBeReadAndAnInstalledFileThatIsEmptyChangeNothing) {
    ship({{"A.els", "a"}});
    renew("1");
    ship({{"A.els", ""}, {"B.els", "b"}});
    files.fail(Operation::Read, Full, ".shipped");
    EXPECT_THAT(renew("2"), ElementsAre(".shipped"));
    EXPECT_EQ(present(), (Contents{{"A.els", "a"}}));
    files.heal();
    EXPECT_THAT(renew("2"), ElementsAre("A.els"));
    EXPECT_EQ(present(), (Contents{{"A.els", "a"}, {"B.els", "b"}}));
}

// As programs before this one wrote it, and with lines that are none.
TEST_F(ShippedFiles, AnAccountOfAnEarlierProgramIsUnderstood) {
    ship({{"\xC4.els", "two"}, {"Gone.els", "two"}, {"Lost.els", "two"}});
    write("\xC4.els", "one");
    write(".shipped",
          "1\n\n+\nnonsense\n"
          "7692c3ad3540bb803c020b3aee66cd8887123234ea0c6e7143c0add73ff431ed \xC3\x84.els\n"
          "7692c3ad3540bb803c020b3aee66cd8887123234ea0c6e7143c0add73ff431ed Gone.els\n"
          "7692C3AD3540bb803c020b3aee66cd8887123234ea0c6e7143c0add73ff431ed Lost.els\n"
          "7692c3ad3540bb803c020b3aee66cd8887123234ea0c6e7143c0add73ff431ed");
    EXPECT_THAT(renew("2"), IsEmpty());
    EXPECT_EQ(disk.entries("home/data/ladrix"),
              (std::vector<std::string>{".shipped", "Lost.els", "\xC4.els"}));
    EXPECT_EQ(disk.read("home/data/ladrix/\xC4.els"), "two");
}

TEST_F(ShippedFiles, PutOnPurposeTheyReplaceAnythingAndAreRenewedFromThenOn) {
    ship({{"A.els", "a"}, {"B.els", "b"}, {"C.els", "c"}});
    renew("1");
    write("A.els", "changed");
    remove("B.els");
    write("C.els", "changed");
    EXPECT_THAT(putShippedFiles(files, folders, {"A.els", "B.els"}), IsEmpty());
    EXPECT_EQ(present(), (Contents{{"A.els", "a"}, {"B.els", "b"}, {"C.els", "changed"}}));
    ship({{"A.els", "a2"}, {"B.els", "b2"}, {"C.els", "c2"}});
    renew("2");
    EXPECT_EQ(present(), (Contents{{"A.els", "a2"}, {"B.els", "b2"}, {"C.els", "changed"}}));
}

TEST_F(ShippedFiles, FailuresAreOneTextByTheirReasons) {
    std::vector<NotPut> notPut;
    for (const char* name : {"A", "B", "C", "D"})
        notPut.push_back({name, {failure::DiskFull, std::string(name) + ": Full"}});
    notPut.insert(notPut.begin() + 2, {"Sub/X", {failure::DeviceIO, "X: Broken"}});
    Failure failure = asOneFailure(notPut);
    EXPECT_EQ(failure.number, failure::DiskFull);
    EXPECT_EQ(failure.text, "A, B, C and 1 other file: Full; Sub/X: Broken");
    notPut.push_back({"E", {failure::DiskFull, "E: Full"}});
    EXPECT_EQ(asOneFailure(notPut).text, "A, B, C and 2 other files: Full; Sub/X: Broken");
}

TEST_F(ShippedFiles, AnInstalledProgramWorksFromTheUsersCopyAndABuildTreeFromItself) {
    disk.makeFolder("usr/bin");
    const std::string binaries = disk / "usr/bin", data = disk / "home/data/ladrix";
    EXPECT_EQ(shippedFolders(files, binaries, data).work, binaries + '/');
    files.fail(Operation::Writable, Full);
    EXPECT_EQ(shippedFolders(files, binaries, data).work, folders.work);
    files.heal();
    ship({{"A.els", "a"}});
    for (const bool canTell : {true, false}) {
        if (!canTell) files.fail(Operation::Status, Full);
        const ShippedFolders installed = shippedFolders(files, binaries, data);
        EXPECT_EQ(installed.work, folders.work);
        EXPECT_EQ(installed.share, folders.share);
    }
}

}  // namespace
}  // namespace ladrix::test
