#include "browser/FileList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "support/FaultyFiles.h"
#include "support/TemporaryFolder.h"

namespace ladrix {
namespace {

using testing::ElementsAre;

std::vector<std::string> namesOf(const std::vector<FileEntry>& entries) {
    std::vector<std::string> names;
    for (const FileEntry& entry : entries)
        names.push_back(entry.name);
    return names;
}

TEST(FileList, NaturalOrderReadsNumbersAndIgnoresCase) {
    // Each name comes before the next; but for zeros "Motor 2" and "motor 02" are equal.
    const std::vector<std::string> ordered = {"",
                                              "10 kV",
                                              "\xC4rger",
                                              "\xE4rgern",
                                              "bus",
                                              "Motor",
                                              "motor 1",
                                              "Motor 2",
                                              "motor 02",
                                              "Motor 10",
                                              "motor 10a",
                                              "motor 0011",
                                              "motor 100000000000000000000",
                                              "Motors",
                                              "pump",
                                              "z"};
    for (std::size_t a = 0; a < ordered.size(); ++a)
        for (std::size_t b = 0; b < ordered.size(); ++b)
            if (std::min(a, b) != 7 || std::max(a, b) != 8) {
                EXPECT_EQ(naturalLess(ordered[a], ordered[b]), a < b)
                    << '"' << ordered[a] << "\" and \"" << ordered[b] << '"';
            }
    EXPECT_NE(naturalLess(ordered[7], ordered[8]), naturalLess(ordered[8], ordered[7]));
}

TEST(FileList, FilterComparesEndingsWithoutCase) {
    EXPECT_TRUE(matchesFilter("a.els", "*.els;*.tpl"));
    EXPECT_TRUE(matchesFilter("A.TPL", "*.els;*.tpl"));
    EXPECT_FALSE(matchesFilter("a.tpl", "*.els"));
    EXPECT_FALSE(matchesFilter("els", "*.els;*.tpl"));
    EXPECT_FALSE(matchesFilter("a.els.bak", "*.els"));
    EXPECT_FALSE(matchesFilter("a.els", ""));
}

TEST(FileList, ListsFoldersFirstAndLeavesHiddenAndForeignFilesOut) {
    const test::TemporaryFolder folder;
    for (const char* file : {"b10.els", "B2.ELS", "a.tpl", ".hidden.els", "notes.txt"})
        folder.write(file, "");
    for (const char* sub : {"zeta", "Beta", ".git", "drawing.els.d"})
        folder.makeFolder(sub);
    test::FaultyFiles files;

    const auto entries = listFolder(files, folder.path(), "*.els;*.tpl", {});
    EXPECT_THAT(namesOf(entries),
                ElementsAre("Beta", "drawing.els.d", "zeta", "a.tpl", "B2.ELS", "b10.els"));
    EXPECT_THROW(listFolder(files, folder / "gone/", "*.els", {}), Failure);
}

TEST(FileList, SortsByDateAndSizeWithFoldersFirstAndNamesAmongEquals) {
    const auto entry = [](std::string name, std::uintmax_t size, int day, bool isFolder = false) {
        FileEntry made;
        made.name = std::move(name);
        made.size = size;
        made.modified = FileTime(std::chrono::hours(24 * day));
        made.isFolder = isFolder;
        return made;
    };
    std::vector<FileEntry> entries = {entry("c", 5, 2), entry("b", 5, 1), entry("a", 9, 3),
                                      entry("folder", 0, 9, true)};
    const auto sorted = [&](BrowserOrder order, bool descending) {
        sortEntries(entries, {order, descending});
        return namesOf(entries);
    };
    EXPECT_THAT(sorted(BrowserOrder::Name, true), ElementsAre("folder", "c", "b", "a"));
    EXPECT_THAT(sorted(BrowserOrder::Modified, false), ElementsAre("folder", "b", "c", "a"));
    EXPECT_THAT(sorted(BrowserOrder::Modified, true), ElementsAre("folder", "a", "c", "b"));
    EXPECT_THAT(sorted(BrowserOrder::Size, false), ElementsAre("folder", "b", "c", "a"));
    EXPECT_THAT(sorted(BrowserOrder::Size, true), ElementsAre("folder", "a", "c", "b"));
}

TEST(FileList, TypedPathsAreMadeWhole) {
    const test::FaultyFiles files;
    const struct {
        const char *typed, *path;
    } cases[] = {
        {"sub", "/home/u/sub"},  {"./sub//deep/", "/home/u/sub/deep"},
        {"..", "/home"},         {"../v/a.els", "/home/v/a.els"},
        {"/etc/", "/etc"},       {"/", "/"},
        {"../../../../..", "/"}, {"/a/../..//b", "/b"},
    };
    for (const auto& [typed, path] : cases)
        EXPECT_EQ(resolvedPath(files, "/home/u/", typed), path) << typed;
    EXPECT_EQ(parentFolder(files, "/home/u/"), "/home/");
    EXPECT_EQ(parentFolder(files, "/home/"), "/");
    EXPECT_EQ(parentFolder(files, "/"), "/");
}

}  // namespace
}  // namespace ladrix
