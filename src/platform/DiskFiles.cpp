#include "platform/DiskFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <ctime>
#include <memory>
#include <system_error>
#include <utility>

#include "platform/Encoding.h"

namespace ladrix {

namespace {

constexpr char Separator = '/';
constexpr mode_t Permissions = 0777;
constexpr mode_t PermissionsOfNew = 0666;  // less what the user's umask takes
constexpr mode_t OwnerOnly = 0700;

std::string lastPart(const std::string& path) {
    return path.substr(path.rfind(Separator) + 1);
}

// Of a folder with its separator at the end.
std::string withoutEnd(std::string path) {
    while (path.size() > 1 && path.back() == Separator)
        path.pop_back();
    return path;
}

// What a failure calls the file, or the folder with its separator at the end.
std::string nameOf(const std::string& path) {
    const std::string whole = withoutEnd(path);
    return whole.size() > 1 ? lastPart(whole) : whole;
}

// With the separator at its end; "./" of a bare name.
std::string folderOf(const std::string& path) {
    const size_t end = path.rfind(Separator);
    return end == std::string::npos ? "./" : path.substr(0, end + 1);
}

// What the system calls take. A zero byte would silently cut the path off.
std::string nativePath(const std::string& path) {
    if (path.find('\0') != std::string::npos) {
        throw Failure{failure::PathFileAccess, "File name with a zero byte"};
    }
    return toUtf8(path);
}

bool isFolder(const std::string& native) {
    struct stat info {};
    return stat(native.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

int failureNumber(int error, const std::string& native) {
    switch (error) {
        case ENOSPC:
        case EDQUOT:
            return failure::DiskFull;
        case EACCES:
        case EPERM:
        case EROFS:
            return failure::PermissionDenied;
        case ENOENT:
            return isFolder(folderOf(native)) ? failure::FileNotFound : failure::PathNotFound;
        case ENOTDIR:
            return failure::PathNotFound;
        case EIO:
            return failure::DeviceIO;
        default:
            return failure::PathFileAccess;
    }
}

[[noreturn]] void refuse(const std::string& path, int number, const std::string& reason) {
    throw Failure{number, nameOf(path) + ": " + reason};
}

// `path` is the one that the caller named, whatever file beside it the call was about.
[[noreturn]] void refuse(const std::string& path, int error) {
    refuse(path, failureNumber(error, nativePath(path)),
           fromUtf8(std::generic_category().message(error)));
}

// Of calls that return -1 and may be interrupted.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

// An open file, closed at the end of the scope at the latest; only close() tells a failure.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    // Only while it has none.
    void take(int number) { number_ = number; }

    explicit operator bool() const { return number_ >= 0; }
    int number() const { return number_; }

    // An interrupted close has closed the file.
    bool close() { return ::close(std::exchange(number_, -1)) == 0 || errno == EINTR; }

  private:
    int number_;
};

// Not blocking, so that a FIFO without a writer is refused instead of waited for.
Descriptor openExisting(const std::string& native, int flags) {
    constexpr int always = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    return Descriptor(uninterrupted([&] { return open(native.c_str(), flags | always); }));
}

void requireRegular(const struct stat& info, const std::string& path) {
    if (S_ISDIR(info.st_mode)) refuse(path, EISDIR);
    if (!S_ISREG(info.st_mode)) refuse(path, failure::PathFileAccess, "Not a regular file");
}

struct stat regularFile(const Descriptor& file, const std::string& path) {
    struct stat info {};
    if (fstat(file.number(), &info) != 0) refuse(path, errno);
    requireRegular(info, path);
    return info;
}

void writeAll(const Descriptor& file, std::string_view content, const std::string& path) {
    while (!content.empty()) {
        const ssize_t written =
            uninterrupted([&] { return write(file.number(), content.data(), content.size()); });
        if (written < 0) refuse(path, errno);
        if (written == 0) refuse(path, EIO);
        content.remove_prefix(static_cast<size_t>(written));
    }
}

void flush(const Descriptor& file, const std::string& path) {
    if (uninterrupted([&] { return fsync(file.number()); }) != 0) refuse(path, errno);
}

void closeChecked(Descriptor& file, const std::string& path) {
    if (!file.close()) refuse(path, errno);
}

bool anyoneMayWrite(const std::string& nativeFolder) {
    struct stat info {};
    return stat(nativeFolder.c_str(), &info) == 0 && (info.st_mode & S_IWOTH);
}

enum class Links { All, NoneThatAnyoneCanMake };

// The file that a chain of symbolic links ends at; it need not exist.
std::string linkTarget(std::string native, const std::string& path, Links followed) {
    constexpr int mostLinks = 40;
    for (int links = 0;; ++links) {
        struct stat info {};
        const bool exists = lstat(native.c_str(), &info) == 0;
        // A link that cannot be told from a file must not be replaced by one.
        if (!exists && errno != ENOENT) refuse(path, errno);
        if (!exists || !S_ISLNK(info.st_mode)) return native;
        if (links == mostLinks) refuse(path, ELOOP);
        if (followed == Links::NoneThatAnyoneCanMake && anyoneMayWrite(folderOf(native))) {
            refuse(path, failure::PermissionDenied, "A link in a folder that anyone may write to");
        }
        std::string target(4096, '\0');
        const ssize_t length = readlink(native.c_str(), target.data(), target.size());
        if (length < 0) refuse(path, errno);
        target.resize(static_cast<size_t>(length));
        native = target.starts_with(Separator) ? target : folderOf(native) + target;
    }
}

constexpr std::string_view TemporaryStart = ".ladrix-", TemporaryEnd = ".tmp";

// Of a process of this machine that has ended, and not from just now: another machine that writes
// to the same folder has numbers of its own.
bool isLeftOver(const std::string& name, const struct stat& info) {
    constexpr std::time_t longestWrite = 60;  // seconds
    if (!name.starts_with(TemporaryStart) || !name.ends_with(TemporaryEnd)) return false;
    const auto process = static_cast<pid_t>(std::atol(name.c_str() + TemporaryStart.size()));
    if (process <= 0 || !S_ISREG(info.st_mode)) return false;
    return std::time(nullptr) - info.st_mtim.tv_sec > longestWrite && kill(process, 0) != 0 &&
           errno == ESRCH;
}

using OpenFolder = std::unique_ptr<DIR, int (*)(DIR*)>;

// Empty if it failed.
OpenFolder openFolder(const std::string& native) {
    DIR* open = opendir(native.c_str());
    while (!open && errno == EINTR)
        open = opendir(native.c_str());
    return {open, closedir};
}

// What a killed run could not finish. Where it cannot be removed it harms nobody.
void removeLeftOvers(const std::string& folder) {
    const OpenFolder open = openFolder(folder);
    if (!open) return;
    while (const dirent* const next = readdir(open.get())) {
        struct stat info {};
        if (next->d_name[0] != '.' ||
            fstatat(dirfd(open.get()), next->d_name, &info, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        if (isLeftOver(next->d_name, info)) unlinkat(dirfd(open.get()), next->d_name, 0);
    }
}

// A new file beside the target that becomes the target, or is gone again at the end of the scope.
class Temporary {
  public:
    Temporary(const std::string& target, mode_t mode, const std::string& path) : file(-1) {
        static std::atomic<unsigned> counter = 0;
        constexpr int attempts = 100;
        for (int attempt = 0; attempt < attempts && !file; ++attempt) {
            native_ = folderOf(target) + std::string(TemporaryStart) + std::to_string(getpid()) +
                      '-' + std::to_string(counter++) + std::string(TemporaryEnd);
            file.take(uninterrupted([&] {
                return open(native_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
            }));
            if (!file && errno != EEXIST) break;
        }
        if (!file) refuse(path, errno);
    }
    ~Temporary() {
        if (!native_.empty()) unlink(native_.c_str());
    }
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;

    void becomes(const std::string& target, const std::string& path) {
        if (::rename(native_.c_str(), target.c_str()) != 0) refuse(path, errno);
        native_.clear();
    }

    Descriptor file;

  private:
    std::string native_;
};

// Mode and group of the file that is replaced, to be given to the new one.
void takeOver(const Descriptor& file, const struct stat& old, mode_t mode,
              const std::string& path) {
    struct stat made {};
    if (fstat(file.number(), &made) != 0) refuse(path, errno);
    if (made.st_gid != old.st_gid) {
        // Only a member of the group may; the file is as good without.
        [[maybe_unused]] const int done = fchown(file.number(), static_cast<uid_t>(-1), old.st_gid);
    }
    // File systems without modes show the same one for both, and refuse to change it.
    if ((made.st_mode & Permissions) == mode) return;
    if (fchmod(file.number(), mode) != 0) refuse(path, errno);
}

// So that a power cut after this cannot bring the old name back. The content is whole either way.
void flushFolder(const std::string& target, const std::string& path) {
    Descriptor folder = openExisting(folderOf(target), O_RDONLY | O_DIRECTORY);
    if (!folder && errno == EACCES) return;  // may be entered and written, not read
    if (!folder) refuse(path, errno);
    if (uninterrupted([&] { return fsync(folder.number()); }) != 0) {
        const bool unsupported = errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
        if (!unsupported) refuse(path, errno);
    }
    closeChecked(folder, path);
}

// The new name stands whether or not this succeeds.
void flushRenamed(const std::string& from, const std::string& to) {
    try {
        flushFolder(to, to);
        if (folderOf(from) != folderOf(to)) flushFolder(from, from);
    } catch (const Failure&) {
        // At worst a power cut brings the old name back.
    }
}

std::string sizeText(std::uintmax_t bytes) {
    constexpr std::uintmax_t mebibyte = 1024 * 1024;
    if (bytes >= mebibyte && bytes % mebibyte == 0)
        return std::to_string(bytes / mebibyte) + " MiB";
    return std::to_string(bytes) + " bytes";
}

FileTime modificationTime(const struct stat& info) {
    const auto sinceEpoch =
        std::chrono::seconds(info.st_mtim.tv_sec) + std::chrono::nanoseconds(info.st_mtim.tv_nsec);
    return FileTime(std::chrono::duration_cast<FileTime::duration>(sinceEpoch));
}

FileEntry entryOf(std::string name, const struct stat& info) {
    FileEntry entry;
    entry.isHidden = name.starts_with('.');
    entry.isFolder = S_ISDIR(info.st_mode);
    entry.size = entry.isFolder ? 0 : static_cast<std::uintmax_t>(info.st_size);
    entry.modified = modificationTime(info);
    entry.name = std::move(name);
    return entry;
}

// Calls back for each entry of the folder but its own dots.
template <class Function>
void forEachEntry(const std::string& folder, const Function& function) {
    const OpenFolder open = openFolder(nativePath(folder));
    if (!open) {
        // A folder is a path, never a file that was not found.
        if (errno == ENOENT) refuse(folder, failure::PathNotFound, "No such folder");
        refuse(folder, errno);
    }
    while (true) {
        errno = 0;
        const dirent* const next = readdir(open.get());
        if (!next && errno != 0) refuse(folder, errno);
        if (!next) return;
        const std::string_view name = next->d_name;
        if (name != "." && name != "..") function(dirfd(open.get()), *next);
    }
}

// A link that leads nowhere counts as what it is; what has gone meanwhile has none.
std::optional<struct stat> entryStatus(int folder, const dirent& entry) {
    struct stat info {};
    if (fstatat(folder, entry.d_name, &info, 0) == 0 ||
        fstatat(folder, entry.d_name, &info, AT_SYMLINK_NOFOLLOW) == 0)
        return info;
    return std::nullopt;
}

bool isFile(int folder, const dirent& entry) {
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return entry.d_type != DT_DIR;
    const auto info = entryStatus(folder, entry);
    return info && !S_ISDIR(info->st_mode);
}

}  // namespace

char DiskFiles::separator() const {
    return Separator;
}

std::vector<FileEntry> DiskFiles::list(const std::string& folder) {
    std::vector<FileEntry> entries;
    forEachEntry(folder, [&](int folderNumber, const dirent& entry) {
        if (const auto info = entryStatus(folderNumber, entry))
            entries.push_back(entryOf(fromUtf8(entry.d_name), *info));
    });
    return entries;
}

std::vector<std::string> DiskFiles::fileNames(const std::string& folder) {
    std::vector<std::string> names;
    forEachEntry(folder, [&](int folderNumber, const dirent& entry) {
        if (isFile(folderNumber, entry)) names.push_back(fromUtf8(entry.d_name));
    });
    return names;
}

std::optional<FileEntry> DiskFiles::status(const std::string& path) {
    struct stat info {};
    if (stat(nativePath(path).c_str(), &info) == 0) return entryOf(lastPart(path), info);
    if (errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG) return std::nullopt;
    refuse(path, errno);
}

bool DiskFiles::isLink(const std::string& path) {
    struct stat info {};
    if (lstat(nativePath(path).c_str(), &info) == 0) return S_ISLNK(info.st_mode);
    if (errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG) return false;
    refuse(path, errno);
}

std::string DiskFiles::read(const std::string& path, std::uintmax_t limit) {
    const Descriptor file = openExisting(nativePath(path), O_RDONLY);
    if (!file) refuse(path, errno);
    const auto size = static_cast<std::uintmax_t>(regularFile(file, path).st_size);
    std::string content;
    size_t length = 0;
    // The size may grow while it is read, and some systems' own files tell none. One byte more is
    // asked for: where it does not come with the rest, that was all.
    for (std::uintmax_t expected = size;; expected = length + length / 2 + 4096) {
        if (length > limit || size > limit) {
            refuse(path, failure::PathFileAccess, "Larger than " + sizeText(limit));
        }
        content.resize(static_cast<size_t>(expected) + 1);
        while (length < content.size()) {
            const ssize_t taken = uninterrupted([&] {
                return ::read(file.number(), content.data() + length, content.size() - length);
            });
            if (taken < 0) refuse(path, errno);
            length += static_cast<size_t>(taken);
            if (taken == 0 || (length == size && length < content.size())) {
                content.resize(length);
                return content;
            }
        }
    }
}

void DiskFiles::replace(const std::string& path, std::string_view content, bool ownerOnly) {
    const std::string target = linkTarget(nativePath(path), path, Links::All);
    struct stat old {};
    const bool exists = stat(target.c_str(), &old) == 0;
    if (!exists && errno != ENOENT) refuse(path, errno);
    if (exists) requireRegular(old, path);
    if (lastPart(target).empty()) refuse(path, EISDIR);

    const bool isPrivate = exists || ownerOnly;
    Temporary temporary(target, isPrivate ? S_IRUSR | S_IWUSR : PermissionsOfNew, path);
    writeAll(temporary.file, content, path);
    if (exists) {
        const mode_t mode = (old.st_mode & Permissions) | S_IWUSR;
        takeOver(temporary.file, old, ownerOnly ? mode & OwnerOnly : mode, path);
    }
    flush(temporary.file, path);
    closeChecked(temporary.file, path);
    temporary.becomes(target, path);
    flushFolder(target, path);
    removeLeftOvers(folderOf(target));
}

void DiskFiles::append(const std::string& path, std::string_view content) {
    const std::string native = linkTarget(nativePath(path), path, Links::NoneThatAnyoneCanMake);
    struct stat old {};
    if (lstat(native.c_str(), &old) == 0 && S_ISREG(old.st_mode) && !(old.st_mode & S_IWUSR)) {
        const mode_t mode = (old.st_mode & Permissions) | S_IWUSR;
        if (fchmodat(AT_FDCWD, native.c_str(), mode, AT_SYMLINK_NOFOLLOW) != 0) refuse(path, errno);
    }
    Descriptor file(uninterrupted([&] {
        constexpr int flags = O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW;
        return open(native.c_str(), flags, PermissionsOfNew);
    }));
    if (!file) refuse(path, errno);
    const off_t length = regularFile(file, path).st_size;
    try {
        writeAll(file, content, path);
        closeChecked(file, path);
    } catch (const Failure&) {
        // Half an entry is worse than none.
        if (file) {
            [[maybe_unused]] const int cut = ftruncate(file.number(), length);
        }
        throw;
    }
}

void DiskFiles::copy(const std::string& from, const std::string& to) {
    constexpr std::uintmax_t largest = 1u << 30;  // it is held in memory meanwhile
    replace(to, read(from, largest), false);
}

void DiskFiles::remove(const std::string& path) {
    const std::string native = nativePath(path);
    struct stat info {};
    if (lstat(native.c_str(), &info) != 0) refuse(path, errno);
    if (S_ISDIR(info.st_mode)) refuse(path, EISDIR);
    // The mode of a file does not protect its name here, so that there is no mark to clear.
    if (unlink(native.c_str()) != 0) refuse(path, errno);
}

void DiskFiles::rename(const std::string& from, const std::string& to) {
    const std::string nativeFrom = nativePath(from), nativeTo = nativePath(to);
    struct stat info {};
    if (lstat(nativeFrom.c_str(), &info) != 0) refuse(from, errno);
    if (lstat(nativeTo.c_str(), &info) == 0) refuse(to, EEXIST);
    if (renameat2(AT_FDCWD, nativeFrom.c_str(), AT_FDCWD, nativeTo.c_str(), RENAME_NOREPLACE) !=
        0) {
        const bool unsupported = errno == EINVAL || errno == ENOSYS;
        if (!unsupported || ::rename(nativeFrom.c_str(), nativeTo.c_str()) != 0) refuse(to, errno);
    }
    flushRenamed(withoutEnd(nativeFrom), withoutEnd(nativeTo));
}

void DiskFiles::makeFolder(const std::string& path, bool ownerOnly) {
    const std::string native = withoutEnd(nativePath(path));
    if (mkdir(native.c_str(), ownerOnly ? OwnerOnly : Permissions) != 0) refuse(path, errno);
    try {
        flushFolder(native + Separator, path);
        flushFolder(native, path);
    } catch (const Failure&) {
        rmdir(native.c_str());
        throw;
    }
}

FolderOwner DiskFiles::ownerOf(const std::string& folder) {
    struct stat info {};
    if (lstat(withoutEnd(nativePath(folder)).c_str(), &info) != 0) {
        if (errno == ENOENT) return FolderOwner::Nobody;
        refuse(folder, errno);
    }
    const bool isOwn =
        S_ISDIR(info.st_mode) && info.st_uid == geteuid() && !(info.st_mode & (S_IWGRP | S_IWOTH));
    return isOwn ? FolderOwner::User : FolderOwner::Others;
}

void DiskFiles::removeFolder(const std::string& path) {
    if (rmdir(nativePath(path).c_str()) != 0) refuse(path, errno);
}

bool DiskFiles::writable(const std::string& folder) {
    const std::string native = nativePath(folder);
    return isFolder(native) && faccessat(AT_FDCWD, native.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

}  // namespace ladrix
