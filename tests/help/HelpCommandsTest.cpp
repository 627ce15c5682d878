// The help window without a screen: topics on disk, what is unsaved, the search.
#include <gtest/gtest.h>

#include "help/HelpCommands.h"
#include "help/HelpFile.h"
#include "help/HelpTopics.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

constexpr auto File = "program/Help_Topics.htx";
constexpr auto Spare = "program/Temp_Help_Topics.htx";

using Topics = std::vector<HelpTopic>;

struct HelpCommandsTest : testing::Test {
    test::FakePlatform fake;
    HelpForm help{fake.platform};

    void load(const Topics& topics) {
        help.AppFilePath = fake.folder / "program/";
        fake.folder.write(File, helpFileText(topics));
        Form_Load(help);
    }
    void SetUp() override {
        load({{"Apples", "red apple pie"}, {"Cherries", "an APPLE"}, {"Pears", "none"}});
    }

    // What another window would read.
    Topics onDisk() {
        HelpForm other(fake.platform);
        other.AppFilePath = help.AppFilePath;
        ReadHelpFile(other);
        LoadHelpTopics(other);
        Topics topics;
        for (std::size_t i = 0; i < other.HelpTitle.size(); ++i)
            topics.push_back({other.HelpTitle[i], other.HelpBody[i]});
        return topics;
    }
    std::string lastBox() {
        return fake.dialogs.boxes.empty() ? "" : fake.dialogs.boxes.back().text;
    }
    void answer(Answer answer) { fake.dialogs.answers.push_back(answer); }
    void type(const std::string& text) { fake.dialogs.inputAnswers.push_back(text); }
};

TEST_F(HelpCommandsTest, ShowsTheTopicThatTheFirstMarkNames) {
    EXPECT_EQ(currentTitle(help), "Apples");
    EXPECT_EQ(help.txtHelp.Text, "red apple pie");
    mnuFileCopy_Click(help);
    EXPECT_EQ(fake.clipboard.text, "Apples:\r\n\r\nred apple pie");
    // A file out of order: the first entry's mark is taken for its place.
    load({{"b", "of b"}, {"A", "of a"}});
    EXPECT_EQ(help.lstHelp.List, (std::vector<std::string>{"A", "b"}));
    EXPECT_EQ(help.HelpCurrent, 1);
    EXPECT_EQ(help.txtHelp.Text, "of b");
    load({});
    EXPECT_TRUE(help.lstHelp.List.empty());
    EXPECT_EQ(help.HelpCurrent, 0);
    EXPECT_FALSE(help.txtHelp.Enabled);
}

TEST_F(HelpCommandsTest, AMissingFileIsToldAndAnUnreadableOneReported) {
    std::filesystem::remove(fake.folder.native(File));
    mnuOptRefresh_Click(help);
    EXPECT_EQ(lastBox(), "Help file not found. AppFilePath = " + help.AppFilePath);
    EXPECT_TRUE(help.lstHelp.List.empty());
    load({{"One", "x"}});
    fake.files.fail(test::Operation::Read, {failure::PermissionDenied, "denied"});
    mnuOptRefresh_Click(help);
    ASSERT_EQ(fake.reports.size(), 1u);
    EXPECT_EQ(fake.reports[0].description, "ReadHelpFile");
    fake.files.heal();
    mnuFileSave_Click(help);  // would put nothing in the place of what could not be read
    EXPECT_EQ(onDisk(), (Topics{{"One", "x"}}));
}

TEST_F(HelpCommandsTest, TheShippedTopicsAreShownOnce) {
    fake.folder.write("program/Original_Help_Topics.hhf", helpFileText(Topics{{"Shipped", "s"}}));
    help.HelpOriginal = true;
    mnuFileNewTopic_Click(help);
    EXPECT_EQ(lastBox(), "Modifications to the original Help File are not allowed.");
    mnuOptRefresh_Click(help);
    EXPECT_EQ(currentTitle(help), "Shipped");
    mnuOptRefresh_Click(help);
    EXPECT_EQ(currentTitle(help), "Apples");
}

