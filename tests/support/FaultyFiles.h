// The real file system with faults that a test switches on: a chosen operation throws a chosen
// Failure instead of being done.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/DiskFiles.h"

namespace ladrix::test {

enum class Operation {
    List,
    Status,
    Read,
    Replace,
    Append,
    Copy,
    Remove,
    Rename,
    MakeFolder,
    RemoveFolder,
    Writable,
};

class FaultyFiles final : public Files {
  public:
    struct Call {
        Operation operation;
        std::string path;

        friend bool operator==(const Call&, const Call&) = default;
    };

    // From now on this operation fails wherever the path holds `part` (for copy and rename: the
    // path written to), until heal(). Writable answers false instead.
    void fail(Operation operation, Failure failure, std::string part = {});
    // The same, for one call alone, after `passed` calls that it lets through.
    void failOnce(Operation operation, Failure failure, int passed = 0);
    void heal();

    // Called before each operation that changes the disk; may throw in its place.
    std::function<void()> beforeChange;

    // Every operation so far in order, failed ones too.
    std::vector<Call> calls;
    int count(Operation operation) const;

    char separator() const override;
    std::vector<FileEntry> list(const std::string& folder) override;
    std::vector<std::string> fileNames(const std::string& folder) override;  // as List
    std::optional<FileEntry> status(const std::string& path) override;
    bool isLink(const std::string& path) override;  // as Status
    std::string read(const std::string& path, std::uintmax_t limit) override;
    void replace(const std::string& path, std::string_view content, bool ownerOnly) override;
    void append(const std::string& path, std::string_view content) override;
    void copy(const std::string& from, const std::string& to) override;
    void remove(const std::string& path) override;
    void rename(const std::string& from, const std::string& to) override;
    void makeFolder(const std::string& path, bool ownerOnly) override;
    FolderOwner ownerOf(const std::string& folder) override { return disk_.ownerOf(folder); }
    void removeFolder(const std::string& path) override;
    bool writable(const std::string& folder) override;

  private:
    struct Fault {
        Operation operation;
        Failure failure;
        std::string part;
        int passed = 0;
        bool lasting = true;
    };

    void enter(Operation operation, const std::string& path);

    DiskFiles disk_;
    std::vector<Fault> faults_;
};

}  // namespace ladrix::test
