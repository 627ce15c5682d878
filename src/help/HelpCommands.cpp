#include "help/HelpCommands.h"

#include <algorithm>
#include <optional>

#include "help/HelpFile.h"
#include "help/HelpTopics.h"

namespace ladrix {

namespace {

bool isUnsaved(const HelpForm& help) {
    return help.HelpNewTopic || help.HelpEdited;
}

// The mark that the topic shown would have in the file.
char wouldBeMark(const HelpForm& help, const std::string& title) {
    std::vector<HelpTopic> topics;
    for (const std::string& other : help.HelpTitle)
        topics.push_back({other, {}});
    if (!help.HelpNewTopic) return markOf(static_cast<std::size_t>(help.HelpCurrent));
    topics.push_back({title, "new"});
    sortTopics(topics);
    const auto place = std::find(topics.begin(), topics.end(), HelpTopic{title, "new"});
    return markOf(static_cast<std::size_t>(place - topics.begin()) % MostTopics);
}

// Nothing typed, or nothing that could be a title: nullopt, the latter told.
std::optional<std::string> askForTitle(HelpForm& help, std::string_view prompt,
                                       std::string_view caption, const std::string& present) {
    std::string title = help.platform.dialogs->input(prompt, caption, present).value_or("");
    title.erase(0, title.find_first_not_of(' '));
    title.erase(title.find_last_not_of(' ') + 1);
    if (title.empty()) return std::nullopt;
    if (title.find(StartMark) == std::string::npos) return title;
    help.platform.tell(std::string("A title cannot hold the character \"") + StartMark + "\".",
                       help.Caption);
    return std::nullopt;
}

void dropChange(HelpForm& help) {
    if (help.HelpNewTopic) {
        help.lstHelp.List.pop_back();
        ++help.ListVersion;
    }
    help.HelpNewTopic = help.HelpEdited = false;
    showTopic(help, help.HelpCurrent);
}

// Asks about unsaved work. False: everything stays as it is.
bool mayLeaveTopic(HelpForm& help) {
    if (!isUnsaved(help)) return true;
    const Answer answer = help.platform.dialogs->message(
        "The Help File has been modified. Do you wish to save the changes?",
        "Help File has been Modified.", Buttons::YesNoCancel);
    if (answer == Answer::Yes && saveAndReload(help, currentTitle(help))) return true;
    if (answer == Answer::No) {
        dropChange(help);
        return true;
    }
    help.FocusRequest = HelpFocus::Text;
    return false;
}

// The place of the topic in the list; 0 if it has gone.
Short placeOf(const HelpForm& help, const HelpTopic& topic) {
    for (std::size_t i = 0; i < help.HelpTitle.size(); ++i)
        if (help.HelpTitle[i] == topic.title && help.HelpBody[i] == topic.body)
            return static_cast<Short>(i);
    return 0;
}

}  // namespace

void Form_Load(HelpForm& help) {
    help.Visible = true;
    ReadHelpFile(help);
    LoadHelpTopics(help);
    help.txtSearch.Text.clear();
    help.cmdSearch[1].Enabled = false;
    help.HelpSearchTopic = 0;
    help.HelpSearchPos = 1;
    help.FocusRequest = HelpFocus::List;
}

bool Form_QueryUnload(HelpForm& help) {
    return mayLeaveTopic(help);
}

void Form_Unload(HelpForm& help) {
    help.HelpOriginal = false;
    help.Visible = false;
}

void goToTopic(HelpForm& help, std::string_view title) {
    if (isUnsaved(help)) return;
    const auto found = std::find(help.HelpTitle.begin(), help.HelpTitle.end(), title);
    if (found != help.HelpTitle.end())
        showTopic(help, static_cast<Short>(found - help.HelpTitle.begin()));
}

void mnuFileNewTopic_Click(HelpForm& help) {
    if (help.HelpOriginal)
        return help.platform.tell("Modifications to the original Help File are not allowed.",
                                  help.Caption);
    if (!mayLeaveTopic(help)) return;
    if (help.HelpTopicCount >= static_cast<int>(MostTopics))
        return help.platform.tell(
            "No more than 64 topics can be saved to help. Please consolidate some topics.",
            help.Caption);
    const auto title =
        askForTitle(help, "Please enter the Topic Title below.", "Creating New Help Topic", "");
    if (!title) return;
    help.HelpNewTopic = true;
    help.lstHelp.List.push_back(*title);
    help.lstHelp.ListIndex = static_cast<int>(help.lstHelp.List.size()) - 1;
    ++help.ListVersion;
    help.txtHelp.Enabled = true;
    help.txtHelp.Text.clear();
    help.txtHelp.SelStart = help.txtHelp.SelLength = 0;
    ++help.txtHelp.Version;
    help.FocusRequest = HelpFocus::Text;
}

void mnuFileSave_Click(HelpForm& help) {
    saveAndReload(help, currentTitle(help));
}

void mnuFileCopy_Click(HelpForm& help) {
    help.platform.clipboard->Clear();
    help.platform.clipboard->SetText(currentTitle(help) + ":\r\n\r\n" + help.txtHelp.Text);
}

void mnuEditRename_Click(HelpForm& help) {
    const std::string former = currentTitle(help);
    if (help.lstHelp.ListIndex < 0) return;
    const auto title = askForTitle(help, "Enter Help Topic Below", "Renaming Help Topic", former);
    if (!title) return;
    const auto row = static_cast<std::size_t>(help.lstHelp.ListIndex);
    help.lstHelp.List[row] = *title;
    if (!saveAndReload(help, *title)) help.lstHelp.List[row] = former;
    ++help.ListVersion;
}

void mnuEditDeleteTopic_Click(HelpForm& help) {
    if (help.lstHelp.ListIndex < 0) return;
    if (help.platform.dialogs->message(
            "Are you sure you want to delete this Help Topic: (" + currentTitle(help) + ")?",
            "Preparing to Delete Help Topic", Buttons::YesNo) != Answer::Yes)
        return;
    // A new topic is in no file yet.
    if (help.HelpNewTopic) return dropChange(help);
    help.HelpDeleting = true;
    if (!SaveHelpFile(help)) return;
    ReadHelpFile(help);
    LoadHelpTopics(help);
}

void mnuOptRefresh_Click(HelpForm& help) {
    if (!mayLeaveTopic(help)) return;
    ReadHelpFile(help);
    LoadHelpTopics(help);
}

void mnuHelp_Click(HelpForm& help) {
    help.platform.tell(
        "Search is performed throughout each category for a single phrase only. If your search "
        "includes\r\n"
        "more than one word, i.e., \"apple pie\", the search will be performed as per each "
        "occurrence\r\n"
        "where all the words are found together and successively. If the included words are not "
        "found\r\n"
        "together - even if all words are contained within the subject - a null search will be "
        "returned.\r\n"
        "Therefore, more predictable results are rendered with single word searches.",
        help.Caption);
}

void lstHelp_Click(HelpForm& help, int row) {
    const auto index = static_cast<std::size_t>(std::max(row, 0));
    if (static_cast<int>(index) == help.lstHelp.ListIndex || index >= help.HelpTitle.size()) return;
    const HelpTopic wanted{help.HelpTitle[index], help.HelpBody[index]};
    if (!isUnsaved(help)) return showTopic(help, static_cast<Short>(index));
    if (mayLeaveTopic(help)) showTopic(help, placeOf(help, wanted));
}

void txtHelp_Change(HelpForm& help, std::string_view utf8) {
    AcceptedText typed = acceptedText(utf8, wouldBeMark(help, currentTitle(help)));
    if (typed.text != help.txtHelp.Text && !help.HelpNewTopic) help.HelpEdited = true;
    help.txtHelp.Text = std::move(typed.text);
    if (typed.refused.empty()) return;
    help.platform.tell(
        "A help topic cannot hold these characters; they have been left out: " + typed.refused,
        help.Caption);
}

}  // namespace ladrix