TEST_F(HelpCommandsTest, ANewTopicIsSavedInItsPlaceAndTheOthersGetNewMarks) {
    type("Cherries");
    mnuFileNewTopic_Click(help);
    EXPECT_EQ(help.lstHelp.List.back(), "Cherries");
    EXPECT_EQ(help.txtHelp.Text, "");
    txtHelp_Change(help, "yellow\nand red");
    EXPECT_FALSE(help.HelpEdited);
    mnuFileSave_Click(help);
    EXPECT_EQ(lastBox(), "Help File Saved.");
    EXPECT_EQ(currentTitle(help), "Cherries");
    EXPECT_FALSE(fake.folder.has(Spare));
    const Topics expected = {{"Apples", "red apple pie"},
                             {"Cherries", "an APPLE"},
                             {"Cherries", "yellow\r\nand red"},
                             {"Pears", "none"}};
    EXPECT_EQ(fake.folder.read(File), helpFileText(expected));
}

TEST_F(HelpCommandsTest, SixtyFourTopicsAreTheMost) {
    Topics many;
    for (int i = 0; i < 63; ++i)
        many.push_back({"Topic " + std::to_string(100 + i), "x"});
    load(many);
    type("Topic 999");
    mnuFileNewTopic_Click(help);
    mnuFileSave_Click(help);
    EXPECT_EQ(lastBox(), "Help File Saved.");
    EXPECT_EQ(help.HelpTopicCount, 64);
    EXPECT_EQ(help.lstHelp.List.front(), "");  // its mark is the one that begins a record
    type("One more");
    mnuFileNewTopic_Click(help);
    EXPECT_EQ(lastBox(),
              "No more than 64 topics can be saved to help. Please consolidate some topics.");
    EXPECT_FALSE(help.HelpNewTopic);
}

TEST_F(HelpCommandsTest, RenamingAndDeletingGoToDisk) {
    type("Zebras");
    mnuEditRename_Click(help);
    EXPECT_EQ(onDisk().back(), (HelpTopic{"Zebras", "red apple pie"}));
    EXPECT_EQ(currentTitle(help), "Zebras");
    answer(Answer::No);
    mnuEditDeleteTopic_Click(help);
    EXPECT_EQ(lastBox(), "Are you sure you want to delete this Help Topic: (Zebras)?");
    EXPECT_EQ(onDisk().size(), 3u);
    answer(Answer::Yes);
    mnuEditDeleteTopic_Click(help);
    EXPECT_EQ(onDisk(), (Topics{{"Cherries", "an APPLE"}, {"Pears", "none"}}));
    // A new topic is in no file yet: deleting it deletes no other.
    type("Figs");
    mnuFileNewTopic_Click(help);
    answer(Answer::Yes);
    mnuEditDeleteTopic_Click(help);
    EXPECT_EQ(help.lstHelp.List, (std::vector<std::string>{"Cherries", "Pears"}));
    EXPECT_EQ(onDisk().size(), 2u);
}

TEST_F(HelpCommandsTest, LeavingAnEditedTopicAsksThreeWays) {
    txtHelp_Change(help, "changed");
    lstHelp_Click(help, 2);  // Cancel
    EXPECT_EQ(lastBox(), "The Help File has been modified. Do you wish to save the changes?");
    EXPECT_EQ(currentTitle(help), "Apples");
    EXPECT_EQ(help.txtHelp.Text, "changed");
    EXPECT_EQ(help.FocusRequest, HelpFocus::Text);
    help.txtSearch.Text = "none";
    cmdSearch_Click(help, 0);
    EXPECT_EQ(help.txtHelp.Text, "changed") << "a search asks too";
    answer(Answer::No);
    lstHelp_Click(help, 2);
    EXPECT_EQ(help.txtHelp.Text, "none");
    EXPECT_EQ(help.HelpPrevious, 0);
    EXPECT_EQ(onDisk()[0].body, "red apple pie");
    txtHelp_Change(help, "some");
    answer(Answer::Yes);
    lstHelp_Click(help, -1);
    EXPECT_EQ(currentTitle(help), "Apples");
    EXPECT_EQ(onDisk()[2], (HelpTopic{"Pears", "some"}));
    EXPECT_FALSE(help.HelpEdited);
}

