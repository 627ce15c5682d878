// Every menu command, once: name, caption, shortcut and handler. The menus and the shortcuts are
// made from this table, in its order.
#pragma once

#include <span>
#include <string_view>

#include "app/Program.h"
#include "canvas/state/MenuEntries.h"

namespace ladrix {

// How an entry stands before anything has happened.
enum class Start : unsigned char { Enabled, Disabled, Invisible, Checked };

struct Command {
    Menu entry;
    Menu menu;              // the menu it stands in; itself for a menu of the bar
    std::string_view name;  // "mnuFileNew"
    std::string_view caption;
    // "Ctrl+N", several divided by "; ", the menu shows the first. ESC, page and colour keys belong
    // to the form.
    std::string_view shortcut = {};
    void (*handler)(Program& program) = nullptr;  // nullptr: no action, shown disabled
    bool separatorBefore = false;
    bool checkable = false;
    Start start = Start::Enabled;
};

std::span<const Command> commandTable();
const Command& command(Menu entry);

// Puts all entries as the table says that they start. Called once, before anything that follows the
// state of the program.
void applyStartStates(MenuStates& menu);

// Shown enabled: it has a handler (or entries below it), and its state and its menu's say so.
bool isEnabled(const Program& program, const Command& command);

// Runs the entry's handler if it is enabled.
void runCommand(Program& program, Menu entry);

}  // namespace ladrix
