#include "platform/Numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

#include "platform/Encoding.h"

namespace ladrix {

namespace {

constexpr int Digits = 7;
constexpr double SevenDigits = 1e7;            // the first whole number with more
constexpr double SmallestExact = 1e-6;         // see sevenDigits
constexpr double SmallestPlain = 1e-7;         // text has an exponent below it
constexpr double ExponentFrom = 1.0000005e15;  // from here on; what is less rounds to 1e15

constexpr std::array<double, 17> PowersOfTen = {1e0, 1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7, 1e8,
                                                1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16};

// magnitude = digits / 10^decimals; `decimals` is negative for a large number.
struct Decimal {
    std::uint32_t digits = 0;
    int decimals = 0;
};

void dropTrailingZeros(Decimal& number) {
    if (number.digits % 10'000 == 0) number = {number.digits / 10'000, number.decimals - 4};
    if (number.digits % 100 == 0) number = {number.digits / 100, number.decimals - 2};
    if (number.digits % 10 == 0) number = {number.digits / 10, number.decimals - 1};
}

// For SmallestExact <= magnitude < SevenDigits. A Single has 24 bits and 10^12 an odd part of 28,
// so that the product is exact in a double and its rounding is the true seven-digit rounding.
Decimal sevenDigits(double magnitude) {
    int decimals = Digits - 1;
    while (decimals > 0 && magnitude >= PowersOfTen[static_cast<size_t>(Digits - decimals)]) {
        --decimals;
    }
    while (magnitude * PowersOfTen[static_cast<size_t>(decimals)] < SevenDigits / 10)
        ++decimals;
    const double scaled = magnitude * PowersOfTen[static_cast<size_t>(decimals)];
    Decimal number{static_cast<std::uint32_t>(std::nearbyint(scaled)), decimals};
    dropTrailingZeros(number);
    return number;
}

// For SevenDigits <= magnitude < ExponentFrom: a whole number in a double, halves to even.
Decimal roundedWhole(double magnitude) {
    int dropped = 1;
    while (magnitude >= PowersOfTen[static_cast<size_t>(Digits + dropped)])
        ++dropped;
    const auto whole = static_cast<std::uint64_t>(magnitude);
    const auto unit = static_cast<std::uint64_t>(PowersOfTen[static_cast<size_t>(dropped)]);
    std::uint64_t digits = whole / unit;
    const std::uint64_t rest = whole % unit;
    if (rest > unit / 2 || (rest == unit / 2 && digits % 2 == 1)) ++digits;
    return {static_cast<std::uint32_t>(digits), -dropped};
}

// From the slow but general conversion, for what is very small or very large. `exponent` is that of
// the first digit.
Decimal anySevenDigits(double magnitude, int& exponent) {
    std::array<char, 32> text{};  // d.dddddde[+-]dd
    const auto end = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                   std::chars_format::scientific, Digits - 1)
                         .ptr;
    Decimal number{0, Digits - 1};
    const char* at = text.data();
    for (; *at != 'e'; ++at) {
        if (*at != '.') number.digits = number.digits * 10 + static_cast<std::uint32_t>(*at - '0');
    }
    ++at;
    if (*at == '+') ++at;
    std::from_chars(at, end, exponent);
    dropTrailingZeros(number);
    return number;
}

void appendDecimal(std::string& out, Decimal number, char decimalMark) {
    std::array<char, 32> text{};
    char* const end = text.data() + text.size();
    char* at = end;
    std::uint32_t rest = number.digits;
    for (int i = number.decimals; i < 0; ++i)
        *--at = '0';
    if (number.decimals > 0) {
        for (int i = 0; i < number.decimals; ++i, rest /= 10) {
            *--at = static_cast<char>('0' + rest % 10);
        }
        *--at = decimalMark;
    }
    do {
        *--at = static_cast<char>('0' + rest % 10);
        rest /= 10;
    } while (rest > 0);
    out.append(at, end);
}

void appendWithExponent(std::string& out, Decimal number, int exponent, char decimalMark) {
    appendDecimal(out, number, decimalMark);
    out += 'E';
    out += exponent < 0 ? '-' : '+';
    const int size = std::abs(exponent);
    if (size < 10) out += '0';
    appendLong(out, size);
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view withoutBlanks(std::string_view text) {
    const size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// A number in its parts, to judge what the fast conversion would not take.
struct Parts {
    bool negative = false;
    bool isNumber = false;
    bool isZero = true;
    int power = 0;          // of ten, of the first digit that is not zero
    std::string canonical;  // without "+", with a full stop
};

Parts partsOf(std::string_view text) {
    Parts parts;
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        parts.negative = text.front() == '-';
        if (parts.negative) parts.canonical += '-';
        text.remove_prefix(1);
    }
    bool hasDigits = false, afterMark = false;
    int beforeMark = 0, leadingZeros = 0;
    size_t at = 0;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if ((c == '.' || c == ',') && !afterMark) {
            afterMark = true;
            parts.canonical += '.';
            continue;
        }
        if (!isDigit(c)) break;
        hasDigits = true;
        parts.canonical += c;
        if (parts.isZero && c != '0') parts.isZero = false;
        if (!afterMark && !parts.isZero) ++beforeMark;
        if (afterMark && parts.isZero) ++leadingZeros;
    }
    if (!hasDigits) return parts;
    int exponent = 0;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        parts.canonical += text.substr(at++);
        const bool small = at < text.size() && text[at] == '-';
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
        const char* const end = text.data() + text.size();
        const auto [ptr, error] = std::from_chars(text.data() + at, end, exponent);
        if (error == std::errc::invalid_argument || text.substr(at).front() == '-') return parts;
        constexpr int Beyond = 1'000'000'000;
        if (error == std::errc::result_out_of_range || exponent > Beyond) exponent = Beyond;
        if (small) exponent = -exponent;
        at = static_cast<size_t>(ptr - text.data());
    }
    parts.isNumber = at == text.size();
    parts.power = (beforeMark > 0 ? beforeMark - 1 : -leadingZeros - 1) + exponent;
    return parts;
}

