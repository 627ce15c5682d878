#include "app/CommandTable.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "app/Startup.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/labels/Labels.h"
#include "canvas/tools/Tools.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

struct CommandTableTest : testing::Test {
    test::FakePlatform fake;
    Program program{fake.platform};

    void SetUp() override { ASSERT_TRUE(startProgram(program)); }
};

TEST_F(CommandTableTest, EveryEntryStandsOnceUnderAMenuThatComesBeforeIt) {
    std::set<Menu> seen;
    for (const Command& row : commandTable()) {
        EXPECT_TRUE(seen.insert(row.entry).second) << row.name;
        EXPECT_TRUE(seen.contains(row.menu)) << row.name;
        EXPECT_FALSE(row.caption.empty()) << row.name;
    }
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(Menu::Count));
}

TEST_F(CommandTableTest, NoTwoShortcutsClashAndNoneTakesAKeyOfTheCanvas) {
    std::map<std::string_view, std::string_view> owners;
    for (const char* key : {"Ctrl+B", "Ctrl+Left", "Ctrl+Right", "Ctrl+=", "Ctrl+-", "Ctrl+Alt+B",
                            "Ctrl+Alt+R", "Ctrl+Alt+G", "Ctrl+Alt+Y", "Ctrl+Alt+C", "Ctrl+Alt+M",
                            "Ctrl+Alt+U", "Ctrl+Alt+V", "Esc", "PgUp", "PgDown"})
        owners[key] = "the form's own: colours, snap, zoom";
    for (const Command& row : commandTable()) {
        EXPECT_TRUE(row.shortcut.empty() || row.handler != nullptr) << row.name;
        for (std::string_view rest = row.shortcut; !rest.empty();) {
            const std::string_view shortcut = rest.substr(0, rest.find("; "));
            rest.remove_prefix(std::min(rest.size(), shortcut.size() + 2));
            const auto [owner, isNew] = owners.emplace(shortcut, row.name);
            EXPECT_TRUE(isNew) << shortcut << " of " << row.name << " and " << owner->second;
        }
    }
}

TEST_F(CommandTableTest, AnEntryWithoutActionIsDisabledAndRunsNothing) {
    for (const Menu entry :
         {Menu::mnuFileOpenViewer, Menu::mnuFileDrawCircuit1, Menu::mnuFileTemplates,
          Menu::mnuOptionHalfScale, Menu::mnuModeIllustration})
        EXPECT_FALSE(isEnabled(program, command(entry))) << command(entry).name;
    EXPECT_TRUE(isEnabled(program, command(Menu::mnuFile)));
    EXPECT_TRUE(isEnabled(program, command(Menu::mnuFileSave)));
}

TEST_F(CommandTableTest, WhatIsBeingTypedBelongsToTheDrawingForAllCommandsButReset) {
    Editor& editor = program.editor;
    const auto type = [&](const char* text) {
        recordCentredLabel(editor, "M", 2, 2, Black);
        beginLabelEdit(editor, static_cast<Short>(editor.drawing.labels.LabelCount - 1));
        editor.form.txtEdit.Text = text;
        txtEdit_Change(editor);
    };
    editor.drawing.CurrentFileName = "A.els";
    type("M1");
    runCommand(program, Menu::mnuFileSave);
    EXPECT_NE(fake.folder.read("documents/Ladrix/Drawings/A.els").find("M1\xFF"),
              std::string::npos);
    type("M2");
    runCommand(program, Menu::mnuOptionReset);
    EXPECT_EQ(editor.drawing.labels.LabelText.back(), "M");
}

