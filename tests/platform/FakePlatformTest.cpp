// The fakes that every other test relies on.
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include "support/Failures.h"

namespace ladrix::test {
namespace {

TEST(FakePlatform, TimersExpireInOrderOnceAndMayStartOthers) {
    FakeTimers timers;
    std::string expired;
    timers.start(1, 500, [&] { expired += "1"; });
    timers.start(2, 100, [&] {
        expired += "2";
        timers.start(3, 300, [&] { expired += "3"; });
    });
    timers.start(4, 50, [&] { expired += "4"; });
    timers.stop(4);
    timers.advance(99);
    EXPECT_EQ(expired, "");
    timers.advance(1);
    EXPECT_EQ(expired, "2");
    EXPECT_EQ(timers.millisecondsLeft(3), 300);
    timers.advance(1000);
    EXPECT_EQ(expired, "231");
    EXPECT_FALSE(timers.running(1));
}

TEST(FakePlatform, AFaultHitsTheChosenCallAndNoOther) {
    FakePlatform fake;
    const Failure full{failure::DiskFull, "No space left on device"};
    const auto replace = [&](const char* name) {
        return failureNumber([&] { fake.platform.files->replace(fake.folder / name, "x"); });
    };
    fake.files.failOnce(Operation::Replace, full, 1);
    fake.files.fail(Operation::Replace, full, ".tpl");
    EXPECT_EQ(replace("a.els"), 0);
    EXPECT_EQ(replace("b.els"), failure::DiskFull);
    EXPECT_EQ(replace("b.els"), 0);
    EXPECT_EQ(replace("c.tpl"), failure::DiskFull);
    fake.files.heal();
    EXPECT_EQ(replace("c.tpl"), 0);
    EXPECT_EQ(fake.files.count(Operation::Replace), 5);
    EXPECT_EQ(fake.folder.entries(),
              (std::vector<std::string>{"a.els", "b.els", "c.tpl", "documents/", "program/"}));
}

}  // namespace
}  // namespace ladrix::test
