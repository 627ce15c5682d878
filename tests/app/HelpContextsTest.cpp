#include "app/HelpContexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "app/CommandTable.h"
#include "app/Startup.h"
#include "canvas/tools/PaletteButtons.h"
#include "canvas/tools/ToolTable.h"
#include "help/HelpCommands.h"
#include "help/HelpFile.h"
#include "support/FakePlatform.h"
#include "support/Paths.h"

namespace ladrix {
namespace {

std::vector<HelpTopic> shippedTopics() {
    test::FakePlatform fake;
    HelpForm help(fake.platform);
    const std::string file = test::ProgramPath("Help_Topics.htx");
    help.AppFilePath = file.substr(0, file.rfind('/') + 1);
    Form_Load(help);
    std::vector<HelpTopic> topics;
    for (std::size_t i = 0; i < help.HelpTitle.size(); ++i)
        topics.push_back({help.HelpTitle[i], help.HelpBody[i]});
    return topics;
}

struct HelpContextsTest : testing::Test {
    test::FakePlatform fake;
    Program program{fake.platform};

    void SetUp() override { ASSERT_TRUE(startProgram(program)); }

    Short buttonOf(std::string_view tag) {
        const auto& buttons = program.editor.form.cmdSym;
        const auto found = std::find_if(buttons.begin(), buttons.end(),
                                        [&](const auto& button) { return button.Tag == tag; });
        return static_cast<Short>(found - buttons.begin());
    }
};

TEST_F(HelpContextsTest, EveryContextLeadsToAShippedTopicWithAText) {
    const std::vector<HelpTopic> topics = shippedTopics();
    EXPECT_GE(topics.size(), 30u);
    std::set<std::string_view> titles;
    for (const HelpTopic& topic : topics) {
        EXPECT_TRUE(titles.insert(topic.title).second) << topic.title;
        EXPECT_GT(topic.body.size(), 200u) << topic.title;
    }
    for (const HelpContext& context : helpContexts())
        EXPECT_TRUE(titles.contains(context.topic)) << context.where << ": " << context.topic;
    for (const Tool& tool : drawingTools())
        EXPECT_TRUE(titles.contains(tool.helpTopic)) << tool.name;
}

TEST_F(HelpContextsTest, EveryCaptionOfAMenuIsFoundInTheTopics) {
    std::string all;
    for (const HelpTopic& topic : shippedTopics())
        all += topic.title + ' ' + topic.body + '\n';
    for (const Command& row : commandTable()) {
        if (row.name.starts_with("mnuFileRecent")) continue;
        std::string caption(row.caption.substr(0, row.caption.find(" (")));
        std::erase(caption, '&');
        EXPECT_NE(all.find(caption), std::string::npos) << row.name << ": " << caption;
    }
}

TEST_F(HelpContextsTest, TheTopicIsThatOfWhatIsUnderWay) {
    Editor& editor = program.editor;
    const auto topic = [&] { return std::string(helpTopicOf(program, "frmLX")); };
    EXPECT_EQ(topic(), "1.1 Welcome to Ladrix");
    const std::pair<const char*, const char*> tools[] = {
        {"Dashed Line", "2.3 Lines and Dashed Lines"},
        {"Arc Up", "2.6 Arcs"},
        {"Normally Open Contact", "2.1 Placing Symbols"}};
    for (const auto& [tag, title] : tools) {
        editor.gesture.CurrentTool = buttonOf(tag);
        EXPECT_EQ(topic(), title) << tag;
    }
    editor.gesture.CurrentTool = static_cast<Short>(editor.LastBuiltInButton + 1);
    EXPECT_EQ(topic(), "7.3 The User Palette");
    // Each goes before those above it.
    editor.gesture.CurrentTool = -1;
    editor.SelectedCount = 2;
    EXPECT_EQ(topic(), "4.1 Selecting");
    editor.SelectedLabelCount = 2;
    EXPECT_EQ(topic(), "4.6 Text Properties and Alignment");
    editor.gesture.CopyArmed = true;
    EXPECT_EQ(topic(), "4.2 Copy and Move");
    editor.gesture.ZoomInPending = true;
    EXPECT_EQ(topic(), "3.2 Zoom, Scrolling and Stretching");
    editor.SimulationMode = true;
    EXPECT_EQ(topic(), "8.1 Circuit Simulation");
    EXPECT_EQ(helpTopicOf(program, "frmFile"), "5.2 The File Browser");
    program.frmFile.FileBrowserMode = BrowserMode::Picture;
    EXPECT_EQ(helpTopicOf(program, "frmFile"), "4.8 Pictures");
    EXPECT_EQ(helpTopicOf(program, "frmUnknown"), "8.1 Circuit Simulation");
}

TEST_F(HelpContextsTest, UnsavedWorkInTheHelpIsNeitherLeftNorLost) {
    fake.folder.write(
        "program/Help_Topics.htx",
        helpFileText(std::vector<HelpTopic>{{"1.1 Welcome to Ladrix", "w"}, {"2.7 Text", "t"}}));
    runCommand(program, Menu::mnuHelpContents);
    EXPECT_EQ(fake.dialogs.forms, std::vector<Form>{Form::frmHelp});
    EXPECT_EQ(currentTitle(program.frmHelp), "1.1 Welcome to Ladrix");
    program.editor.gesture.CurrentTool = 0;
    runCommand(program, Menu::mnuHelpContents);
    EXPECT_EQ(currentTitle(program.frmHelp), "2.7 Text");
    txtHelp_Change(program.frmHelp, "unsaved");
    program.editor.gesture.CurrentTool = -1;
    runCommand(program, Menu::mnuHelpContents);
    EXPECT_EQ(program.frmHelp.txtHelp.Text, "unsaved");
    runCommand(program, Menu::mnuExit);  // the question is cancelled
    EXPECT_FALSE(fake.shell.ended);
    fake.dialogs.answers = {Answer::No};
    runCommand(program, Menu::mnuExit);
    EXPECT_TRUE(fake.shell.ended);
}

}  // namespace
}  // namespace ladrix
