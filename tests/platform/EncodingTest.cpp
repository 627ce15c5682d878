#include "platform/Encoding.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace ladrix::test {
namespace {

TEST(Encoding, TheUpperCharactersAreThoseOfWindows1252) {
    EXPECT_EQ(toUtf8("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"), "€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
    EXPECT_EQ(toUtf8("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"), "‘’“”•–—˜™š›œžŸ");
    EXPECT_EQ(toUtf8("\xA0\xA3\xB0\xB5\xC4\xD7\xDF\xE9\xFC\xFF"), "\u00A0£°µÄ×ßéüÿ");
    EXPECT_EQ(fromUtf8("10 kΩ"), "10 k\x81\x63\x65\x81\x61\x39") << "an escape for each byte";
    EXPECT_EQ(fromUtf8("Größe 5 €"),
              "Gr\xF6\xDF"
              "e 5 \x80");
}

TEST(Encoding, EveryByteOfTheCodePageGoesOutAndComesBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        const std::string utf8 = toUtf8(text);
        EXPECT_EQ(toUtf8(fromUtf8(utf8)), utf8) << byte;
        EXPECT_EQ(fromUtf8(utf8), byte == 0x81 ? "\x81"
                                                 "c2\x81"
                                                 "81"
                                               : text)
            << byte;
    }
}

TEST(Encoding, AnyNameThatTheDiskGivesLeadsBackToItself) {
    const std::vector<std::string> pieces = {
        "a",    "c3",       "2f",   "Ж",        "é",        "\xC2\x81",     "\x81",
        "\xC3", "\xE2\x82", "\xFF", "\xC0\xAF", "\xC1\x81", "\xED\xA0\x80", "\xF4\x90\x80\x80"};
    std::mt19937 random(11);
    for (int i = 0; i < 50'000; ++i) {
        std::string name;
        for (auto length = random() % 8; length > 0; --length)
            name += random() % 4 ? pieces[random() % pieces.size()]
                                 : std::string(1, static_cast<char>(random()));
        const std::string text = fromUtf8(name);
        ASSERT_EQ(toUtf8(text), name);
        ASSERT_EQ(text.find('/') == std::string::npos, name.find('/') == std::string::npos);
    }
}

TEST(Encoding, AnEscapeCannotHideASeparatorOrAZeroByte) {
    for (const std::string digits : {"2f", "00", "2e", "7F", "d", ""})
        EXPECT_EQ(toUtf8('\x81' + digits), "\u0081" + digits);
    const std::string capitals =
        "\x81"
        "D0\x81"
        "96";
    EXPECT_EQ(toUtf8(capitals), "Ж") << "capital digits are understood";
}

TEST(Encoding, TypedTextThatWouldBreakARecordIsRefused) {
    EXPECT_EQ(recordText("Motor – 5 °C, ½ €"),
              "Motor \x96 5 \xB0"
              "C, \xBD \x80");
    EXPECT_EQ(recordText(""), "");
    for (const char* typed : {"ÿ", "a\nb", "a\r", "\t", "\x1B", "\x7F", "Ω", "Ж", "\u0081",
                              "\u009D", "\xC3", "\xE9", "😀"}) {
        EXPECT_EQ(recordText(typed), std::nullopt) << typed;
    }
    EXPECT_EQ(recordText(std::string_view("a\0b", 3)), std::nullopt);
}

TEST(Encoding, CaseIsThatOfWindows1252) {
    EXPECT_EQ(lowerCase("DEMO1.ELS \xC4\xD6\xDC\xDE\x8A\x8C\x8E\x9F"),
              "demo1.els \xE4\xF6\xFC\xFE\x9A\x9C\x9E\xFF");
    EXPECT_EQ(lowerCase("\xD7\xDF\xF7@[`{"), "\xD7\xDF\xF7@[`{") << "no letters, or no capitals";
    EXPECT_TRUE(equalIgnoringCase("Sch\xC4lter", "sCH\xE4LTER"));
    EXPECT_FALSE(equalIgnoringCase("\xD7", "\xF7"));
    EXPECT_FALSE(equalIgnoringCase("Demo", "Demo1"));
}

}  // namespace
}  // namespace ladrix::test
