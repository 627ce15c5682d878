#include "platform/Files.h"

#include <algorithm>

#include "platform/Encoding.h"

namespace ladrix {

namespace {

bool hasEntry(Files& files, const std::string& folder, std::string_view name, bool isFolder) {
    const std::vector<FileEntry> entries = files.list(folder);
    return std::any_of(entries.begin(), entries.end(), [&](const FileEntry& entry) {
        return entry.isFolder == isFolder && equalIgnoringCase(entry.name, name);
    });
}

// Of the dot before the extension; npos if there is none. A dot in front makes a hidden file, not
// an extension.
size_t extensionDot(std::string_view name) {
    const size_t dot = name.rfind('.');
    return dot == 0 ? std::string_view::npos : dot;
}

}  // namespace

std::vector<std::string> Files::fileNames(const std::string& folder) {
    std::vector<std::string> names;
    for (FileEntry& entry : list(folder))
        if (!entry.isFolder) names.push_back(std::move(entry.name));
    return names;
}

bool FileExists(Files& files, const std::string& folder, std::string_view name) {
    try {
        return hasEntry(files, folder, name, false);
    } catch (const Failure& failure) {
        if (failure.number == failure::PathNotFound) return false;
        throw;
    }
}

bool FolderExists(Files& files, const std::string& parent, std::string_view name) {
    try {
        return hasEntry(files, parent, name, true);
    } catch (const Failure& failure) {
        // The parent is read as a whole, so that no entry is being looked at when it fails.
        files.ReportError("Error encountered during Folder check. Folder Check: MySearchPath = " +
                              parent + ": MyFolderName = " + std::string(name) + ": MyTestName = ",
                          failure);
        return false;
    }
}

std::string pathIn(const std::string& folder, std::string_view name) {
    if (folder.empty())
        throw Failure{failure::PathNotFound, std::string(name) + ": There is no folder for it"};
    return folder + std::string(name);
}

std::string withSeparator(const Files& files, std::string folder) {
    const char separator = files.separator();
    while (!folder.empty() && folder.back() == separator)
        folder.pop_back();
    folder += separator;
    return folder;
}

bool isLegalFileName(std::string_view name) {
    return isBareName(name) && name.find_first_of("*?<>|") == std::string_view::npos;
}

bool isBareName(std::string_view name) {
    if (name.empty() || name == "." || name == "..") return false;
    return std::none_of(name.begin(), name.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 32 || byte == 127 || c == '/' || c == '\\' || c == ':';
    });
}

std::string_view nameWithoutExtension(std::string_view name) {
    return name.substr(0, extensionDot(name));
}

std::string extensionOf(std::string_view name) {
    const size_t dot = extensionDot(name);
    return dot == std::string_view::npos ? std::string() : lowerCase(name.substr(dot));
}

}  // namespace ladrix
