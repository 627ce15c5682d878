// Any bytes as a topic file: what was read and has a title is written in a form that reads back to
// the same topics. Bytes without a start mark, which hold no topic, are typed text instead: they
// give one that a topic can hold.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "help/HelpFile.h"

namespace {

void require(bool promise) {
    if (!promise) std::abort();
}

using Topics = std::vector<ladrix::HelpTopic>;

Topics topicsOf(std::string_view text) {
    const ladrix::HelpRecords records = ladrix::readHelpRecords(text);
    require(records.raw.size() <= ladrix::MostTopics);
    require(records.raw.size() == records.markedTitle.size());
    require(records.raw.size() == records.markedBody.size());
    Topics topics;
    for (std::size_t n = 0; n < records.raw.size(); ++n) {
        const std::string& title = records.markedTitle[n];
        const std::string& body = records.markedBody[n];
        if (title.empty()) continue;
        require(title.back() == ladrix::markOf(n));
        topics.push_back({title.substr(0, title.size() - 1), body.empty() ? "" : body.substr(1)});
    }
    return topics;
}

// Whether each topic may stand at its place.
bool canBeSaved(const Topics& topics) {
    for (std::size_t n = 0; n < topics.size(); ++n)
        for (const std::string& text : {topics[n].title, topics[n].body})
            if (text.find(ladrix::markOf(n)) != std::string::npos) return false;
    return topics.size() < ladrix::MostTopics;
}

void checkFile(std::string_view text) {
    Topics topics = topicsOf(text);
    ladrix::sortTopics(topics);
    if (canBeSaved(topics)) require(topicsOf(ladrix::helpFileText(topics)) == topics);
}

void checkTyping(std::string_view text) {
    require(topicsOf(text).empty());
    const char mark = ladrix::markOf(text.size() % ladrix::MostTopics);
    const std::string held = ladrix::acceptedText(text, mark).text;
    require(held.find(mark) == std::string::npos);
    require(held.find(ladrix::StartMark) == std::string::npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    if (text.find(ladrix::StartMark) == std::string::npos)
        checkTyping(text);
    else
        checkFile(text);
    return 0;
}
