// Each operation that saves, with each of its system calls going wrong in each way: whatever
// happens, a file is the old or the new one whole, and what failed is told with its reason.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>

#include "DriverProcess.h"
#include "document/BackupCopies.h"
#include "platform/DiskFiles.h"
#include "support/TemporaryFolder.h"

namespace ladrix::test {
namespace {

namespace fs = std::filesystem;

struct Fault {
    std::string how;  // as the shim takes it
    int error = 0;
};

std::vector<Fault> allFaults() {
    std::vector<Fault> faults = {{"kill"}, {"short"}, {"full", ENOSPC}};
    for (const int error : {ENOSPC, EIO, EACCES, EDQUOT, EROFS, EMFILE, EINTR})
        faults.push_back({std::to_string(error), error});
    return faults;
}

struct Call {
    int number = 0;
    std::string name, path;
    bool changes = false, struck = false;

    // Those that change nothing yet and may simply be made again.
    bool canBeRetried() const {
        return std::set<std::string>{"open", "opendir", "read", "write", "fsync", "close"}.contains(
            name);
    }
    bool takes(const Fault& fault) const {
        if (fault.how == "short") return name == "read" || name == "write";
        return fault.how != "full" || name == "write";
    }
};

struct Outcome {
    int status = 0;
    std::vector<Call> calls;
    bool pending = false, struck = false;
    std::string said;

