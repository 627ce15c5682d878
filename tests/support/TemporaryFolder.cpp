#include "support/TemporaryFolder.h"

#include <stdlib.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

#include "platform/Encoding.h"

namespace ladrix::test {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (fs::temp_directory_path() / "ladrix-test-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder: " + pattern);
    path_ = fromUtf8(pattern) + '/';
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(native(), ignored);
}

fs::path TemporaryFolder::native(std::string_view name) const {
    return fs::path(toUtf8(*this / name));
}

void TemporaryFolder::write(std::string_view name, std::string_view content) const {
    const fs::path target = native(name);
    fs::create_directories(target.parent_path());
    std::ofstream file(target, std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + target.string());
}

std::string TemporaryFolder::read(std::string_view name) const {
    std::ifstream file(native(name), std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + native(name).string());
    return {std::istreambuf_iterator<char>(file), {}};
}

bool TemporaryFolder::has(std::string_view name) const {
    return fs::exists(fs::symlink_status(native(name)));
}

void TemporaryFolder::makeFolder(std::string_view name) const {
    fs::create_directories(native(name));
}

std::vector<std::string> TemporaryFolder::entries(std::string_view folder) const {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(native(folder))) {
        names.push_back(fromUtf8(entry.path().filename().string()));
        if (entry.is_directory() && !entry.is_symlink()) names.back() += '/';
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace ladrix::test
