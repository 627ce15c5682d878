// Preloaded into the saving driver: takes the place of the system calls that a save consists of,
// counts those that concern files below one folder, and lets a chosen one go wrong.
//
//   LADRIX_FAULT_FOLDER   the folder, absolute, with the separator at its end
//   LADRIX_FAULT          "NUMBER HOW": the call, from 1, and an error number, or
//                           short  half of what a read or write is asked for
//                           full   half of it, and from then on no write at all
//                           kill   the process ends there, half way through a write
//
// Each counted call is told on standard output, "call" or "fault" first: its number and name, "+"
// if it is one of a change on disk or "-" if it only looks, and the path below the folder.
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <stdarg.h>
#include <stdio.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>
#include <type_traits>

namespace {

// Plain data: calls come before any constructor of this library has run.
struct OpenFile {
    char path[512];  // "" for what lies elsewhere
    bool written;
};
OpenFile files[256];
const char* folder = nullptr;  // as long as it is null nothing is counted
int calls = 0, faultyCall = 0, error = 0;
char how[16] = "";
bool full = false;

enum class Fate { Through, Error, Half, HalfThenKill };

Fate fateOf(const char* name, bool changes, const char* path) {
    const bool struck = ++calls == faultyCall;
    char line[640];
    const int length = snprintf(line, sizeof line, "%s %d %s %c %s\n", struck ? "fault" : "call",
                                calls, name, changes ? '+' : '-', path + strlen(folder));
    syscall(SYS_write, STDOUT_FILENO, line, static_cast<size_t>(length));
    const bool writes = strcmp(name, "write") == 0;
    if (full && writes) return Fate::Error;
    if (!struck) return Fate::Through;
    if (error != 0) return Fate::Error;
    if (strcmp(how, "kill") != 0) {
        full = strcmp(how, "full") == 0;
        if (full) error = ENOSPC;
        return Fate::Half;
    }
    if (!writes) kill(getpid(), SIGKILL);
    return Fate::HalfThenKill;
}

bool isCounted(const char* path) {
    return folder && strncmp(path, folder, strlen(folder)) == 0;
}

OpenFile* fileOf(int number) {
    const bool known = folder && number >= 0 && static_cast<size_t>(number) < std::size(files);
    return known && files[number].path[0] ? &files[number] : nullptr;
}

void remember(int number, const char* path, bool written) {
    if (number < 0 || static_cast<size_t>(number) >= std::size(files)) return;
    snprintf(files[number].path, sizeof files[number].path, "%s", path);
    files[number].written = written;
}

// The function that this library's own stands before.
template <class Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

template <class Call>
auto onPath(const char* name, bool changes, const char* path, const Call& call) {
    using Result = decltype(call());
    if (!isCounted(path) || fateOf(name, changes, path) != Fate::Error) return call();
    errno = error;
    if constexpr (std::is_pointer_v<Result>)
        return Result{};
    else
        return Result{-1};
}

template <class Call>
int onFile(const char* name, bool changes, int number, const Call& call) {
    const OpenFile* const file = fileOf(number);
    return file ? onPath(name, changes, file->path, call) : call();
}

// Of an entry in an open folder, or of a path.
template <class Call>
int onEntry(const char* name, bool changes, int number, const char* entry, const Call& call) {
    const OpenFile* const file = fileOf(number);
    if (!file) return onPath(name, changes, entry, call);
    char path[1024];
    snprintf(path, sizeof path, "%s%s", file->path, entry);
    return onPath(name, changes, path, call);
}

// `call` takes the number of bytes.
template <class Call>
ssize_t transfer(const char* name, bool changes, int number, size_t size, const Call& call) {
    const OpenFile* const file = fileOf(number);
    if (!file) return call(size);
    const Fate fate = fateOf(name, changes, file->path);
    if (fate == Fate::Error) {
        errno = error;
        return -1;
    }
    const ssize_t done = call(fate == Fate::Through || size < 2 ? size : size / 2);
    if (fate == Fate::HalfThenKill) kill(getpid(), SIGKILL);
    return done;
}

// A folder is opened to be flushed.
bool opensForChange(int flags) {
    return (flags & O_ACCMODE) != O_RDONLY || (flags & O_DIRECTORY);
}

int opened(int number, const char* path, int flags) {
    if (number >= 0 && isCounted(path)) remember(number, path, opensForChange(flags));
    return number;
}

}  // namespace

