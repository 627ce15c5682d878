#include "help/HelpFile.h"

#include <algorithm>

#include "platform/Encoding.h"

namespace ladrix {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view Closing = "\r\n\r\n";

std::string_view withoutMark(std::string_view markedTitle) {
    return markedTitle.substr(0, markedTitle.empty() ? 0 : markedTitle.size() - 1);
}

// -1, 0 or 1.
int compareTitles(std::string_view a, std::string_view b) {
    const int order = lowerCase(a).compare(lowerCase(b));
    return (order > 0) - (order < 0);
}

void addRecord(HelpRecords& records, std::string_view raw) {
    std::string_view title, body;
    const std::size_t mark = raw.find(markOf(records.raw.size()));
    if (mark != std::string_view::npos) {
        title = raw.substr(0, mark + 1);
        const std::size_t start = std::min(raw.size(), title.size() + LineEnd.size());
        body = raw.substr(start);
        body = body.substr(0, body.size() - std::min(body.size(), Closing.size()));
    }
    records.raw.emplace_back(raw);
    records.markedTitle.emplace_back(title);
    records.markedBody.emplace_back(body);
}

std::size_t characterLength(std::string_view utf8) {
    std::size_t length = 1;
    while (length < utf8.size() && (static_cast<unsigned char>(utf8[length]) & 0xC0) == 0x80)
        ++length;
    return length;
}

bool canBeHeld(std::string_view character, char mark) {
    if (character.size() != 1) return false;  // Windows-1252 lacks it
    const auto byte = static_cast<unsigned char>(character[0]);
    const bool control = (byte < 32 && byte != '\t') || byte == 127;
    return !control && character[0] != StartMark && character[0] != mark;
}

}  // namespace

std::string helpFileText(std::span<const HelpTopic> topics) {
    std::string text;
    for (std::size_t n = 0; n < topics.size(); ++n) {
        text += StartMark;
        text += topics[n].title;
        text += markOf(n);
        text += LineEnd;
        text += markOf(n);
        text += topics[n].body;
        text += Closing;
    }
    return text;
}

HelpRecords readHelpRecords(std::string_view text) {
    HelpRecords records;
    std::size_t start = text.find(StartMark);
    while (start != std::string_view::npos && records.raw.size() < MostTopics) {
        const std::size_t end = text.find(StartMark, start + 1);
        addRecord(records,
                  text.substr(start + 1, end == std::string_view::npos ? std::string_view::npos
                                                                       : end - start - 1));
        start = end;
    }
    return records;
}

bool comesBefore(std::string_view markedTitle, std::string_view other) {
    const int order = compareTitles(withoutMark(markedTitle), withoutMark(other));
    if (order != 0) return order < 0;
    if (markedTitle.empty() || other.empty()) return markedTitle.size() < other.size();
    return static_cast<unsigned char>(markedTitle.back()) <
           static_cast<unsigned char>(other.back());
}

void sortTopics(std::vector<HelpTopic>& topics) {
    std::stable_sort(topics.begin(), topics.end(), [](const HelpTopic& a, const HelpTopic& b) {
        return compareTitles(a.title, b.title) < 0;
    });
}

AcceptedText acceptedText(std::string_view utf8, char mark) {
    AcceptedText accepted;
    char former = 0;
    while (!utf8.empty()) {
        const std::size_t length = characterLength(utf8);
        const std::string character = fromUtf8(utf8.substr(0, length));
        const char first = character.front();
        utf8.remove_prefix(length);
        if (first == '\r' || first == '\n') {
            if (first == '\r' || former != '\r') accepted.text += LineEnd;
        } else if (canBeHeld(character, mark)) {
            accepted.text += character;
        } else if (accepted.refused.find(character) == std::string::npos) {
            accepted.refused += character;
        }
        former = first;
    }
    return accepted;
}

}  // namespace ladrix