    bool isKilled() const { return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL; }
    bool hasEnded() const { return WIFEXITED(status) && WEXITSTATUS(status) == 0; }
};

Outcome outcomeOf(const std::string& output, int status) {
    Outcome outcome;
    outcome.status = status;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string verb;
        words >> verb;
        if (verb == "pending") {
            words >> outcome.pending;
        } else if (verb == "said") {
            outcome.said += line.substr(verb.size()) + '\n';
        } else {
            Call call;
            call.struck = verb == "fault";
            char kind = 0;
            words >> call.number >> call.name >> kind;
            std::getline(words >> std::ws, call.path);
            call.changes = kind == '+';
            outcome.struck = outcome.struck || call.struck;
            outcome.calls.push_back(std::move(call));
        }
    }
    return outcome;
}

using Tree = std::map<std::string, std::string>;

const std::string Preferences = "data/UserPreferences.upf";
const std::string Spare = "program/Temp_UserPreferences.upf";
const std::string Head = "8.5x11Portrait\r\n\r\n";
const std::string Device =
    "InsertGround\xFF"
    "1\xFF"
    "1\xFF"
    "0\xFF\xFF"
    "1\xFF"
    "1\xFF"
    "0\xFF"
    "False\r\n\r\n";
const std::string Pictures =
    "///Picture Files///\r\nlogo.bmp\xFF"
    "1\xFF"
    "1\xFF"
    "1\xFF"
    "1\r\n";

class FaultyCalls : public testing::TestWithParam<const char*> {
  protected:
    FaultyCalls() {
        before = {{"program/Favorite Folders.hst", "/one\r\n/two\r\n"},
                  {Preferences, "Reserve Bit 00:\r\nReserve Bit 01:\r\n"},
                  {"documents/Pump.els", Head + Device + Pictures},
                  {"documents/Pump/logo.bmp", std::string(100'000, 'p')},
                  {"documents/Other.els", "-> ../shelf/Real.els"},
                  {"shelf/Real.els", "another drawing, to be replaced through a link"},
                  {"data/Recent Files.txt", disk / "box/documents/Pump.els\r\n"},
                  {"base/note", ""}};
        // What the driver itself writes before the one that counts.
        if (operation == "crash copy") before["program/Temp_Drawing.els"] = Head + Device;
        if (operation == "backup copy")
            for (std::size_t i = 0; i < BackupsKept; ++i)
                before[backups() + "2026-01-0" + std::to_string(i) + " 00-00-00.els"] =
                    "backup " + std::to_string(i);
        disk.makeFolder("box");
    }
    static void TearDownTestSuite() { std::cout << "all operations: " << allRuns << " runs\n"; }

    std::string backups() const {
        const DiskFiles files;
        return backupFolder(files, "base/", "/x/", "Pump.els");
    }

    void setUp() const {
        fs::remove_all(disk.native("box"));
        for (const auto& [path, content] : before) {
            const fs::path file = disk.native("box/" + path);
            fs::create_directories(file.parent_path());
            if (content.starts_with("-> "))
                fs::create_symlink(content.substr(3), file);
            else
                std::ofstream(file) << content;
        }
    }

    static bool isLog(const std::string& path) {
        return path == "data/Error Log.txt" || path == "base/Error Messages.txt";
    }

    // The names of backups tell the time: all new ones are "new". A log is nobody's data.
    Tree present() const {
        Tree tree;
        for (const fs::directory_entry& entry :
             fs::recursive_directory_iterator(disk.native("box"))) {
            const std::string path = entry.path().lexically_relative(disk.native("box"));
            if (entry.is_symlink())
                tree[path] = "-> " + fs::read_symlink(entry.path()).string();
            else if (entry.is_regular_file() && !isLog(path))
                tree[path.starts_with("base/Backups") && !before.contains(path) &&
                             !isTemporary(path)
                         ? "new backup"
                         : path] = disk.read("box/" + path);
        }
        return tree;
    }

    Outcome run(const std::string& fault) const {
        DriverProcess driver(std::string(operation), disk / "box/", fault.c_str());
        const std::string output = driver.readAll();
        return outcomeOf(output, driver.wait());
    }

    static bool isTemporary(const std::string& path) {
        return path.find(".ladrix-") != std::string::npos;
    }
    static bool hasTemporary(const Tree& tree) {
        return std::any_of(tree.begin(), tree.end(),
                           [](const auto& file) { return isTemporary(file.first); });
    }

    // Whether this call's failure may go untold: what it is about is not what is to be saved.
    bool isMinor(const Call& call, const Fault& fault) const {
        if (!call.changes) return true;
        if (operation == "save as" && call.path.starts_with("data/")) return true;  // recent files
        if (call.name == "unlink") return call.path.starts_with(backups());  // the oldest copy
        // A folder that may be written but not read cannot be flushed.
        return call.name == "open" && call.path.ends_with('/') && fault.error == EACCES;
    }

    void expectWhole(const Tree& tree) const {
        for (const auto& [path, content] : tree) {
            if (isTemporary(path)) continue;
            const auto old = before.find(path == Spare ? Preferences : path);
            const auto fresh = after.find(path);
            EXPECT_TRUE((old != before.end() && old->second == content) ||
                        (fresh != after.end() && fresh->second == content))
                << path << " is neither old nor new: " << content.substr(0, 80);
        }
        for (const auto& [path, content] : before)
            EXPECT_TRUE(tree.contains(path) || !after.contains(path)) << path << " is lost";
    }

    void expectSaved(Tree tree) const {
        Tree expected = after;
        for (Tree* const each : {&tree, &expected}) {
            each->erase("data/Recent Files.txt");
            std::erase_if(*each, [&](const auto& file) {  // the oldest may have stayed
                return file.first.starts_with(backups()) && !after.contains(file.first);
            });
        }
        EXPECT_EQ(tree, expected);
    }

    // What was killed leaves at most a hidden file, which the next save takes away.
    void checkKill(const Outcome& outcome) {
        EXPECT_TRUE(outcome.isKilled());
        leftovers += hasTemporary(present());
        for (const fs::directory_entry& entry :
             fs::recursive_directory_iterator(disk.native("box"))) {
            const timespec then{std::time(nullptr) - 65, 0};
            const timespec times[2] = {then, then};
            if (!isTemporary(entry.path().filename())) continue;
            EXPECT_EQ(utimensat(AT_FDCWD, entry.path().c_str(), times, 0), 0);
        }
        const Outcome next = run("");
        EXPECT_TRUE(next.hasEnded() && !next.pending) << next.said;
        expectSaved(present());
    }

    void checkFault(const Call& call, const Fault& fault, const Outcome& outcome) {
        EXPECT_TRUE(outcome.hasEnded()) << outcome.said;
        const Tree tree = present();
        EXPECT_FALSE(hasTemporary(tree));
        if (outcome.pending) {
            ++told;
            EXPECT_THAT(outcome.said, testing::HasSubstr(std::strerror(fault.error)));
        } else {
            expectSaved(tree);
            EXPECT_TRUE(fault.how == "short" || fault.error == EINTR || isMinor(call, fault))
                << "nobody was told";
        }
        const bool survivable =
            fault.how == "short" || (fault.error == EINTR && call.canBeRetried());
        EXPECT_FALSE(survivable && outcome.pending) << outcome.said;
    }

    // A folder that is made is flushed, and its parent, before anything else is changed.
    static void expectFoldersFlushed(const std::vector<Call>& calls) {
        for (std::size_t i = 0; i < calls.size(); ++i) {
            if (calls[i].name != "mkdir") continue;
            std::set<std::string> flushed;
            for (std::size_t j = i + 1; j < calls.size(); ++j) {
                if (calls[j].name == "fsync") flushed.insert(calls[j].path);
                if (calls[j].changes && calls[j].name != "open" && calls[j].name != "fsync" &&
                    calls[j].name != "close")
                    break;
            }
            const std::string& path = calls[i].path;
            EXPECT_THAT(flushed,
                        testing::IsSupersetOf({path + "/", path.substr(0, path.rfind('/') + 1)}));
        }
    }

    const std::string operation = GetParam();
    TemporaryFolder disk;
    Tree before, after;  // `after` of a run without a fault
    int runs = 0, told = 0, leftovers = 0;
    static inline int allRuns = 0;
};

TEST_P(FaultyCalls, LeaveTheOldOrTheNewFileAndAreToldOf) {
    setUp();
    const Outcome faultless = run("");
    after = present();
    ASSERT_TRUE(faultless.hasEnded() && !faultless.pending) << faultless.said;
    ASSERT_NE(after, before);
    ASSERT_FALSE(hasTemporary(after));
    expectFoldersFlushed(faultless.calls);
    std::set<std::string> names;
    for (const Call& call : faultless.calls)
        names.insert(call.name);
    ASSERT_THAT(names, testing::IsSupersetOf({"open", "write", "fsync", "close", "rename"}));
    int pairs = 0;
    for (const Fault& fault : allFaults())
        for (const Call& call : faultless.calls) {
            if (!call.takes(fault) || pairs++ % LADRIX_FAULT_STRIDE != 0) continue;
            SCOPED_TRACE(fault.how + " at call " + std::to_string(call.number) + ", " + call.name +
                         " " + call.path);
            setUp();
            const Outcome outcome = run(std::to_string(call.number) + " " + fault.how);
            ++runs;
            ASSERT_TRUE(outcome.struck) << "the fault did not come about";
            expectWhole(present());
            if (fault.how == "kill")
                checkKill(outcome);
            else
                checkFault(call, fault, outcome);
        }
    EXPECT_TRUE(leftovers > 0 || LADRIX_FAULT_STRIDE > 1);
    EXPECT_GT(told, 0);
    allRuns += runs;
    std::cout << operation << ": " << faultless.calls.size() << " calls, " << runs << " runs, "
              << told << " failures told, " << leftovers << " kills with a file left over\n";
}

INSTANTIATE_TEST_SUITE_P(Of, FaultyCalls,
                         testing::Values("save", "save as", "crash copy", "preferences",
                                         "favourites", "backup copy"),
                         [](const auto& each) {
                             std::string name = each.param;
                             std::erase(name, ' ');
                             return name;
                         });

}  // namespace
}  // namespace ladrix::test
