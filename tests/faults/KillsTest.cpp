// A program that places and saves without end, killed at random moments, on the disk as it is.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <ctime>
#include <filesystem>
#include <iostream>
#include <random>
#include <sstream>

#include "DriverProcess.h"
#include "support/TemporaryFolder.h"

namespace ladrix::test {
namespace {

namespace fs = std::filesystem;

constexpr int UsualKills = 50;   // LADRIX_KILLS asks for more
constexpr int LongestRun = 100;  // milliseconds between the opened drawing and the kill
constexpr int MostDevices = 300;

// The text of a drawing of so many devices, where the driver places them.
std::string drawingOf(int count) {
    std::string text = "8.5x11Portrait\r\n\r\n";
    for (int i = 0; i < count; ++i) {
        std::string line = "InsertGround|" + std::to_string(1 + i % 7) + "|" +
                           std::to_string(1 + i / 7 % 9) + "|0||1|1|0|False\r\n";
        std::replace(line.begin(), line.end(), '|', '\xFF');
        text += line;
    }
    return text + "\r\n";
}

constexpr const char* End = "///Picture Files///\r\n";

// How many devices are in the text; a failure if it is not whole.
int devicesIn(const std::string& text, const std::string& end) {
    int count = 0;
    for (auto at = text.find("InsertGround"); at != std::string::npos;
         at = text.find("InsertGround", at + 1))
        ++count;
    EXPECT_EQ(text, drawingOf(count) + end) << "not whole";
    return count;
}

// What the driver has told last.
struct Told {
    int placed = 0, saved = 0;
};

Told lastOf(const std::string& output) {
    Told told;
    std::istringstream words(output);
    for (std::string verb; words >> verb;)
        words >> (verb == "placed" ? told.placed : told.saved);
    return told;
}

struct Kills : testing::Test {
    Kills() {
        for (const char* name : {"program", "data", "base/Backups"})
            disk.makeFolder(std::string("box/") + name);
        disk.write(Drawing, drawingOf(1) + End);
    }

    std::vector<fs::path> filesBelow(const char* folder) const {
        std::vector<fs::path> files;
        for (const auto& entry : fs::recursive_directory_iterator(disk.native(folder)))
            if (entry.is_regular_file()) files.push_back(entry.path());
        return files;
    }

    // The unfinished files, made two minutes old, and how many of them are of this process.
    int leftOvers(pid_t process) const {
        int own = 0;
        for (const fs::path& file : filesBelow("box")) {
            const std::string name = file.filename();
            if (!name.starts_with(".ladrix-")) continue;
            own += name.starts_with(".ladrix-" + std::to_string(process) + "-");
            const timespec then{std::time(nullptr) - 120, 0};
            const timespec times[2] = {then, then};
            EXPECT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
        }
        return own;
    }

    void checkDisk(const Told& told) {
        const int saved = devicesIn(disk.read(Drawing), End);
        int kept = saved;
        EXPECT_GE(saved, told.saved) << "a saved drawing is lost";
        if (disk.has(CrashCopy)) kept = std::max(kept, devicesIn(disk.read(CrashCopy), ""));
        EXPECT_GE(kept, told.placed - 1) << "more than one placement is lost";
        lost += kept < told.placed;
        ahead += saved > told.saved;
        for (const fs::path& file : filesBelow("box/base/Backups"))
            if (!file.filename().string().starts_with("."))
                devicesIn(disk.read(file.lexically_relative(disk.native()).string()), End);
    }

    const std::string Drawing = "box/documents/Loop.els",
                      CrashCopy = "box/program/Temp_Drawing.els";
    TemporaryFolder disk;
    int lost = 0, ahead = 0;
};

TEST_F(Kills, LoseNothingSavedAndAtMostOnePlacement) {
    const char* const wanted = getenv("LADRIX_KILLS");
    const int kills = wanted ? std::atoi(wanted) : UsualKills;
    std::mt19937 random(std::random_device{}());
    int within = 0, placements = 0;
    for (int i = 0; i < kills; ++i) {
        if (devicesIn(disk.read(Drawing), End) > MostDevices)
            disk.write(Drawing, drawingOf(1) + End);
        DriverProcess driver("place and save", disk / "box/", nullptr);
        const pid_t process = driver.number();
        std::string output(driver.read());
        const Told start = lastOf(output);
        usleep(std::uniform_int_distribution<useconds_t>(0, LongestRun * 1000)(random));
        driver.kill();
        output += driver.readAll();
        const int status = driver.wait();
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << output;
        const Told told = lastOf(output);
        placements += std::max(0, told.placed - start.saved);
        checkDisk(told);
        ASSERT_FALSE(HasFailure()) << "kill " << i << " after\n" << output;
        within += leftOvers(process) > 0;
    }
    std::cout << kills << " kills among " << placements << " placements: " << within
              << " within the writing of a file, " << ahead
              << " after a save that was not told yet, " << lost << " lost the last placement\n";
    EXPECT_GT(within, kills / 20) << "the kills fall beside what they are for";
    EXPECT_GT(placements, kills / 4);

    // What they have left is gone after the next save.
    DriverProcess last("place and save", disk / "box/", nullptr);
    const std::string own = ".ladrix-" + std::to_string(last.number()) + "-";
    for (std::string output; output.find("saved", output.find("saved") + 1) == std::string::npos;) {
        const std::string_view more = last.read();
        ASSERT_FALSE(more.empty()) << output;
        output += more;
    }
    last.kill();
    last.wait();
    for (const fs::path& file : filesBelow("box")) {
        const std::string name = file.filename();
        EXPECT_TRUE(!name.starts_with(".ladrix-") || name.starts_with(own)) << file;
    }
}

}  // namespace
}  // namespace ladrix::test
