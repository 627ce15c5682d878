#include "app/FailureLog.h"

#include <gtest/gtest.h>

#include "app/Startup.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

struct FailureLogTest : testing::Test {
    test::FakePlatform fake;
    Program program{fake.platform};

    void SetUp() override {
        ASSERT_TRUE(startProgram(program));
        fake.platform.locale.generalDate = [] { return "2011-01-10 12:00:00"; };
    }
    std::string log() const {
        return fake.folder.read("documents/Ladrix/Data Files/Error Log.txt");
    }
    bool hasLog() const { return fake.folder.has("documents/Ladrix/Data Files/Error Log.txt"); }
    void report(std::string_view description) {
        fake.platform.ReportError(description, {failure::DiskFull, "No space left on device"});
    }
};

constexpr std::string_view Entry =
    "2011-01-10 12:00:00\r\nSaving\r\nError Number: 61\r\nError Description: No space left on "
    "device\r\n\r\n";

TEST_F(FailureLogTest, ARepeatedFailureShowsOneBoxAndLogsTwoEntries) {
    fake.dialogs.answers = {Answer::Ok};
    report("Saving");
    report("Saving");
    ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
    EXPECT_EQ(fake.dialogs.boxes[0].title, "Program Error");
    EXPECT_EQ(fake.dialogs.boxes[0].text,
              std::string(Entry) +
                  "\r\nIf this error keeps occurring, please upgrade the software. Look\r\nunder "
                  "Help for more details about upgrading.");
    EXPECT_EQ(log(), std::string(Entry) + std::string(Entry));
}

TEST_F(FailureLogTest, FailuresInTurnShowABoxEachTimeAndAreLoggedOnOkOnly) {
    fake.dialogs.answers = {Answer::Cancel, Answer::Cancel};
    report("A");
    report("B");
    EXPECT_FALSE(hasLog());
    fake.dialogs.answers = {Answer::Ok};
    fake.files.fail(test::Operation::Append, {failure::PermissionDenied, "no"});
    report("A");
    EXPECT_EQ(fake.dialogs.boxes.size(), 3u) << "a failure to log brings up no second report";
}

TEST_F(FailureLogTest, TheViewerShowsTheLogAndHandsItOverWithTheDrawing) {
    fake.dialogs.answers = {Answer::Ok};
    report("Saving");
    fake.folder.write("documents/Ladrix/Drawings/pump.els", "the drawing");
    fake.folder.write("documents/Ladrix/pump.els", "an older copy");
    program.editor.drawing.CurrentFolder = program.paths.DrawingsPath;
    program.editor.drawing.CurrentFileName = "pump.els";

    mnuAdminViewErrorLog_Click(program);
    EXPECT_EQ(fake.dialogs.forms, std::vector<Form>{Form::frmLog});
    EXPECT_EQ(program.frmLog.txtLog, Entry);

    frmLog_cmdExport_Click(program);
    EXPECT_EQ(fake.folder.read("documents/Ladrix/Error Log.txt"), Entry);
    EXPECT_EQ(fake.folder.read("documents/Ladrix/pump.els"), "the drawing");
    EXPECT_EQ(fake.dialogs.boxes.back().title, "Error Log Transferred");

    program.editor.drawing.CurrentFolder = program.paths.BasePath;
    frmLog_cmdExport_Click(program);
    EXPECT_EQ(fake.folder.read("documents/Ladrix/pump.els"), "the drawing") << "upon itself";
}

}  // namespace
}  // namespace ladrix