template <class Real>
struct Parsed {
    Real value = 0;
    int failure = 0;  // 0 if it is a number that fits
};

template <class Real>
Parsed<Real> parseUnusual(std::string_view text) {
    const Parts parts = partsOf(text);
    if (!parts.isNumber) return {0, failure::TypeMismatch};
    Real value = 0;
    const char* const begin = parts.canonical.data();
    const auto error = std::from_chars(begin, begin + parts.canonical.size(), value).ec;
    if (error == std::errc()) return {value, 0};
    if (parts.isZero || parts.power < 0) return {0, 0};
    return {0, failure::Overflow};
}

// A number as appendSingle writes it: at most seven digits and a mark. They and a small power of
// ten are exact in a Single, so that one division rounds it rightly.
std::optional<Single> plainSingle(std::string_view text) {
    const bool negative = !text.empty() && text.front() == '-';
    if (negative) text.remove_prefix(1);
    if (text.empty() || text.size() > Digits + 1) return std::nullopt;
    std::int32_t digits = 0;
    size_t mark = text.size();
    for (size_t i = 0; i < text.size(); ++i) {
        if (isDigit(text[i])) {
            digits = digits * 10 + (text[i] - '0');
        } else if ((text[i] == '.' || text[i] == ',') && mark == text.size()) {
            mark = i;
        } else {
            return std::nullopt;
        }
    }
    const bool hasMark = mark < text.size();
    if (hasMark && text.size() == 1) return std::nullopt;
    auto value = static_cast<Single>(digits);
    if (hasMark) value /= static_cast<Single>(PowersOfTen[text.size() - mark - 1]);
    return negative ? -value : value;
}

