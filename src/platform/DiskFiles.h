// The real file system behind Files, on POSIX calls.
#pragma once

#include <string_view>

#include "platform/Files.h"

namespace ladrix {

class DiskFiles final : public Files {
  public:
    char separator() const override;
    std::vector<FileEntry> list(const std::string& folder) override;
    std::vector<std::string> fileNames(const std::string& folder) override;
    std::optional<FileEntry> status(const std::string& path) override;
    bool isLink(const std::string& path) override;
    std::string read(const std::string& path, std::uintmax_t limit) override;
    void replace(const std::string& path, std::string_view content, bool ownerOnly) override;
    void append(const std::string& path, std::string_view content) override;
    void copy(const std::string& from, const std::string& to) override;
    void remove(const std::string& path) override;
    void rename(const std::string& from, const std::string& to) override;
    void makeFolder(const std::string& path, bool ownerOnly) override;
    FolderOwner ownerOf(const std::string& folder) override;
    void removeFolder(const std::string& path) override;
    bool writable(const std::string& folder) override;
};

}  // namespace ladrix
