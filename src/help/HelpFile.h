// The topic file: all topics as one text, read and written whole.
//
// A record is the byte 254, the title, the record's mark, CR LF, the mark again, the body and
// CR LF CR LF. The mark of record n is the byte 191 + n and ties a title to its body; the last one,
// 254, is the byte that begins a record, so the 64th topic loses its title when it is read.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ladrix {

constexpr char StartMark = '\xFE';
constexpr std::size_t MostTopics = 64;

struct HelpTopic {
    std::string title, body;

    friend bool operator==(const HelpTopic&, const HelpTopic&) = default;
};

// `record` is below MostTopics.
constexpr char markOf(std::size_t record) {
    return static_cast<char>(191 + record);
}

// One record after the other, with marks given anew in this order. At most MostTopics.
std::string helpFileText(std::span<const HelpTopic> topics);

// What stands between the start marks, in file order. A record without its own mark has neither
// title nor body. Any text will do; what stands before the first start mark and behind the 64th
// record is left out.
struct HelpRecords {
    std::vector<std::string> raw;          // without the start mark
    std::vector<std::string> markedTitle;  // the mark at its end
    std::vector<std::string> markedBody;   // the mark at its beginning
};
HelpRecords readHelpRecords(std::string_view text);

// Marked titles in the order of the list: by title, whatever the case of its letters, equal ones by
// their marks.
bool comesBefore(std::string_view markedTitle, std::string_view other);
void sortTopics(std::vector<HelpTopic>& topics);

// Text for a topic whose mark is `mark`: what of it a topic can hold, and the characters that were
// left out, each once. Those are the start mark, the topic's own mark, control characters and what
// Windows-1252 lacks. Line ends become CR LF.
struct AcceptedText {
    std::string text, refused;
};
AcceptedText acceptedText(std::string_view utf8, char mark);

}  // namespace ladrix
