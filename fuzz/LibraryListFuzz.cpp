// Any bytes as the list of a library that holds the symbols "a" and "b"; the first one chooses
// whether the list has changed on disk before it is written.
#include <algorithm>
#include <array>
#include <cstdint>

#include "Machine.h"
#include "usersymbols/Libraries.h"

namespace {

using namespace ladrix;
using Names = std::vector<std::string>;

constexpr std::string_view List = "/d/User Symbols.lib";
constexpr std::string_view Folder = "/d/User Symbols/";
constexpr std::array<std::string_view, 6> Present = {"a.uds", "a.bmp", "a_Cyan.bmp",
                                                     "b.uds", "b.bmp", "B_cyan.bmp"};
constexpr std::string_view SafetyCopy = "/d/User Symbols/User Symbols.lib";

class OneLibrary final : public fuzz::RefusingFiles {
  public:
    std::string list_, copy_;

    std::vector<FileEntry> list(const std::string& folder) override {
        if (folder == "/d/")
            return {fuzz::entryOf("User Symbols", true), fuzz::entryOf("User Symbols.lib")};
        fuzz::require(folder == Folder);
        std::vector<FileEntry> entries;
        for (const std::string_view name : Present)
            entries.push_back(fuzz::entryOf(name));
        return entries;
    }
    std::optional<FileEntry> status(const std::string& path) override {
        if (path == "/d/User Symbols") return FileEntry{};
        return isPresent(path) ? std::optional(FileEntry{}) : std::nullopt;
    }
    std::string read(const std::string& path, std::uintmax_t) override {
        if (path == List) return list_;
        if (!isPresent(path)) throw Failure{failure::FileNotFound, "No such file"};
        return "Line:0:0:1:1\r\n";
    }
    void replace(const std::string& path, std::string_view content, bool) override {
        fuzz::require(path == List || path == SafetyCopy);
        (path == List ? list_ : copy_) = content;
    }

  private:
    // Whatever the list says, nothing is looked for outside the library's folder.
    static bool isPresent(std::string_view path) {
        fuzz::require(path.starts_with(Folder) && path.rfind('/') == Folder.size() - 1);
        return std::find(Present.begin(), Present.end(), path.substr(Folder.size())) !=
               Present.end();
    }
};

class Dot final : public Picture {
  public:
    int pixelWidth() const override { return 1; }
    int pixelHeight() const override { return 1; }
};

class Dots final : public Images {
  public:
    std::shared_ptr<const Picture> load(const std::string&) override { std::abort(); }
    std::shared_ptr<const Picture> fromBitmap(std::string_view) override { return dot_; }
    std::string bitmapText(const Picture&) override { std::abort(); }
    std::unique_ptr<PictureBox> makePicture(int, int) override { std::abort(); }

  private:
    std::shared_ptr<const Picture> dot_ = std::make_shared<Dot>();
};

bool isSymbol(std::string_view name) {
    return name == "a" || name == "A" || name == "b" || name == "B";
}

Names linesOf(std::string_view text) {
    Names lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.emplace_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

class Session {
  public:
    Session() {
        machine_.platform.images = &dots_;
        editor_.BasePath = "/d/";
        selectLibrary(symbols_, editor_, "/d/", "User Symbols.lib");
    }

    void run(const fuzz::Input& input) {
        machine_.begin(input);
        files_.list_ = input.text;
        files_.copy_.clear();
        ReloadLibrary(symbols_, editor_);
        const Names names = symbols_.UserSymbolName;
        Names expected = linesOf(input.text);
        std::erase_if(expected, [](const std::string& line) { return !isSymbol(line); });
        fuzz::require(names == expected && files_.list_ == input.text);
        if (input.chosen(1)) files_.list_ += "\nanother\r\nb";
        write(names);
    }

  private:
    // No symbol is lost, and without one nothing is written.
    void write(const Names& names) {
        const std::string before = files_.list_;
        WriteLibraryStructure(symbols_, editor_);
        if (names.empty()) {
            fuzz::require(files_.list_ == before && files_.copy_.empty());
            return;
        }
        fuzz::require(files_.copy_ == files_.list_);
        const Names written = linesOf(files_.list_);
        fuzz::require(std::equal(names.begin(), names.end(), written.begin(),
                                 written.begin() + static_cast<std::ptrdiff_t>(names.size())));
        fuzz::require(std::find(written.begin(), written.end(), "") == written.end());
        const std::size_t lines =
            CountLibraryLines(files_, symbols_.LibraryFolder, symbols_.LibraryFile);
        fuzz::require(lines == written.size());
        for (const std::string& line : linesOf(before))
            fuzz::require(!isSymbol(line) ||
                          std::find(written.begin(), written.end(), line) != written.end());
    }

    OneLibrary files_;
    Dots dots_;
    fuzz::Machine machine_{files_};
    Editor editor_{machine_.platform};
    UserSymbols symbols_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Session session;
    session.run(fuzz::Input(data, size));
    return 0;
}
