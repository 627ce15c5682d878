// frmHelp, the help window, as state: a sorted list of topics, the chosen one's text, a search over
// all of them. The view tells the handlers what a person does, never what it was itself told to
// show, and shows the state after each.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "canvas/state/Controls.h"
#include "platform/Platform.h"

namespace ladrix {

// txtHelp. Positions are bytes of Text from 0; lines end in CR LF.
struct HelpTextBox {
    bool Enabled = false;  // there is a topic, and it has a title to be saved under
    std::string Text;
    std::size_t SelStart = 0, SelLength = 0;
    FontSpec Font{"Arial", 11, false, false};
    unsigned Version = 0;  // raised when a handler has changed Text or the selection
};

enum class HelpFocus { None, List, Text };

struct HelpForm {
    explicit HelpForm(const Platform& machine) : platform(machine) {}

    const Platform& platform;
    // Set once by the layer above: where the topics are, and where a topic printed to a file goes.
    std::string AppFilePath, PrintFolder;

    bool Visible = false;
    std::string Caption = "Help Contents";
    Single Width = 0, Height = 0;  // pixels, as the user left it last; 0: not shown yet

    // In the order of the file.
    std::vector<std::string> HelpRecord, HelpMarkedTitle, HelpMarkedBody;
    // In the order of the list.
    std::vector<std::string> HelpTitle, HelpBody;
    Short HelpTopicCount = 0;
    Short HelpCurrent = 0, HelpPrevious = 0;  // topics by their place in the list

    bool HelpNewTopic = false;  // a topic is open that no file holds; its row is the last one
    bool HelpEdited = false;    // the current topic's text differs from the file's
    bool HelpDeleting = false;
    bool HelpOriginal = false;  // the next read takes the shipped topics
    bool Unread = false;        // the file is there and could not be read

    ListBox lstHelp, lstSortedHelp;  // the second is never seen: marked titles, sorted
    unsigned ListVersion = 0;        // raised by every change of lstHelp
    HelpTextBox txtHelp;
    TextBox txtSearch;
    std::array<Control, 2> cmdSearch{captioned("Find Now"), captioned("Find Again")};
    Control lblSearch = captioned("Search for...");
    Short HelpSearchTopic = 0;
    std::size_t HelpSearchPos = 1;  // counted from 1
    HelpFocus FocusRequest = HelpFocus::None;
};

// The title in the list's current row, of a new topic too; "" if there is none.
std::string currentTitle(const HelpForm& help);

// Shows the topic at this place of the list; it becomes the current one. Without topics the text is
// empty.
void showTopic(HelpForm& help, Short place);

}  // namespace ladrix
