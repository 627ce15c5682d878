// Makes the topic file of the help window from one text file a topic.
//
// A source is UTF-8. Its first line is the title, the rest the body. The lines of a paragraph are
// joined, so that the window can wrap them; a blank line divides paragraphs; a heading in capitals
// has a line of its own, and a line that begins with "- " or a number and a full stop, or holds
// " | " (an entry and what it means), begins one.
#include <algorithm>
#include <iostream>
#include <regex>
#include <vector>

#include "help/HelpFile.h"
#include "platform/DiskFiles.h"

namespace ladrix::tools {

namespace {

constexpr std::string_view Divider = " | ";
constexpr std::string_view Outputs[] = {"Help_Topics.htx", "Original_Help_Topics.hhf"};

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string line(text.substr(0, end));
        line.erase(line.find_last_not_of(" \r\t") + 1);
        line.erase(0, line.find_first_not_of(' '));
        lines.push_back(std::move(line));
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
    }
    return lines;
}

bool isListItem(std::string_view line) {
    if (line.starts_with("- ")) return true;
    const std::size_t digits = line.find_first_not_of("0123456789");
    return digits != 0 && digits != std::string_view::npos && line.substr(digits).starts_with(". ");
}

bool isHeading(std::string_view line) {
    const auto isSmall = [](char c) { return c >= 'a' && c <= 'z'; };
    const auto isCapital = [](char c) { return c >= 'A' && c <= 'Z'; };
    return std::none_of(line.begin(), line.end(), isSmall) &&
           std::count_if(line.begin(), line.end(), isCapital) > 1;
}

void startLine(std::string& body, std::string line) {
    const std::size_t divider = line.find(Divider);
    if (divider != std::string::npos) line.replace(divider, Divider.size(), "\t");
    if (!body.empty()) body += '\n';
    body += line;
}

// Lines in UTF-8, divided by a line feed.
std::string bodyOf(const std::vector<std::string>& lines) {
    std::string body;
    bool afterBlank = true;
    for (const std::string& line : lines) {
        const bool starts = afterBlank || isHeading(line) || isListItem(line) ||
                            line.find(Divider) != std::string::npos;
        if (line.empty()) {
            if (!afterBlank) body += '\n';  // the one that ends the line comes with the next
        } else if (starts) {
            startLine(body, line);
        } else {
            body += ' ' + line;
        }
        afterBlank = line.empty() || isHeading(line);
    }
    while (body.ends_with('\n'))
        body.pop_back();
    return body;
}

[[noreturn]] void refuse(const std::string& file, const std::string& why) {
    throw Failure{failure::InvalidCall, file + ": " + why};
}

// Where the topic will stand is not known yet; nothing of its text may be the mark of any place.
std::string accepted(const std::string& file, std::string_view utf8) {
    const AcceptedText taken = acceptedText(utf8, StartMark);
    const bool holdsMark = std::any_of(taken.text.begin(), taken.text.end(), [](char c) {
        return static_cast<unsigned char>(c) >= static_cast<unsigned char>(markOf(0));
    });
    if (!taken.refused.empty() || holdsMark) refuse(file, "a character that no topic may hold");
    return taken.text;
}

HelpTopic readTopic(Files& files, const std::string& folder, const std::string& name) {
    std::vector<std::string> lines = linesOf(files.read(folder + name));
    if (lines.empty() || lines.front().empty()) refuse(name, "no title in its first line");
    const std::string title = lines.front();
    lines.erase(lines.begin());
    HelpTopic topic{accepted(name, title), accepted(name, bodyOf(lines))};
    if (topic.body.empty()) refuse(name, "nothing below the title");
    return topic;
}

// A quoted number and title, as in "1.1 Welcome", leads to a topic.
void checkReferences(const std::vector<HelpTopic>& topics) {
    static const std::regex reference("\"([1-9]\\.[0-9] [^\"]*)\"");
    for (const HelpTopic& topic : topics) {
        std::sregex_iterator found(topic.body.begin(), topic.body.end(), reference);
        for (; found != std::sregex_iterator(); ++found) {
            const std::string title = found->str(1);
            if (std::none_of(topics.begin(), topics.end(),
                             [&](const HelpTopic& other) { return other.title == title; }))
                refuse(topic.title, "there is no topic \"" + title + "\"");
        }
    }
}

void makeHelp(const std::string& sources, const std::string& output) {
    DiskFiles disk;
    Files& files = disk;
    const std::string folder = withSeparator(files, sources);
    std::vector<HelpTopic> topics;
    for (const FileEntry& entry : files.list(folder))
        if (extensionOf(entry.name) == ".txt")
            topics.push_back(readTopic(files, folder, entry.name));
    sortTopics(topics);
    const auto twice =
        std::adjacent_find(topics.begin(), topics.end(),
                           [](const auto& a, const auto& b) { return a.title == b.title; });
    if (twice != topics.end()) refuse(twice->title, "a title that stands twice");
    if (topics.empty() || topics.size() >= MostTopics) refuse(folder, "too few or too many topics");
    checkReferences(topics);
    for (const std::string_view name : Outputs)
        files.replace(withSeparator(files, output) + std::string(name), helpFileText(topics));
}

}  // namespace

}  // namespace ladrix::tools

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "Usage: make_help SOURCE-FOLDER OUTPUT-FOLDER\n";
        return 1;
    }
    try {
        ladrix::tools::makeHelp(argv[1], argv[2]);
        return 0;
    } catch (const ladrix::Failure& failure) {
        std::cerr << failure.text << '\n';
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
    }
    return 1;
}
