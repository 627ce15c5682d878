// The real file system behind Files, on POSIX calls.
#pragma once

#include <functional>
#include <string_view>

#include "platform/Files.h"

namespace ladrix {

// Called before each system call of a change on disk, with the call's name ("open", "write",
// "fsync", "fchown", "fchmod", "chmod", "close", "rename", "unlink", "mkdir", "rmdir"). A test
// kills the process there, or throws a Failure in the call's place. Cleaning up after a failure is
// not told.
using SystemCallHook = std::function<void(std::string_view call)>;

class DiskFiles final : public Files {
  public:
    explicit DiskFiles(SystemCallHook hook = {});

    char separator() const override;
    std::vector<FileEntry> list(const std::string& folder) override;
    std::optional<FileEntry> status(const std::string& path) override;
    std::string read(const std::string& path, std::uintmax_t limit) override;
    void replace(const std::string& path, std::string_view content, bool ownerOnly) override;
    void append(const std::string& path, std::string_view content) override;
    void copy(const std::string& from, const std::string& to) override;
    void remove(const std::string& path) override;
    void rename(const std::string& from, const std::string& to) override;
    void makeFolder(const std::string& path) override;
    void removeFolder(const std::string& path) override;
    bool writable(const std::string& folder) override;

  private:
    SystemCallHook hook_;
};

}  // namespace ladrix