// Of a whole text. What the fast conversion refuses is looked at again in its parts.
template <class Real>
Parsed<Real> parse(std::string_view text) {
    text = withoutBlanks(text);
    Real value = 0;
    const char* const end = text.data() + text.size();
    const auto [ptr, error] = std::from_chars(text.data(), end, value);
    if (error == std::errc() && ptr == end && std::isfinite(value)) return {value, 0};
    return parseUnusual<Real>(text);
}

[[noreturn]] void refuse(int number) {
    throw Failure{number, number == failure::Overflow ? "Overflow" : "Type mismatch"};
}

template <class Whole>
Whole toWhole(std::string_view text) {
    const char* const end = text.data() + text.size();
    Whole whole = 0;
    const auto [ptr, error] = std::from_chars(text.data(), end, whole);
    if (error == std::errc() && ptr == end) return whole;

    const Parsed<double> number = parse<double>(text);
    if (number.failure) refuse(number.failure);
    const double rounded = std::nearbyint(number.value);
    if (rounded < std::numeric_limits<Whole>::min() ||
        rounded > std::numeric_limits<Whole>::max()) {
        refuse(failure::Overflow);
    }
    return static_cast<Whole>(rounded);
}

}  // namespace

void appendSingle(std::string& out, Single value, char decimalMark) {
    if (!std::isfinite(value)) refuse(failure::Overflow);
    if (value == 0) {
        out += '0';
        return;
    }
    if (value < 0) out += '-';
    const double magnitude = std::fabs(static_cast<double>(value));
    if (magnitude >= SmallestExact && magnitude < SevenDigits) {
        return appendDecimal(out, sevenDigits(magnitude), decimalMark);
    }
    if (magnitude >= SevenDigits && magnitude < ExponentFrom) {
        return appendDecimal(out, roundedWhole(magnitude), decimalMark);
    }
    int exponent = 0;
    Decimal number = anySevenDigits(magnitude, exponent);
    if (magnitude < SmallestExact && magnitude >= SmallestPlain) {
        number.decimals -= exponent;
        return appendDecimal(out, number, decimalMark);
    }
    appendWithExponent(out, number, exponent, decimalMark);
}

std::string singleText(Single value, char decimalMark) {
    std::string text;
    appendSingle(text, value, decimalMark);
    return text;
}

void appendLong(std::string& out, Long value) {
    std::array<char, 12> text{};
    out.append(text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr);
}

std::string longText(Long value) {
    std::string text;
    appendLong(text, value);
    return text;
}

Single toSingle(std::string_view text) {
    if (const std::optional<Single> plain = plainSingle(text)) return *plain;
    const Parsed<Single> number = parse<Single>(text);
    if (number.failure) refuse(number.failure);
    return number.value;
}

Long toLong(std::string_view text) {
    return toWhole<Long>(text);
}

Short toShort(std::string_view text) {
    return toWhole<Short>(text);
}

bool toBoolean(std::string_view text) {
    const std::string_view word = withoutBlanks(text);
    if (equalIgnoringCase(word, "True")) return true;
    if (equalIgnoringCase(word, "False")) return false;
    return toSingle(word) != 0;
}

std::optional<Single> typedNumber(std::string_view text) {
    const Parsed<Single> number = parse<Single>(text);
    if (number.failure) return std::nullopt;
    return number.value;
}

std::string degreesText(Single radians, char decimalMark) {
    if (!std::isfinite(radians)) refuse(failure::Overflow);
    const double tenths = std::round(static_cast<double>(radians) * 180 / Pi * 10);
    if (std::fabs(tenths) >= SevenDigits * 10)
        return singleText(static_cast<Single>(tenths / 10), decimalMark);
    const auto whole = static_cast<Long>(std::fabs(tenths));
    std::string text = tenths < 0 ? "-" : "";
    if (whole >= 10) appendLong(text, whole / 10);
    text += decimalMark;
    appendLong(text, whole % 10);
    return text;
}

std::string coordinateText(Single value, char decimalMark) {
    const double tenThousandths = std::nearbyint(static_cast<double>(value) * 1e4);
    return singleText(static_cast<Single>(tenThousandths / 1e4), decimalMark);
}

}  // namespace ladrix
