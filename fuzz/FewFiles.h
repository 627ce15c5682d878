// A file system of a few files that a target knows by their places in the list.
#pragma once

#include <utility>

#include "Machine.h"

namespace ladrix::fuzz {

// A few files, there or not. To touch any other is a fault.
class FewFiles final : public RefusingFiles {
  public:
    struct File {
        std::string folder, name;
        std::optional<std::string> content = std::nullopt;
    };
    explicit FewFiles(std::vector<File> files) : files_(std::move(files)) {}

    bool full = false;  // the disk: nothing can be written

    std::optional<std::string>& content(std::size_t index) { return files_[index].content; }

    std::vector<FileEntry> list(const std::string& folder) override {
        std::vector<FileEntry> entries;
        for (const File& file : files_)
            if (file.content && file.folder == folder) entries.push_back(entryOf(file.name));
        return entries;
    }
    std::optional<FileEntry> status(const std::string& path) override {
        const File& file = at(path);
        return file.content ? std::optional(entryOf(file.name)) : std::nullopt;
    }
    std::string read(const std::string& path, std::uintmax_t) override {
        const File& file = at(path);
        require(file.content.has_value());
        return *file.content;
    }
    void replace(const std::string& path, std::string_view text, bool) override {
        File& file = at(path);
        if (full) throw Failure{failure::DiskFull, "Disk full"};
        file.content = text;
    }
    void append(const std::string& path, std::string_view text) override {
        File& file = at(path);
        file.content = file.content.value_or("").append(text);
    }
    void copy(const std::string& from, const std::string& to) override {
        require(at(from).content.has_value());
        at(to).content = at(from).content;
    }
    void remove(const std::string& path) override {
        require(at(path).content.has_value());
        at(path).content.reset();
    }

  private:
    File& at(std::string_view path) {
        for (File& file : files_)
            if (path.starts_with(file.folder) && path.substr(file.folder.size()) == file.name)
                return file;
        std::abort();
    }

    std::vector<File> files_;
};

}  // namespace ladrix::fuzz
