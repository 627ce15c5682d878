// The help window's handlers and its menu. Whatever would take the place of unsaved work asks
// first.
#pragma once

#include <span>
#include <string_view>

#include "help/HelpForm.h"

namespace ladrix {

// Reads the topics and shows the window's first state.
void Form_Load(HelpForm& help);
// May the window close? Asks about unsaved work; Cancel, or a save that fails, says no.
bool Form_QueryUnload(HelpForm& help);
void Form_Unload(HelpForm& help);

// Goes to the topic of this title, if there is one and nothing is unsaved.
void goToTopic(HelpForm& help, std::string_view title);

void mnuFileNewTopic_Click(HelpForm& help);
void mnuFileSave_Click(HelpForm& help);
// Prints the topic on the current printer, or tells why not.
void mnuFilePrint_Click(HelpForm& help);
void mnuFileCopy_Click(HelpForm& help);
void mnuEditRename_Click(HelpForm& help);
void mnuEditDeleteTopic_Click(HelpForm& help);
void mnuOptRefresh_Click(HelpForm& help);
void mnuHelp_Click(HelpForm& help);

// Another row of the list was chosen; -1 counts as the first. On Cancel everything stays, and the
// text asks for the focus.
void lstHelp_Click(HelpForm& help, int row);

// The text as it now stands after typing or pasting, in UTF-8 with any line ends. Characters that a
// topic cannot hold are left out and told; Text is then what the box must show.
void txtHelp_Change(HelpForm& help, std::string_view utf8);

// 0 "Find Now": from the first topic on. 1 "Find Again": from behind the last hit.
void cmdSearch_Click(HelpForm& help, int index);

enum class HelpMenu { File, Edit, Options, Help };

// A row of the window's menu bar.
struct HelpCommand {
    HelpMenu menu;
    std::string_view name, caption, shortcut;
    void (*handler)(HelpForm& help);
    bool separatorBefore = false;
    bool (*enabled)(const HelpForm& help) = nullptr;  // nullptr: always
};
std::span<const HelpCommand> helpCommands();
std::string_view captionOf(HelpMenu menu);

}  // namespace ladrix
