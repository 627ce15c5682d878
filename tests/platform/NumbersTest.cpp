#include "platform/Numbers.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "support/Failures.h"

namespace ladrix::test {
namespace {

// Seven digits without an exponent, by the C library's exact conversion.
std::string expectedText(Single value) {
    char scientific[32];
    std::snprintf(scientific, sizeof scientific, "%.6e", static_cast<double>(value));
    const int exponent = std::atoi(std::string(scientific).substr(9 + (value < 0)).c_str());
    char plain[64];
    if (exponent >= 6) {
        std::snprintf(plain, sizeof plain, "%.0f", std::strtod(scientific, nullptr));
        return plain;
    }
    std::snprintf(plain, sizeof plain, "%.*f", 6 - exponent, static_cast<double>(value));
    std::string text = plain;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

void checkWritten(Single value) {
    const std::string text = singleText(value, '.');
    const double magnitude = std::fabs(static_cast<double>(value));
    ASSERT_LE(std::fabs(std::strtod(text.c_str(), nullptr) - static_cast<double>(value)),
              magnitude * 0.500001e-6 + 1e-45)
        << text;
    const Single again = toSingle(text);
    ASSERT_EQ(again, std::strtof(text.c_str(), nullptr)) << text;
    if (magnitude >= 1e-7 && magnitude < 1e15) {
        ASSERT_EQ(text, expectedText(value)) << std::hexfloat << value;
        ASSERT_EQ(singleText(again, '.'), text) << "written, read and written again";
    }
    ASSERT_EQ(toSingle(singleText(value, ',')), again) << text;
}

TEST(Numbers, SinglesOfEverySizeAreWrittenWithSevenRightDigitsAndComeBack) {
    constexpr std::uint64_t step = 21'011;  // prime: all exponents, all low bits
    std::vector<Single> values{std::numeric_limits<Single>::max()};
    for (std::uint64_t bits = 0; bits <= 0xFFFFFFFFu; bits += step)
        values.push_back(std::bit_cast<Single>(static_cast<std::uint32_t>(bits)));
    // The neighbours of powers and of snapped coordinates.
    for (int power = -45; power <= 38; ++power)
        values.push_back(std::strtof(("1e" + std::to_string(power)).c_str(), nullptr));
    for (int power = -149; power <= 127; ++power)
        values.push_back(std::ldexp(1.0f, power));
    for (int i = 1; i < 400'000; i += 37)
        values.push_back(static_cast<Single>(i) / 10'000);
    for (const Single value : values)
        for (const Single near : {value, std::nextafter(value, 0.0f), -value}) {
            if (!std::isfinite(near)) continue;
            checkWritten(near);
            if (HasFatalFailure()) return;
        }
}

TEST(Numbers, TheWrittenFormIsPlain) {
    const std::pair<Single, const char*> cases[] = {
        {0.0f, "0"},
        {-0.0f, "0"},
        {1.25f, "1.25"},
        {-0.5f, "-0.5"},
        {4.0f, "4"},
        {1.0f / 3, "0.3333333"},
        {1.570796f, "1.570796"},
        {100.0f, "100"},
        {123456.7f, "123456.7"},
        {1e-7f, "0.0000001"},
        {16777216, "16777220"},
        {9.99999e14f, "999999000000000"},
        {1.25e15f, "1.25E+15"},
        {1.5e-8f, "1.5E-08"},
        {-2.5e30f, "-2.5E+30"},
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(singleText(value, '.'), text);
    EXPECT_EQ(singleText(-1.25f, ','), "-1,25");
    std::string record = "X|";
    appendSingle(record, 2.5f, '.');
    appendLong(record, std::numeric_limits<Long>::min());
    EXPECT_EQ(record, "X|2.5-2147483648");
    for (const Single value : {std::numeric_limits<Single>::infinity(), std::nanf("")}) {
        EXPECT_EQ(failureNumber([&] { singleText(value, '.'); }), failure::Overflow);
        EXPECT_EQ(failureNumber([&] { degreesText(value, '.'); }), failure::Overflow);
        EXPECT_EQ(failureNumber([&] { coordinateText(value, '.'); }), failure::Overflow);
    }
}

TEST(Numbers, AnyDecimalIsReadAsTheNearestSingle) {
    std::mt19937 random(7);
    for (int i = 0; i < 200'000; ++i) {
        std::string text = random() % 2 ? "-" : "";
        const size_t digits = 1 + random() % 12;
        const size_t mark = random() % (digits + 4);
        for (size_t at = 0; at < digits; ++at) {
            if (at == mark) text += '.';
            text += static_cast<char>('0' + random() % 10);
        }
        const Single expected = std::strtof(text.c_str(), nullptr);
        ASSERT_EQ(toSingle(text), expected) << text;
        const size_t stop = text.find('.');
        if (stop != std::string::npos) text[stop] = ',';
        ASSERT_EQ(toSingle(text), expected) << text;
        ASSERT_EQ(typedNumber(text), expected) << text;
    }
}

TEST(Numbers, UnusualNumbersAreUnderstood) {
    const std::pair<std::string, Single> cases[] = {
        {"+5", 5.0f},
        {"5.", 5.0f},
        {"-.5", -0.5f},
        {",5", 0.5f},
        {" 7\t", 7.0f},
        {"1E3", 1000.0f},
        {"+1,5e+2", 150.0f},
        {"25e-1", 2.5f},
        {"0.30000000000000000000000000000000000001", 0.3f},
        {"00000000000000000000000000000012", 12.0f},
        {"1e-60", 0.0f},
        {"-1e-400", 0.0f},
        {"0e999999999999", 0.0f},
        {"0." + std::string(500, '0') + "1", 0.0f},
        {"1e-99999999999", 0.0f},
        {"1e-40", 1e-40f},
    };
    for (const auto& [text, value] : cases)
        EXPECT_EQ(toSingle(text), value) << text;
}

TEST(Numbers, WhatIsNoNumberOrTooLargeIsRefused) {
    for (const char* text :
         {"",      " ",     ".",     ",",     "-",   "+",        "-.", "--1",  "+-1",   "1-",
          "1 2",   "1.2.3", "1,2.3", "1,2,3", "abc", "e5",       "1e", "1e+",  "1e-+5", "1e--5",
          "1e5.5", "0x10",  "inf",   "-inf",  "nan", "infinity", "1f", "\xFF", "Left"}) {
        EXPECT_EQ(failureNumber([&] { toSingle(text); }), failure::TypeMismatch) << text;
        EXPECT_EQ(failureNumber([&] { toLong(text); }), failure::TypeMismatch) << text;
        EXPECT_EQ(failureNumber([&] { toBoolean(text); }), failure::TypeMismatch) << text;
        EXPECT_EQ(typedNumber(text), std::nullopt) << text;
    }
    for (const std::string& text : {std::string("1e39"), std::string("-3.5e38"),
                                    std::string("1e999999999999"), std::string(400, '9')}) {
        EXPECT_EQ(failureNumber([&] { toSingle(text); }), failure::Overflow) << text;
        EXPECT_EQ(failureNumber([&] { toShort(text); }), failure::Overflow) << text;
        EXPECT_EQ(typedNumber(text), std::nullopt) << text;
    }
    EXPECT_EQ(toSingle(std::string_view("12\0", 2)), 12.0f);
    EXPECT_EQ(failureNumber([] { toSingle(std::string_view("12\0", 3)); }), failure::TypeMismatch);
}

TEST(Numbers, WholeNumbersRoundHalvesToEvenAndMustFit) {
    EXPECT_EQ(toLong("2.5"), 2);
    EXPECT_EQ(toLong("3,5"), 4);
    EXPECT_EQ(toLong("-2.5"), -2);
    EXPECT_EQ(toLong(" 2.50001 "), 3);
    EXPECT_EQ(toLong("16777217"), 16777217) << "more digits than a Single has";
    EXPECT_EQ(toLong("16777217.0"), 16777217);
    EXPECT_EQ(toLong("+7"), 7);
    EXPECT_EQ(toLong("1e3"), 1000);
    EXPECT_EQ(toLong("2147483647"), 2147483647);
    EXPECT_EQ(toLong("-2147483648.5"), std::numeric_limits<Long>::min());
    EXPECT_EQ(toShort("32767.4"), 32767);
    EXPECT_EQ(toShort("-32768"), -32768);
    for (const char* text : {"2147483648", "2147483647.5", "-2147483649", "1e300"}) {
        EXPECT_EQ(failureNumber([&] { toLong(text); }), failure::Overflow) << text;
    }
    for (const char* text : {"32767.5", "32768", "-32769", "70000"}) {
        EXPECT_EQ(failureNumber([&] { toShort(text); }), failure::Overflow) << text;
    }
}

TEST(Numbers, BooleansAreWordsInAnyCaseOrNumbers) {
    for (const char* text : {"True", "true", " TRUE ", "-1", "0.1", "2"}) {
        EXPECT_TRUE(toBoolean(text)) << text;
    }
    for (const char* text : {"False", "fALSE", "0", "0,0", "-0"}) {
        EXPECT_FALSE(toBoolean(text)) << text;
    }
}

TEST(Numbers, CaptionsOfAnglesAndCoordinatesAreRounded) {
    const std::pair<double, const char*> degrees[] = {
        {90, "90.0"},  {0.5, ".5"},    {0, ".0"},       {359.96, "360.0"},
        {-0.04, ".0"}, {-90, "-90.0"}, {0.25001, ".3"}, {12.345, "12.3"},
    };
    for (const auto& [angle, text] : degrees) {
        EXPECT_EQ(degreesText(static_cast<Single>(angle * Pi / 180), '.'), text) << angle;
    }
    EXPECT_EQ(degreesText(static_cast<Single>(Pi), ','), "180,0");

    EXPECT_EQ(coordinateText(1.23456f, '.'), "1.2346");
    EXPECT_EQ(coordinateText(2.0000001f, '.'), "2");
    EXPECT_EQ(coordinateText(-0.00004f, '.'), "0");
    EXPECT_EQ(coordinateText(0.0625f, ','), "0,0625");
    EXPECT_EQ(coordinateText(0.00005f, '.'), "0") << "just below the half as a Single";
    EXPECT_EQ(coordinateText(1234.5678f, '.'), "1234.568");
}

}  // namespace
}  // namespace ladrix::test
