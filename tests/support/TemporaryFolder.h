// A folder of its own for one test, on the real file system, gone with everything in it when the
// test ends.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace ladrix::test {

class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // As core text, with the separator at its end.
    const std::string& path() const { return path_; }
    // Of an entry in it; `name` may hold folders.
    std::string operator/(std::string_view name) const { return path_ + std::string(name); }

    // Past the code under test. Folders on the way are made; a missing file reads as a thrown
    // error.
    void write(std::string_view name, std::string_view content) const;
    std::string read(std::string_view name) const;
    bool has(std::string_view name) const;
    void makeFolder(std::string_view name) const;
    // Every entry directly in it, sorted, folders with the separator at their end.
    std::vector<std::string> entries(std::string_view folder = "") const;

    // For calls of the system.
    std::filesystem::path native(std::string_view name = "") const;

  private:
    std::string path_;
};

}  // namespace ladrix::test