TEST_F(HelpCommandsTest, ANewTopicIsSavedDroppedOrKeptOpenTheSameWay) {
    type("Bananas");
    mnuFileNewTopic_Click(help);
    lstHelp_Click(help, 1);  // Cancel
    EXPECT_EQ(currentTitle(help), "Bananas");
    EXPECT_FALSE(Form_QueryUnload(help));
    txtHelp_Change(help, "yellow");
    answer(Answer::Yes);
    lstHelp_Click(help, 1);
    EXPECT_EQ(currentTitle(help), "Cherries");  // which has moved down
    EXPECT_EQ(onDisk().size(), 4u);
    type("Dates");
    mnuFileNewTopic_Click(help);
    answer(Answer::No);
    EXPECT_TRUE(Form_QueryUnload(help));
    EXPECT_EQ(help.lstHelp.List.size(), 4u);
    EXPECT_EQ(onDisk().size(), 4u);
}

TEST_F(HelpCommandsTest, CharactersThatMarkPlacesAreRefusedWhereverTheyWouldStand) {
    txtHelp_Change(help, "a\u00FEb\u00BF\u00C0");
    EXPECT_EQ(help.txtHelp.Text, "ab\xC0");
    EXPECT_EQ(lastBox(),
              "A help topic cannot hold these characters; they have been left out: \xFE\xBF");
    mnuFileSave_Click(help);
    // One place further down, the topic would hold its own mark.
    type("AA");
    mnuFileNewTopic_Click(help);
    mnuFileSave_Click(help);
    EXPECT_NE(lastBox().find("\"Apples\" holds the character \"\xC0\""), std::string::npos);
    EXPECT_TRUE(help.HelpNewTopic);
    EXPECT_EQ(onDisk().size(), 3u);
    type("B\xFE");
    answer(Answer::No);
    mnuFileNewTopic_Click(help);
    EXPECT_FALSE(help.HelpNewTopic);
}

TEST_F(HelpCommandsTest, AFailedSaveLeavesTheFormerFileAndTheUnsavedText) {
    const std::string former = fake.folder.read(File);
    const Failure full{failure::DiskFull, "No space left on device"};
    struct {
        test::Operation operation;
        const char* part;
        bool spareStays;
    } faults[] = {{test::Operation::Status, "Help_Topics", false},
                  {test::Operation::Copy, "Temp_", false},
                  {test::Operation::Replace, "Help_Topics.htx", true}};
    for (const bool newTopic : {false, true}) {
        if (newTopic) {
            answer(Answer::No);
            type("Bananas");
            mnuFileNewTopic_Click(help);
        }
        txtHelp_Change(help, "unsaved");
        for (const auto& fault : faults) {
            fake.files.fail(fault.operation, full, fault.part);
            mnuFileSave_Click(help);
            fake.files.heal();
            EXPECT_TRUE(lastBox().starts_with("An error occurred saving the Help File"));
            EXPECT_NE(lastBox().find(full.text), std::string::npos);
            EXPECT_EQ(fake.folder.read(File), former);
            EXPECT_EQ(fake.folder.has(Spare), fault.spareStays);
            EXPECT_EQ(help.txtHelp.Text, "unsaved");
            EXPECT_EQ(help.HelpNewTopic, newTopic);
            EXPECT_EQ(help.HelpEdited, !newTopic);
            if (fault.spareStays) std::filesystem::remove(fake.folder.native(Spare));
        }
    }
    // A failed deletion deletes nothing, now or at the next save.
    answer(Answer::No);
    lstHelp_Click(help, 0);
    fake.files.failOnce(test::Operation::Replace, full);
    answer(Answer::Yes);
    mnuEditDeleteTopic_Click(help);
    EXPECT_EQ(fake.folder.read(File), former);
    mnuFileSave_Click(help);
    EXPECT_EQ(onDisk().size(), 3u);
    // With the new file in place, only the spare copy is left behind.
    txtHelp_Change(help, "saved");
    fake.files.failOnce(test::Operation::Remove, full);
    mnuFileSave_Click(help);
    EXPECT_TRUE(lastBox().starts_with("An error occurred saving the Help File"));
    EXPECT_EQ(onDisk()[0].body, "saved");
    EXPECT_FALSE(help.HelpEdited);
}

