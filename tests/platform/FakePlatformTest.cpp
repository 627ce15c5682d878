// The fakes that every other test relies on.
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include "support/Failures.h"

namespace ladrix::test {
namespace {

TEST(FakePlatform, QueuedAnswersGoToQuestionsOnlyAndMustFitThem) {
    FakePlatform fake;
    fake.dialogs.answers = {Answer::Yes, Answer::Ok};
    fake.platform.tell("Saved.");
    EXPECT_EQ(fake.platform.dialogs->message("Save?", "Ladrix", Buttons::YesNoCancel), Answer::Yes);
    EXPECT_THROW(fake.platform.dialogs->message("Sure?", "Ladrix", Buttons::YesNo),
                 std::logic_error);
    EXPECT_EQ(fake.platform.dialogs->message("Sure?", "Ladrix", Buttons::YesNo), Answer::No);
    EXPECT_EQ(fake.platform.dialogs->input("Name", "Ladrix", "Demo"), std::nullopt);
    ASSERT_EQ(fake.dialogs.boxes.size(), 4u);
    EXPECT_EQ(fake.dialogs.boxes[0], (FakeDialogs::Box{"Saved.", "Ladrix", Buttons::Ok}));
}

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

TEST(FakePlatform, ClsWithAutoRedrawOffWipesTheTemporaryLayerAlone) {
    RecordingCanvas canvas;
    canvas.DrawWidth = 2;
    canvas.Line(0, 0, 1, 0.5f, Red, LineForm::Plain);
    canvas.AutoRedraw = false;
    canvas.Circle(1, 1, 0.25f, Black, 1);
    canvas.Cls();
    ASSERT_EQ(canvas.persistent.size(), 1u);
    EXPECT_EQ(describe(canvas.persistent[0]), "Line 0,0 1,0.5 color 255 width 2 style 0");
    EXPECT_TRUE(canvas.temporary.empty());
    canvas.AutoRedraw = true;
    canvas.Cls();
    EXPECT_TRUE(canvas.persistent.empty());
    canvas.primitivesUntilFailure = 1;
    canvas.Circle(1, 1, 0.25f, Black, 1);
    EXPECT_EQ(failureNumber([&] { canvas.Circle(1, 1, 0.25f, Black, 1); }),
              failure::InvalidProperty);
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
