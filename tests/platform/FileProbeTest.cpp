#include "platform/FileProbe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>

#include "support/TemporaryFolder.h"

namespace ladrix::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST(FileProbeTest, TellsFilesFromFoldersAndFromNothing) {
    const TemporaryFolder folder;
    folder.write("here.els", "");
    FileProbe probe;
    EXPECT_THAT(probe.ask({folder / "here.els", folder.path(), folder / "gone.els"}, 10s),
                ElementsAre(true, false, false));
}

TEST(FileProbeTest, APathThatDoesNotAnswerHoldsUpNobodyAndIsAskedOnce) {
    std::promise<void> networkIsBack;
    const auto wait = networkIsBack.get_future().share();
    auto asked = std::make_shared<std::atomic<int>>(0);
    FileProbe probe([=](const std::string& path) {
        if (path != "dead") return true;
        ++*asked;
        wait.wait();
        return true;
    });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THAT(probe.ask({"dead", "a", "b"}, 50ms), ElementsAre(false, true, true));
    EXPECT_THAT(probe.ask({"a", "dead"}, 60s), ElementsAre(true, false));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 30s) << "waited for it again";
    EXPECT_EQ(*asked, 1);
    networkIsBack.set_value();
    bool isBack = false;
    for (int i = 0; i < 1000 && !isBack; ++i, std::this_thread::sleep_for(10ms))
        isBack = probe.ask({"dead"}, 10s).front();
    EXPECT_TRUE(isBack);
}

}  // namespace
}  // namespace ladrix::test
