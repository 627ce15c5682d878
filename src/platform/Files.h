// The file system as the core sees it. Paths are core text (see Encoding.h) with the platform's
// separator; a folder variable ends in it. Every step that fails throws a Failure whose text holds
// the system's own reason.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Types.h"

namespace ladrix {

using FileTime = std::chrono::system_clock::time_point;

struct FileEntry {
    std::string name;         // no folder
    std::uintmax_t size = 0;  // bytes
    FileTime modified;
    bool isFolder = false;
    bool isHidden = false;
};

// A drawing or other document larger than this is refused.
constexpr std::uintmax_t LargestDocument = 64u * 1024 * 1024;

// Whose a folder is: the user's own is no link, belongs to them, and nobody else may write to it.
enum class FolderOwner { Nobody /* there is nothing of the name */, User, Others };

class Files {
  public:
    virtual ~Files() = default;

    // The shared failure report, for a question that is answered with no where it cannot be
    // answered; set by the program at start.
    std::function<void(std::string_view description, const Failure& failure)> ReportError =
        [](std::string_view, const Failure&) {};

    virtual char separator() const = 0;

    // Files and folders directly in `folder`, hidden ones too, "." and ".." left out, unsorted.
    virtual std::vector<FileEntry> list(const std::string& folder) = 0;

    // nullopt if there is nothing of that name. Follows links. Throws only if it cannot tell.
    virtual std::optional<FileEntry> status(const std::string& path) = 0;

    // The name itself is a symbolic link, wherever it leads. False if there is nothing of that
    // name.
    virtual bool isLink(const std::string& path) = 0;

    // The whole file as bytes. Refuses what is not a regular file, and more than `limit` bytes.
    virtual std::string read(const std::string& path, std::uintmax_t limit = LargestDocument) = 0;

    // Replaces or creates the file so that a crash, a full disk or a kill at any moment leaves the
    // old or the new content whole: written to a temporary beside the target, flushed, renamed.
    // Keeps the mode and a symbolic link; clears a read-only mark first. `ownerOnly` makes the file
    // readable by its owner alone, whatever it was before.
    virtual void replace(const std::string& path, std::string_view content,
                         bool ownerOnly = false) = 0;

    // Adds to the end, creating the file where there is none; clears a read-only mark first.
    // Refuses to follow a link that stands in a folder anyone may write to.
    virtual void append(const std::string& path, std::string_view content) = 0;

    // By the rules of replace.
    virtual void copy(const std::string& from, const std::string& to) = 0;
    // Of a file or a link, which is not followed; a read-only mark does not keep it. A missing file
    // is an error.
    virtual void remove(const std::string& path) = 0;
    // Refuses if there is something of the new name. Flushed as far as the system lets.
    virtual void rename(const std::string& from, const std::string& to) = 0;
    // One level; existing is an error. Flushed with its parent: what is written into it next cannot
    // outlive it. `ownerOnly` lets nobody else in.
    virtual void makeFolder(const std::string& path, bool ownerOnly = false) = 0;
    virtual FolderOwner ownerOf(const std::string& folder) = 0;
    virtual void removeFolder(const std::string& path) = 0;  // an empty one
    virtual bool writable(const std::string& folder) = 0;

    // The names of what `list` tells as files; for a folder of many, since it asks nothing else of
    // each.
    virtual std::vector<std::string> fileNames(const std::string& folder);
};

// A file of this name, ignoring case, is in the folder (hidden files count, folders do not). False
// if there is no such folder; throws where it cannot be read.
bool FileExists(Files& files, const std::string& folder, std::string_view name);

// A sub-folder of this name, ignoring case, is in the parent. A parent that cannot be read is
// reported, and the answer is no.
bool FolderExists(Files& files, const std::string& parent, std::string_view name);

// The file's path. Throws where the folder is not known: a bare name would be a file in whatever
// folder the program was started from.
std::string pathIn(const std::string& folder, std::string_view name);

// `folder` with the separator at its end, and only one.
std::string withSeparator(const Files& files, std::string folder);

// False for an empty name, "..", and one with a character that no file or folder name may hold.
bool isLegalFileName(std::string_view name);

// A name that leads to no other folder or drive: all that a document may store. On a system that
// allows them, it may hold characters that a typed name may not.
bool isBareName(std::string_view name);

// "Demo1" of "Demo1.els"; names without a dot stay.
std::string_view nameWithoutExtension(std::string_view name);
// ".els" of "Demo1.ELS": lower case, with its dot; "" if there is none.
std::string extensionOf(std::string_view name);

}  // namespace ladrix
