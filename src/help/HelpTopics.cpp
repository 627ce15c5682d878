#include "help/HelpTopics.h"

#include <algorithm>
#include <optional>

#include "help/HelpFile.h"

namespace ladrix {

namespace {

constexpr std::string_view TopicsName = "Help_Topics.htx";
constexpr std::string_view OriginalName = "Original_Help_Topics.hhf";
constexpr std::string_view SpareName = "Temp_Help_Topics.htx";

std::string pathOf(const HelpForm& help, std::string_view name) {
    return help.AppFilePath + std::string(name);
}

std::string bodyOf(const HelpForm& help, char mark) {
    for (const std::string& marked : help.HelpMarkedBody)
        if (!marked.empty() && marked.front() == mark) return marked.substr(1);
    return {};
}

// By the mark of the first entry, as if the file were sorted.
Short firstTopic(const HelpForm& help) {
    const auto& sorted = help.lstSortedHelp.List;
    if (sorted.empty() || sorted.front().empty()) return 0;
    const int place = static_cast<unsigned char>(sorted.front().back()) - 191;
    return static_cast<Short>(place < help.HelpTopicCount ? place : 0);
}

std::vector<HelpTopic> topicsToSave(const HelpForm& help) {
    std::vector<HelpTopic> topics;
    for (std::size_t i = 0; i < help.HelpTitle.size(); ++i)
        topics.push_back({help.HelpTitle[i], help.HelpBody[i]});
    const HelpTopic shown{currentTitle(help), help.txtHelp.Text};
    const auto current = static_cast<std::size_t>(help.HelpCurrent);
    if (help.HelpNewTopic)
        topics.push_back(shown);
    else if (current < topics.size())
        topics[current] = help.HelpDeleting ? HelpTopic{} : shown;
    std::erase_if(topics, [](const HelpTopic& topic) { return topic.title.empty(); });
    sortTopics(topics);
    return topics;
}

// The first topic that holds the mark of its place.
std::optional<std::string> misplacedTopic(const std::vector<HelpTopic>& topics) {
    for (std::size_t n = 0; n < topics.size(); ++n) {
        const std::string whole = topics[n].title + topics[n].body;
        if (whole.find(markOf(n)) == std::string::npos) continue;
        return "The topic \"" + topics[n].title + "\" holds the character \"" + markOf(n) +
               "\", which marks its place in the help file. Please remove the character or give "
               "the topic another title.";
    }
    return std::nullopt;
}

void replaceFile(HelpForm& help, const std::vector<HelpTopic>& topics) {
    if (help.Unread) throw Failure{failure::PathFileAccess, "The present file could not be read."};
    Files& files = *help.platform.files;
    const std::string live = pathOf(help, TopicsName);
    if (files.status(live)) files.copy(live, pathOf(help, SpareName));
    files.replace(live, helpFileText(topics));
}

void removeSpare(HelpForm& help) {
    Files& files = *help.platform.files;
    const std::string spare = pathOf(help, SpareName);
    if (files.status(spare)) files.remove(spare);
}

}  // namespace

std::string currentTitle(const HelpForm& help) {
    const ListBox& list = help.lstHelp;
    if (list.ListIndex < 0 || list.ListIndex >= static_cast<int>(list.List.size())) return {};
    return list.List[static_cast<std::size_t>(list.ListIndex)];
}

void showTopic(HelpForm& help, Short place) {
    const auto index = static_cast<std::size_t>(place);
    const bool exists = index < help.HelpTitle.size();
    help.HelpPrevious = help.HelpCurrent;
    help.HelpCurrent = exists ? place : Short{0};
    help.lstHelp.ListIndex = exists ? place : -1;
    help.txtHelp.Enabled = exists && !help.HelpTitle[index].empty();
    help.txtHelp.Text = exists ? help.HelpBody[index] : std::string();
    help.txtHelp.SelStart = help.txtHelp.SelLength = 0;
    ++help.txtHelp.Version;
}

void ReadHelpFile(HelpForm& help) {
    const std::string path = pathOf(help, help.HelpOriginal ? OriginalName : TopicsName);
    help.HelpOriginal = false;
    HelpRecords records;
    help.Unread = true;
    try {
        if (help.platform.files->status(path))
            records = readHelpRecords(help.platform.files->read(path));
        else
            help.platform.tell("Help file not found. AppFilePath = " + help.AppFilePath);
        help.Unread = false;
    } catch (const Failure& failure) {
        help.platform.ReportError("ReadHelpFile", failure);
    }
    help.HelpTopicCount = static_cast<Short>(records.raw.size());
    help.HelpRecord = std::move(records.raw);
    help.HelpMarkedTitle = std::move(records.markedTitle);
    help.HelpMarkedBody = std::move(records.markedBody);
}

void LoadHelpTopics(HelpForm& help) {
    help.lstSortedHelp.List = help.HelpMarkedTitle;
    std::sort(help.lstSortedHelp.List.begin(), help.lstSortedHelp.List.end(), comesBefore);
    help.HelpTitle.clear();
    help.HelpBody.clear();
    for (const std::string& entry : help.lstSortedHelp.List) {
        help.HelpTitle.push_back(entry.substr(0, entry.empty() ? 0 : entry.size() - 1));
        help.HelpBody.push_back(entry.empty() ? std::string() : bodyOf(help, entry.back()));
    }
    help.lstHelp.List = help.HelpTitle;
    ++help.ListVersion;
    showTopic(help, firstTopic(help));
    help.HelpPrevious = help.HelpCurrent;
}

bool SaveHelpFile(HelpForm& help) {
    const std::vector<HelpTopic> topics = topicsToSave(help);
    help.HelpDeleting = false;
    if (const auto problem = misplacedTopic(topics)) {
        help.platform.tell(*problem, help.Caption);
        return false;
    }
    bool stands = false;
    try {
        replaceFile(help, topics);
        stands = true;
        help.HelpNewTopic = help.HelpEdited = false;
        removeSpare(help);
        help.platform.tell("Help File Saved.", help.Caption);
    } catch (const Failure& failure) {
        help.platform.tell("An error occurred saving the Help File\r\n\r\n" + failure.text,
                           help.Caption);
    }
    return stands;
}

bool saveAndReload(HelpForm& help, const std::string& title) {
    if (!SaveHelpFile(help)) return false;
    ReadHelpFile(help);
    LoadHelpTopics(help);
    const auto found = std::find(help.HelpTitle.begin(), help.HelpTitle.end(), title);
    if (found != help.HelpTitle.end())
        showTopic(help, static_cast<Short>(found - help.HelpTitle.begin()));
    return true;
}

}  // namespace ladrix
