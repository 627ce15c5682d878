// The topic file as text: records, marks and what no topic can hold.
#include "help/HelpFile.h"

#include <gtest/gtest.h>

#include <random>

namespace ladrix {
namespace {

using Topics = std::vector<HelpTopic>;

// What a reader makes of a text: title and body of each record, by its mark.
Topics read(std::string_view text) {
    const HelpRecords records = readHelpRecords(text);
    Topics topics;
    for (std::size_t n = 0; n < records.raw.size(); ++n) {
        const std::string& title = records.markedTitle[n];
        const std::string& body = records.markedBody[n];
        topics.push_back({title.substr(0, title.empty() ? 0 : title.size() - 1),
                          body.empty() ? "" : body.substr(1)});
    }
    return topics;
}

Topics numbered(int count) {
    Topics topics;
    for (int i = 0; i < count; ++i)
        topics.push_back({"Topic " + std::to_string(100 + i), "Line\r\n\r\n" + std::to_string(i)});
    return topics;
}

TEST(HelpFileTest, IsWrittenByteByByteAsDescribed) {
    EXPECT_EQ(helpFileText(Topics{{"One", "a\r\nb"}, {"Two", ""}}),
              "\xFEOne\xBF\r\n\xBF"
              "a\r\nb\r\n\r\n\xFETwo\xC0\r\n\xC0\r\n\r\n");
}

TEST(HelpFileTest, ComesBackAsItWasButForTheTitleOfASixtyFourthTopic) {
    for (const int count : {0, 1, 2, 63})
        EXPECT_EQ(read(helpFileText(numbered(count))), numbered(count)) << count;
    Topics expected = numbered(63);
    expected.push_back({});
    EXPECT_EQ(read(helpFileText(numbered(64))), expected);
    const Topics bodies = {{"a", ""}, {"a", "\r\n\r\n"}, {"b", "x\r\n"}, {"c", "\t- \xB0\xFF"}};
    EXPECT_EQ(read(helpFileText(bodies)), bodies);
}

TEST(HelpFileTest, DamagedTextsGiveWhatTheyHold) {
    struct {
        std::string_view text;
        Topics expected;
    } cases[] = {
        {"", {}},
        {"noise without a mark", {}},
        {"before\xFEOne\xBF\r\n\xBFx\r\n\r\n", {{"One", "x"}}},
        {"\xFE", {{"", ""}}},
        {"\xFEOne", {{"", ""}}},
        {"\xFEOne\xBF", {{"One", ""}}},
        {"\xFEOne\xBF\r\n\xBF\r\n", {{"One", ""}}},
        {"\xFEOne\xBF\r\n\xBFx\r\n\r\n\xFETwo\xC1\r\n\xC1y\r\n\r\n", {{"One", "x"}, {"", ""}}},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(read(text), expected) << testing::PrintToString(text);
}

TEST(HelpFileTest, RandomTextsOfAcceptedCharactersComeBack) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        Topics topics(random() % 63 + 1);
        for (std::size_t n = 0; n < topics.size(); ++n) {
            std::string text;
            for (int i = 0; i < 40; ++i) {
                const char byte = static_cast<char>(random());
                if (byte != StartMark && byte != markOf(n)) text += byte;
            }
            topics[n] = {text.substr(0, 12), text.substr(std::min<std::size_t>(12, text.size()))};
        }
        ASSERT_EQ(read(helpFileText(topics)), topics) << round;
    }
}

TEST(HelpFileTest, TitlesAreSortedWithoutRegardToCaseAndEqualOnesKeepTheirOrder) {
    Topics topics = {{"line", "1"}, {"Lines", "2"}, {"Line", "3"}, {"Arc", "4"}, {"LINE", "5"}};
    sortTopics(topics);
    EXPECT_EQ(topics,
              (Topics{{"Arc", "4"}, {"line", "1"}, {"Line", "3"}, {"LINE", "5"}, {"Lines", "2"}}));
    EXPECT_TRUE(comesBefore("Line\xC3", "Lines\xBF"));
    EXPECT_TRUE(comesBefore("line\xBF", "Line\xC0"));
    EXPECT_FALSE(comesBefore("Line\xC0", "line\xBF"));
    EXPECT_TRUE(comesBefore("", "A\xBF"));
}

TEST(HelpFileTest, WhatATopicCannotHoldIsLeftOutAndTold) {
    struct {
        std::string_view typed;
        std::size_t record;
        std::string text, refused;
    } cases[] = {
        {"a\nb\r\nc\rd\n\ne", 0, "a\r\nb\r\nc\r\nd\r\n\r\ne", ""},
        {"\u00FE \u00E9\t\u20AC", 0, " \xE9\t\x80", "\xFE"},
        {"\u00C0\u00C1\u00C0", 1, "\xC1", "\xC0"},
        {"\u00C0\u00C1\u00C0", 2, "\xC0\xC0", "\xC1"},
        {"a\u03A9b\u03A9", 0, "ab",
         "\x81"
         "ce\x81"
         "a9"},
        {std::string_view("a\0b\x1B", 4), 0, "ab", std::string("\0\x1B", 2)},
    };
    for (const auto& [typed, record, text, refused] : cases) {
        const AcceptedText accepted = acceptedText(typed, markOf(record));
        EXPECT_EQ(accepted.text, text);
        EXPECT_EQ(accepted.refused, refused);
    }
}

}  // namespace
}  // namespace ladrix
