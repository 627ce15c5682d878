#include "canvas/history/UndoDifference.h"

#include <algorithm>

namespace ladrix {

namespace {

constexpr char SameLine = '\xFF';
constexpr std::size_t LongestStart = 254, LongestEnd = 255, LongestMiddle = 127;
constexpr unsigned Packed = 128;                              // added to the length of a middle
constexpr std::string_view Packable = "0123456789.,-+E\xFF";  // of numbers and between them

unsigned valueOf(char byte) {
    return static_cast<unsigned char>(byte);
}

bool canBePacked(std::string_view middle) {
    return middle.find_first_not_of(Packable) == std::string_view::npos;
}

void appendPacked(std::string& out, std::string_view middle) {
    for (std::size_t i = 0; i < middle.size(); i += 2) {
        const std::size_t first = Packable.find(middle[i]);
        const std::size_t second = i + 1 < middle.size() ? Packable.find(middle[i + 1]) : 0;
        out += static_cast<char>(first * Packable.size() + second);
    }
}

void appendUnpacked(std::string& out, std::string_view packed, std::size_t length) {
    for (std::size_t i = 0; i < length; ++i) {
        const unsigned pair = valueOf(packed[i / 2]);
        out += Packable[i % 2 == 0 ? pair / Packable.size() : pair % Packable.size()];
    }
}

// False if the middle is too long.
bool appendLine(std::string& out, std::string_view base, std::string_view line) {
    if (line == base) {
        out += SameLine;
        return true;
    }
    const std::size_t shared = std::min(base.size(), line.size());
    std::size_t start = 0, end = 0;
    while (start < std::min(shared, LongestStart) && line[start] == base[start])
        ++start;
    while (end < std::min(shared - start, LongestEnd) &&
           line[line.size() - 1 - end] == base[base.size() - 1 - end])
        ++end;
    const std::string_view middle = line.substr(start, line.size() - start - end);
    if (middle.size() > LongestMiddle) return false;
    const bool packed = canBePacked(middle);
    out += static_cast<char>(start);
    out += static_cast<char>(end);
    out += static_cast<char>(middle.size() + (packed ? Packed : 0));
    if (packed)
        appendPacked(out, middle);
    else
        out += middle;
    return true;
}

}  // namespace

std::size_t countLines(std::string_view text) {
    const auto ends = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    return ends + (text.empty() || text.ends_with('\n') ? 0 : 1);
}

std::string_view firstLine(std::string_view text) {
    const std::size_t end = text.find('\n');
    return end == std::string_view::npos ? text : text.substr(0, end + 1);
}

std::optional<std::string> differenceTo(std::string_view base, std::string_view text) {
    std::string difference;
    while (!base.empty() && !text.empty()) {
        const std::string_view baseLine = firstLine(base), line = firstLine(text);
        if (!appendLine(difference, baseLine, line)) return std::nullopt;
        base.remove_prefix(baseLine.size());
        text.remove_prefix(line.size());
    }
    if (!base.empty() || !text.empty()) return std::nullopt;
    return difference;
}

void appendChanged(std::string& out, std::string_view base, std::string_view difference) {
    while (!difference.empty()) {
        const std::string_view line = firstLine(base);
        base.remove_prefix(line.size());
        if (difference.front() == SameLine) {
            out += line;
            difference.remove_prefix(1);
            continue;
        }
        const std::size_t start = valueOf(difference[0]), end = valueOf(difference[1]);
        const std::size_t length = valueOf(difference[2]) % Packed;
        const bool packed = valueOf(difference[2]) >= Packed;
        difference.remove_prefix(3);
        const std::string_view middle = difference.substr(0, packed ? (length + 1) / 2 : length);
        difference.remove_prefix(middle.size());
        out += line.substr(0, start);
        if (packed)
            appendUnpacked(out, middle, length);
        else
            out += middle;
        out += line.substr(line.size() - end);
    }
}

}  // namespace ladrix
