// The search over all topics, and the window's menu.
#include <algorithm>
#include <array>

#include "help/HelpCommands.h"
#include "platform/Encoding.h"

namespace ladrix {

namespace {

// Lower case serves as well as upper: both sides are alike and keep their length.
std::string phraseOf(const HelpForm& help) {
    std::string phrase = lowerCase(help.txtSearch.Text);
    phrase.erase(0, phrase.find_first_not_of(' '));
    phrase.erase(phrase.find_last_not_of(' ') + 1);
    return phrase;
}

struct Hit {
    std::size_t topic = 0;
    std::size_t position = std::string::npos;  // from 0
};

// From this topic and position on; further topics from their start.
Hit findPhrase(const HelpForm& help, const std::string& phrase, std::size_t topic,
               std::size_t position) {
    for (; topic < help.HelpBody.size(); ++topic, position = 0) {
        const std::size_t found = lowerCase(help.HelpBody[topic]).find(phrase, position);
        if (found != std::string::npos) return {topic, found};
    }
    return {};
}

void enableFindAgain(HelpForm& help, bool enabled) {
    help.cmdSearch[1].Enabled = enabled;
}

void endSearch(HelpForm& help, int index) {
    help.HelpSearchTopic = 0;
    help.HelpSearchPos = 1;
    if (index == 1) enableFindAgain(help, false);
    help.platform.tell(index == 0 ? "Search Phrase not Found" : "End of Search", help.Caption);
}

bool isFindAgainEnabled(const HelpForm& help) {
    return help.cmdSearch[1].Enabled;
}

void mnuEditFind_Click(HelpForm& help) {
    cmdSearch_Click(help, 0);
}

void mnuEditFindAgain_Click(HelpForm& help) {
    cmdSearch_Click(help, 1);
}

// clang-format off
constexpr HelpCommand Commands[] = {
    {HelpMenu::File, "mnuFileNewTopic", "Create a &New Help Topic", "Ctrl+N", mnuFileNewTopic_Click},
    {HelpMenu::File, "mnuFileSave", "&Save Current Help File", "Ctrl+S", mnuFileSave_Click},
    {HelpMenu::File, "mnuFilePrint", "&Print Displayed Topic", "Ctrl+P", mnuFilePrint_Click, true},
    {HelpMenu::File, "mnuFileCopy", "Copy Selected Topic and Description", "Ctrl+Shift+C", mnuFileCopy_Click},
    {HelpMenu::Edit, "mnuEditRename", "&Rename Current Topic", "F2", mnuEditRename_Click},
    {HelpMenu::Edit, "mnuEditDeleteTopic", "Delete Current Help Topic", "", mnuEditDeleteTopic_Click},
    {HelpMenu::Edit, "mnuEditFind", "&Find", "", mnuEditFind_Click, true},
    {HelpMenu::Edit, "mnuEditFindAgain", "Find A&gain", "F3", mnuEditFindAgain_Click, false, isFindAgainEnabled},
    {HelpMenu::Options, "mnuOptRefresh", "&Refresh Help Topics", "F5", mnuOptRefresh_Click},
    {HelpMenu::Help, "mnuHelp", "&Help on Search", "", mnuHelp_Click},
};
// clang-format on

}  // namespace

void cmdSearch_Click(HelpForm& help, int index) {
    const std::string phrase = phraseOf(help);
    if (phrase.empty()) return help.platform.tell("Nothing to search for.", help.Caption);
    // The search reads what is saved, and a hit takes the place of the text that is shown.
    if (!Form_QueryUnload(help)) return;
    const bool again = index == 1;
    const Hit hit = again ? findPhrase(help, phrase, static_cast<std::size_t>(help.HelpSearchTopic),
                                       help.HelpSearchPos - 1)
                          : findPhrase(help, phrase, 0, 0);
    if (hit.position == std::string::npos) return endSearch(help, index);
    showTopic(help, static_cast<Short>(hit.topic));
    help.txtHelp.SelStart = hit.position;
    help.txtHelp.SelLength = phrase.size();
    help.HelpSearchTopic = static_cast<Short>(hit.topic);
    help.HelpSearchPos = hit.position + 2;
    if (!again) enableFindAgain(help, true);
}

std::span<const HelpCommand> helpCommands() {
    return Commands;
}

std::string_view captionOf(HelpMenu menu) {
    static constexpr std::array<std::string_view, 4> Captions = {"&File", "&Edit", "&Options",
                                                                 "&Help"};
    return Captions[static_cast<std::size_t>(menu)];
}

}  // namespace ladrix