extern "C" {

// Called by the driver when what comes is the operation itself.
void beginFaults() {
    if (const char* const fault = getenv("LADRIX_FAULT"))
        sscanf(fault, "%d %15s", &faultyCall, how);
    error = atoi(how);
    folder = getenv("LADRIX_FAULT_FOLDER");
}

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = flags & O_CREAT ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return onPath("open", opensForChange(flags), path, [&] {
        return opened(next<int(const char*, int, ...)>("open")(path, flags, mode), path, flags);
    });
}

DIR* opendir(const char* path) {
    return onPath("opendir", false, path, [&] {
        DIR* const open = next<decltype(opendir)>("opendir")(path);
        if (open && isCounted(path)) remember(dirfd(open), path, false);
        return open;
    });
}

// Not counted: nobody can do anything about its failure.
int closedir(DIR* open) {
    if (OpenFile* const file = fileOf(dirfd(open))) file->path[0] = '\0';
    return next<decltype(closedir)>("closedir")(open);
}

int close(int number) {
    OpenFile* const file = fileOf(number);
    if (!file) return next<decltype(close)>("close")(number);
    // One that reports an error has closed the file all the same.
    const int done = next<decltype(close)>("close")(number);
    const OpenFile closed = *file;
    file->path[0] = '\0';
    return onPath("close", closed.written, closed.path, [&] { return done; });
}

ssize_t read(int number, void* buffer, size_t size) {
    return transfer("read", false, number, size, [&](size_t part) {
        return next<decltype(read)>("read")(number, buffer, part);
    });
}

ssize_t write(int number, const void* buffer, size_t size) {
    return transfer("write", true, number, size, [&](size_t part) {
        return next<decltype(write)>("write")(number, buffer, part);
    });
}

// Told to have gone well: what a killed process has written is there without, and a thousand real
// ones take minutes.
int fsync(int number) {
    return onFile("fsync", true, number, [] { return 0; });
}

int fchmod(int number, mode_t mode) noexcept {
    return onFile("fchmod", true, number,
                  [&] { return next<int(int, mode_t)>("fchmod")(number, mode); });
}

int fstat(int number, struct stat* info) noexcept {
    return onFile("fstat", false, number,
                  [&] { return next<int(int, struct stat*)>("fstat")(number, info); });
}

int stat(const char* path, struct stat* info) noexcept {
    return onPath("stat", false, path,
                  [&] { return next<int(const char*, struct stat*)>("stat")(path, info); });
}

int lstat(const char* path, struct stat* info) noexcept {
    return onPath("lstat", false, path,
                  [&] { return next<int(const char*, struct stat*)>("lstat")(path, info); });
}

int fstatat(int at, const char* path, struct stat* info, int flags) noexcept {
    return onEntry("fstatat", false, at, path, [&] {
        return next<int(int, const char*, struct stat*, int)>("fstatat")(at, path, info, flags);
    });
}

ssize_t readlink(const char* path, char* buffer, size_t size) noexcept {
    return onPath("readlink", false, path, [&] {
        return next<ssize_t(const char*, char*, size_t)>("readlink")(path, buffer, size);
    });
}

int rename(const char* from, const char* to) noexcept {
    return onPath("rename", true, to,
                  [&] { return next<int(const char*, const char*)>("rename")(from, to); });
}

int unlink(const char* path) noexcept {
    return onPath("unlink", true, path, [&] { return next<int(const char*)>("unlink")(path); });
}

int unlinkat(int at, const char* path, int flags) noexcept {
    return onEntry("unlink", true, at, path,
                   [&] { return next<int(int, const char*, int)>("unlinkat")(at, path, flags); });
}

int mkdir(const char* path, mode_t mode) noexcept {
    return onPath("mkdir", true, path,
                  [&] { return next<int(const char*, mode_t)>("mkdir")(path, mode); });
}

}  // extern "C"
