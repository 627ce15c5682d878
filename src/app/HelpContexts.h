// The help topic of where the user is: the window, and in the main window what is under way there.
#pragma once

#include <span>
#include <string_view>

#include "app/Program.h"

namespace ladrix {

// `where` is a window's name or one of the states told in the table; the drawing tools tell theirs.
struct HelpContext {
    std::string_view where, topic;
};
std::span<const HelpContext> helpContexts();

// The title of the topic for the window of this name; that of the main window where it has none.
std::string_view helpTopicOf(const Program& program, std::string_view window);

// Opens the help window at that topic, or brings it to the front.
void openHelp(Program& program, std::string_view window);

void mnuHelpContents_Click(Program& program);

}  // namespace ladrix
