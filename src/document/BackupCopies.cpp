#include "document/BackupCopies.h"

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace ladrix {

namespace {

constexpr std::string_view BackupsName = "Backups";
constexpr std::string_view StampPattern = "0000-00-00 00-00-00";
constexpr std::size_t LongestName = 80;  // of a folder, with room for what follows the name

std::string checkNumber(std::string_view text) {
    std::uint32_t sum = 2166136261u;
    for (const char c : text)
        sum = (sum ^ static_cast<unsigned char>(c)) * 16777619u;
    std::string digits;
    for (int shift = 28; shift >= 0; shift -= 4)
        digits += "0123456789abcdef"[sum >> shift & 15];
    return digits;
}

// A character that has no byte of its own is three: none is cut in two.
std::string_view shortName(std::string_view name) {
    if (name.size() <= LongestName) return name;
    const std::size_t escape = name.substr(0, LongestName).rfind('\x81');
    const bool cut = escape != std::string_view::npos && escape + 3 > LongestName;
    return name.substr(0, cut ? escape : LongestName);
}

std::string stampOf(FileTime time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    char stamp[StampPattern.size() + 1] = {};
    std::strftime(stamp, sizeof stamp, "%Y-%m-%d %H-%M-%S", std::localtime(&seconds));
    return stamp;
}

bool isStamped(std::string_view name) {
    if (name.size() < StampPattern.size()) return false;
    const auto fits = [](char c, char pattern) {
        return pattern == '0' ? c >= '0' && c <= '9' : c == pattern;
    };
    return std::equal(StampPattern.begin(), StampPattern.end(), name.begin(),
                      [&](char pattern, char c) { return fits(c, pattern); });
}

// The copies, oldest first. What else lies there is nobody's to count or to remove.
std::vector<FileEntry> copiesIn(Files& files, const std::string& backups) {
    std::vector<FileEntry> copies = files.list(backups);
    std::erase_if(copies,
                  [](const FileEntry& entry) { return entry.isFolder || !isStamped(entry.name); });
    std::sort(copies.begin(), copies.end(), [](const FileEntry& a, const FileEntry& b) {
        return std::tie(a.modified, a.name) < std::tie(b.modified, b.name);
    });
    return copies;
}

// `folder` ends in the separator; the one above it exists.
void makeMissing(Files& files, const std::string& folder) {
    const std::string path = folder.substr(0, folder.size() - 1);
    const auto status = files.status(path);
    if (!status || !status->isFolder) files.makeFolder(path);
}

std::string textForToday(const FileText& former) {
    DrawingParts parts = splitFile(former.content, former.modified);
    if (parts == splitFile(former.content, std::chrono::system_clock::now())) return former.content;
    Drawing whole;
    takeParts(whole, std::move(parts));
    return fileText(whole);
}

bool holds(Files& files, const std::string& path, std::string_view text) {
    try {
        return files.read(path) == text;
    } catch (const Failure&) {
        return false;
    }
}

std::string freeName(Files& files, const std::string& backups, std::string_view extension) {
    const std::string stamp = stampOf(std::chrono::system_clock::now());
    std::string name = stamp + std::string(extension);
    for (int number = 2; files.status(backups + name); ++number)
        name = stamp + " (" + std::to_string(number) + ')' + std::string(extension);
    return name;
}

// One copy too many harms nobody: what cannot be removed stays until the next save.
void removeOldest(Files& files, const std::string& backups) {
    try {
        const std::vector<FileEntry> copies = copiesIn(files, backups);
        for (std::size_t i = 0; i + BackupsKept < copies.size(); ++i)
            files.remove(backups + copies[i].name);
    } catch (const Failure&) {
    }
}

}  // namespace

std::string backupFolder(const Files& files, const std::string& basePath, const std::string& folder,
                         const std::string& name) {
    const char separator = files.separator();
    std::string path = basePath + std::string(BackupsName) + separator;
    path.append(shortName(name)).append(" (").append(checkNumber(folder + name)).append(")");
    return path + separator;
}

bool hasBackups(Files& files, const std::string& backups) {
    try {
        return !copiesIn(files, backups).empty();
    } catch (const Failure&) {
        return false;
    }
}

void keepBackup(Files& files, const std::string& backups, const FileText& former, bool isTemplate) {
    const std::size_t parent = backups.rfind(files.separator(), backups.size() - 2);
    makeMissing(files, backups.substr(0, parent + 1));
    makeMissing(files, backups);
    const std::string text = textForToday(former);
    const std::vector<FileEntry> copies = copiesIn(files, backups);
    if (!copies.empty() && holds(files, backups + copies.back().name, text)) return;
    files.replace(backups + freeName(files, backups, isTemplate ? ".tpl" : ".els"), text);
    removeOldest(files, backups);
}

}  // namespace ladrix