TEST_F(CommandTableTest, EntriesAreEnabledWhileThereIsSomethingForThem) {
    using enum Menu;
    Editor& editor = program.editor;
    const auto enabled = [&] {
        std::set<Menu> entries;
        for (const Menu entry : {mnuEditUndo, mnuEditRedo, mnuEditRepeat, mnuEditSaveUserSymbol,
                                 mnuEditCopy, mnuEditPaste, mnuEditText, mnuLibManageRename,
                                 mnuLibManageDelete, mnuLibManageMove, mnuLibManageCopy})
            if (isEnabled(program, command(entry))) entries.insert(entry);
        return entries;
    };
    using Entries = std::set<Menu>;
    const auto press = [&](std::string_view tag) {
        for (std::size_t i = 0; i < editor.form.cmdSym.size(); ++i)
            if (editor.form.cmdSym[i].Tag == tag)
                return cmdSym_Click(editor, static_cast<Short>(i));
        FAIL() << tag;
    };
    EXPECT_EQ(enabled(), Entries{});
    EXPECT_FALSE(editor.form.menu[mnuFileRecent0].Visible);
    EXPECT_TRUE(editor.form.menu[mnuOptionAttachLabels].Checked);
    press("Ground");
    picLX_MouseMove(editor, 0, 0, 1, 1);
    picLX_MouseDown(editor, LeftButton, 0, 1, 1);
    EXPECT_EQ(enabled(), (Entries{mnuEditUndo, mnuEditRepeat}));
    runCommand(program, mnuEditUndo);
    EXPECT_EQ(enabled(), (Entries{mnuEditUndo, mnuEditRedo, mnuEditRepeat}));
    runCommand(program, mnuEditRedo);
    runCommand(program, mnuEditSelectAll);
    EXPECT_EQ(enabled(), (Entries{mnuEditUndo, mnuEditRepeat, mnuEditSaveUserSymbol, mnuEditCopy}));
    runCommand(program, mnuToolsParseDeviceString);
    EXPECT_EQ(editor.SelectedCount, 0);
    EXPECT_EQ(enabled(), (Entries{mnuEditUndo, mnuEditRepeat, mnuEditSaveUserSymbol}));
    runCommand(program, mnuLibHyd);
    runCommand(program, mnuLibElectrical);
    EXPECT_TRUE(enabled().contains(mnuEditRepeat)) << "the symbol is there again";
    fake.dialogs.answers = {Answer::No};
    runCommand(program, mnuFileNew);
    EXPECT_EQ(enabled(), Entries{mnuEditRepeat});

    press("Lamp");
    runCommand(program, mnuLibHyd);
    EXPECT_EQ(enabled(), Entries{}) << "this library has no lamp";
    press("Line");
    runCommand(program, mnuLibIEC);
    EXPECT_EQ(enabled(), Entries{mnuEditRepeat});
    runCommand(program, mnuEditRepeat);
    EXPECT_EQ(editor.gesture.ToolName, "Line");
}

TEST_F(CommandTableTest, OnlyTheRightPasswordShowsTheAdminMenu) {
    fake.dialogs.inputAnswers = {"Gravlock", std::nullopt, "gravlock"};
    runCommand(program, Menu::mnuHelpAdmin);
    runCommand(program, Menu::mnuHelpAdmin);
    EXPECT_FALSE(program.editor.form.menu[Menu::mnuAdmin].Visible);
    runCommand(program, Menu::mnuHelpAdmin);
    EXPECT_TRUE(program.editor.form.menu[Menu::mnuAdmin].Visible);
    EXPECT_EQ(fake.dialogs.inputBoxes[0].title, "Author Login");
}

TEST_F(CommandTableTest, WebPagesAreOpenedOnYesAlone) {
    fake.dialogs.answers = {Answer::No, Answer::Yes};
    runCommand(program, Menu::mnuHelpSupport);
    EXPECT_TRUE(fake.shell.opened.empty());
    runCommand(program, Menu::mnuHelpSupport);
    ASSERT_EQ(fake.shell.opened.size(), 1u);
    EXPECT_TRUE(fake.shell.opened[0].starts_with("https://"));
}

}  // namespace
}  // namespace ladrix
