// What all fuzz targets share: a machine without a disk or a screen behind it. A target makes one
// for all its runs, so that a run costs what its subject does, and puts it back to how it was.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SilentDialogs.h"

namespace ladrix::fuzz {

inline void require(bool promise) {
    if (!promise) std::abort();
}

// The first byte of an input chooses how it is read; the others are what is read.
struct Input {
    Input(const std::uint8_t* data, std::size_t size)
        : choice(size == 0 ? 0 : data[0]), text(data + (size == 0 ? 0 : 1), data + size) {}

    unsigned choice;
    std::string text;

    bool chosen(unsigned bit) const { return (choice >> bit & 1) != 0; }
    char decimalMark() const { return chosen(0) ? ',' : '.'; }
};

// A file system in which everything is a fault; a target allows what its subject may do.
class RefusingFiles : public Files {
  public:
    char separator() const override { return '/'; }
    std::vector<FileEntry> list(const std::string&) override { std::abort(); }
    std::optional<FileEntry> status(const std::string&) override { std::abort(); }
    bool isLink(const std::string&) override { std::abort(); }
    std::string read(const std::string&, std::uintmax_t) override { std::abort(); }
    void replace(const std::string&, std::string_view, bool) override { std::abort(); }
    void append(const std::string&, std::string_view) override { std::abort(); }
    void copy(const std::string&, const std::string&) override { std::abort(); }
    void remove(const std::string&) override { std::abort(); }
    void rename(const std::string&, const std::string&) override { std::abort(); }
    void makeFolder(const std::string&, bool) override { std::abort(); }
    FolderOwner ownerOf(const std::string&) override { std::abort(); }
    void removeFolder(const std::string&) override { std::abort(); }
    bool writable(const std::string&) override { std::abort(); }
};

inline FileEntry entryOf(std::string_view name, bool isFolder = false) {
    FileEntry entry;
    entry.name = name;
    entry.isFolder = isFolder;
    return entry;
}

// A file of lines, each with its end.
inline std::string linesText(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text.append(line).append("\r\n");
    return text;
}

// Answers every question alike and keeps what it was told last.
class ToldLast final : public SilentDialogs {
  public:
    Answer answer = Answer::Ok;
    std::string told;

    Answer message(std::string_view text, std::string_view, Buttons) override {
        told = text;
        return answer;
    }
};

struct Machine {
    ToldLast dialogs;
    int reports = 0;
    Platform platform;

    explicit Machine(Files& files) {
        platform.files = &files;
        platform.dialogs = &dialogs;
        platform.ReportError = [this](std::string_view, const Failure&) { ++reports; };
    }
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    void begin(const Input& input) {
        platform.locale.decimalMark = input.decimalMark();
        dialogs.told.clear();
        dialogs.answer = Answer::Ok;
        reports = 0;
    }
};

}  // namespace ladrix::fuzz
