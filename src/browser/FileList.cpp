#include "browser/FileList.h"

#include <algorithm>
#include <compare>
#include <utility>

#include "platform/Encoding.h"

namespace ladrix {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Moves the number that `text` begins with out of it, without its leading zeros.
std::string_view takeNumber(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    std::string_view number = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(number.size());
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

std::strong_ordering compareNumbers(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return a.size() <=> b.size();
    return a <=> b;
}

std::strong_ordering compareNatural(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        std::strong_ordering order = std::strong_ordering::equal;
        if (isDigit(a[0]) && isDigit(b[0])) {
            const std::string_view number = takeNumber(a);
            order = compareNumbers(number, takeNumber(b));
        } else {
            order = static_cast<unsigned char>(a[0]) <=> static_cast<unsigned char>(b[0]);
            a.remove_prefix(1);
            b.remove_prefix(1);
        }
        if (order != std::strong_ordering::equal) return order;
    }
    return a.size() <=> b.size();
}

// By the names themselves where the natural order sees no difference.
bool isBefore(std::strong_ordering natural, std::string_view a, std::string_view b) {
    return natural == std::strong_ordering::equal ? a < b : natural == std::strong_ordering::less;
}

// In lower case, with the letters of Western languages among those that they come from.
std::string sortKey(std::string_view name) {
    constexpr std::string_view From0xE0 = "aaaaaaaceeeeiiiidnooooo\xF7ouuuuyty";
    std::string key = lowerCase(name);
    for (char& c : key) {
        const auto code = static_cast<unsigned char>(c);
        if (code >= 0xE0) c = From0xE0[code - 0xE0u];
        if (code == 0xDF) c = 's';
    }
    return key;
}

struct SortedEntry {
    std::string key;
    FileEntry entry;
};

bool comesBefore(BrowserOrder by, const SortedEntry& a, const SortedEntry& b) {
    if (by == BrowserOrder::Size && a.entry.size != b.entry.size)
        return a.entry.size < b.entry.size;
    if (by == BrowserOrder::Modified && a.entry.modified != b.entry.modified)
        return a.entry.modified < b.entry.modified;
    return isBefore(compareNatural(a.key, b.key), a.entry.name, b.entry.name);
}

// The separator of a root and what stands before it: "/", "C:\".
std::size_t rootLength(const Files& files, std::string_view path) {
    if (path.empty()) return 0;
    if (path[0] == files.separator()) return 1;
    const bool drive = path.size() > 2 && path[1] == ':' && path[2] == files.separator();
    return drive ? 3 : 0;
}

}  // namespace

bool naturalLess(std::string_view a, std::string_view b) {
    return isBefore(compareNatural(sortKey(a), sortKey(b)), a, b);
}

bool matchesFilter(std::string_view name, std::string_view filter) {
    while (!filter.empty()) {
        const std::size_t end = std::min(filter.find(';'), filter.size());
        std::string_view ending = filter.substr(0, end);
        filter.remove_prefix(std::min(end + 1, filter.size()));
        if (ending.starts_with('*')) ending.remove_prefix(1);
        if (name.size() < ending.size()) continue;
        if (equalIgnoringCase(name.substr(name.size() - ending.size()), ending)) return true;
    }
    return false;
}

std::vector<FileEntry> listFolder(Files& files, const std::string& folder, std::string_view filter,
                                  const Sorting& sorting) {
    std::vector<FileEntry> entries = files.list(folder);
    std::erase_if(entries, [&](const FileEntry& entry) {
        return entry.isHidden || (!entry.isFolder && !matchesFilter(entry.name, filter));
    });
    sortEntries(entries, sorting);
    return entries;
}

void sortEntries(std::vector<FileEntry>& entries, const Sorting& sorting) {
    // The keys are made once: thousands of names are compared many times.
    std::vector<SortedEntry> sorted;
    sorted.reserve(entries.size());
    for (FileEntry& entry : entries)
        sorted.push_back({sortKey(entry.name), std::move(entry)});
    std::sort(sorted.begin(), sorted.end(), [&](const SortedEntry& a, const SortedEntry& b) {
        if (a.entry.isFolder != b.entry.isFolder) return a.entry.isFolder;
        return sorting.descending ? comesBefore(sorting.order, b, a)
                                  : comesBefore(sorting.order, a, b);
    });
    std::transform(sorted.begin(), sorted.end(), entries.begin(),
                   [](SortedEntry& from) { return std::move(from.entry); });
}

std::string resolvedPath(const Files& files, const std::string& folder, std::string_view typed) {
    const char separator = files.separator();
    std::string whole{typed};
    if (rootLength(files, typed) == 0) whole = withSeparator(files, folder) + whole;
    const std::size_t root = rootLength(files, whole);
    std::vector<std::string_view> parts;
    for (std::string_view rest = std::string_view(whole).substr(root); !rest.empty();) {
        const std::size_t end = std::min(rest.find(separator), rest.size());
        const std::string_view part = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (part == ".." && !parts.empty()) parts.pop_back();
        if (!part.empty() && part != "." && part != "..") parts.push_back(part);
    }
    std::string path = whole.substr(0, root);
    for (const std::string_view part : parts)
        path.append(part) += separator;
    if (!parts.empty()) path.pop_back();
    return path;
}

std::string parentFolder(const Files& files, const std::string& folder) {
    return withSeparator(files, resolvedPath(files, folder, ".."));
}

}  // namespace ladrix