TEST_F(HelpCommandsTest, TheSearchGoesOnFromHitToHitToTheEnd) {
    load({{"A", "cat concat"}, {"B", ""}, {"C", "Bobcat, CATS"}});
    const auto search = [&](int index) {
        cmdSearch_Click(help, index);
        return currentTitle(help) + std::to_string(help.txtHelp.SelStart);
    };
    EXPECT_FALSE(help.cmdSearch[1].Enabled);
    help.txtSearch.Text = "  cAt ";
    EXPECT_EQ(search(0), "A0");
    EXPECT_EQ(help.txtHelp.SelLength, 3u);
    EXPECT_TRUE(help.cmdSearch[1].Enabled);
    for (const char* hit : {"A7", "C3", "C8"})
        EXPECT_EQ(search(1), hit);
    EXPECT_TRUE(fake.dialogs.boxes.empty());
    search(1);
    EXPECT_EQ(lastBox(), "End of Search");
    EXPECT_FALSE(help.cmdSearch[1].Enabled);
    EXPECT_EQ(search(1), "A0");  // from the beginning again
    help.txtSearch.Text = "dog";
    search(0);
    EXPECT_EQ(lastBox(), "Search Phrase not Found");
    help.txtSearch.Text = " ";
    search(0);
    EXPECT_EQ(lastBox(), "Nothing to search for.");
}

TEST_F(HelpCommandsTest, ATopicPrintsLineByLineFromTheTopOfEachPage) {
    std::string body = "First\r\n\r\nKey\tMeaning";
    for (int i = 0; i < 60; ++i)
        body += "\r\nLine";
    body += "\r\n1. ";
    for (int i = 0; i < 30; ++i)
        body += "word ";
    load({{"Keys: all/none", body}});
    mnuFilePrint_Click(help);
    const auto& printer = fake.printers.printer;
    const auto lines = printer.logged("Print ");
    ASSERT_EQ(lines.size(), 69u);
    // The font is 11 points, a line 1.2 times that: 264 twips. A blank line takes no room, and a
    // long one hangs beside its item.
    const std::pair<std::size_t, const char*> places[] = {{0, "540,720 \"Keys: all/none\""},
                                                          {3, "540,1512 \"First\""},
                                                          {4, "540,1776 \"Key\""},
                                                          {5, "1224,1776 \"Meaning\""},
                                                          {66, "540,"},
                                                          {67, "828,"}};
    for (const auto& [line, place] : places)
        EXPECT_TRUE(lines[line].starts_with(std::string("Print ") + place)) << lines[line];
    for (const std::string& line : lines)  // a character is 0.6 of 11 points wide
        EXPECT_LT(line.size(), 95u) << line;
    const auto turn = std::find(printer.log.begin(), printer.log.end(), "NewPage");
    ASSERT_NE(turn, printer.log.end());
    EXPECT_TRUE(std::prev(turn)->starts_with("Print 540,14976 ")) << *std::prev(turn);
    EXPECT_TRUE(std::next(turn)->starts_with("Print 540,720 ")) << *std::next(turn);
    EXPECT_EQ(printer.log.back(), "EndDoc");
    EXPECT_EQ(printer.documents.at(0).path, help.PrintFolder + "Keys- all-none");
}

TEST_F(HelpCommandsTest, APrinterThatFailsIsToldAndTheDocumentGivenUp) {
    auto& printer = fake.printers.printer;
    printer.fail("Print ", {failure::DeviceIO, "Out of paper"});
    mnuFilePrint_Click(help);
    EXPECT_EQ(lastBox(), "Out of paper");
    EXPECT_EQ(fake.dialogs.boxes.back().title, "Printer Error");
    EXPECT_TRUE(printer.abandoned);
    printer.takesDocuments = false;
    mnuFilePrint_Click(help);
    EXPECT_EQ(fake.dialogs.boxes.size(), 1u);
}

}  // namespace
}  // namespace ladrix
