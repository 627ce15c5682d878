// Any bytes as a user symbol's script, placed and previewed, and as the list of its library.
#include <cstdint>

#include "CheckedDrawing.h"
#include "usersymbols/Libraries.h"
#include "usersymbols/Script.h"

namespace {

using namespace ladrix;

class UnseenCanvas final : public Canvas {
  public:
    void Line(Single, Single, Single, Single, Long, LineForm) override {}
    void Circle(Single, Single, Single, Long, Single) override {}
    void Arc(Single, Single, Single, Long, double, double, Single) override {}
    void Text(Single, Single, const FontSpec& font, std::string_view, Long) override {
        fuzz::require(font.size >= 1 && font.size <= 400);
    }
    void PaintPicture(const Picture&, Single, Single, Single, Single) override {}
    void Cls() override {}
    void SetScale(Single, Single, Single) override {}
    std::string Image(Single, Single, const std::function<void()>&) override { return {}; }
    std::string_view Name() const override { return "picLX"; }
};

class Dot final : public Picture {
  public:
    int pixelWidth() const override { return 1; }
    int pixelHeight() const override { return 1; }
};

class Dots final : public Images {
  public:
    std::shared_ptr<const Picture> load(const std::string&) override { return dot_; }
    std::shared_ptr<const Picture> fromBitmap(std::string_view) override { return dot_; }
    std::string bitmapText(const Picture&) override { return "BM"; }
    std::unique_ptr<PictureBox> makePicture(int, int) override { return nullptr; }

  private:
    std::shared_ptr<const Picture> dot_ = std::make_shared<Dot>();
};

// One library with the symbols "a" and "b"; its list and every script are the bytes at hand.
class OneLibrary final : public Files {
  public:
    explicit OneLibrary(std::string content) : text(std::move(content)) {}

    std::string text, script = "Line:0:0:1:1\r\n";

    char separator() const override { return '/'; }
    std::vector<FileEntry> list(const std::string& folder) override {
        std::vector<FileEntry> entries;
        const auto add = [&](const char* name, bool isFolder) {
            entries.emplace_back().name = name;
            entries.back().isFolder = isFolder;
        };
        if (folder == "/d/") {
            add("User Symbols", true);
            add("User Symbols.lib", false);
        } else {
            for (const char* name :
                 {"a.uds", "a.bmp", "a_Cyan.bmp", "b.uds", "b.bmp", "B_cyan.bmp"})
                add(name, false);
        }
        return entries;
    }
    std::optional<FileEntry> status(const std::string& path) override {
        fuzz::require(path.starts_with("/d/") && path.find("..") == std::string::npos);
        return FileEntry{};
    }
    std::string read(const std::string& path, std::uintmax_t) override {
        return path.ends_with(".lib") ? text : script;
    }
    void replace(const std::string& path, std::string_view content, bool) override {
        fuzz::require(path == "/d/User Symbols.lib" || path == "/d/User Symbols/User Symbols.lib");
        text = content;
    }
    void append(const std::string&, std::string_view) override { std::abort(); }
    void copy(const std::string&, const std::string&) override { std::abort(); }
    void remove(const std::string&) override { std::abort(); }
    void rename(const std::string&, const std::string&) override { std::abort(); }
    void makeFolder(const std::string&) override { std::abort(); }
    void removeFolder(const std::string&) override { std::abort(); }
    bool writable(const std::string&) override { return false; }
};

void placeAndPreview(fuzz::TinyPlatform& machine, const std::string& text) {
    Editor editor(machine.platform);
    UserSymbols symbols;
    symbols.UserSymbolScript = {text};
    symbols.UserSymbolCount = 1;
    SymbolPlacement placement;
    placement.obj = machine.platform.picLX;
    placement.X = placement.Y = 1;
    placement.MyScaleX = 2;
    editor.drawing.DrawingPreview = true;
    InsertUserSymbol(symbols, editor, placement, 0);
    fuzz::require(editor.drawing.devices.DeviceCount + editor.drawing.labels.LabelCount == 0);
    editor.drawing.DrawingPreview = false;
    PreviewUserSymbol(editor, placement, text);
    InsertUserSymbol(symbols, editor, placement, 0);
    fuzz::checkTables(editor.drawing);
    fuzz::checkRewriting(editor.drawing, machine.platform);
}

void readAndWriteList(fuzz::TinyPlatform& machine, const std::string& text) {
    OneLibrary files(text);
    machine.platform.files = &files;
    Editor editor(machine.platform);
    editor.BasePath = "/d/";
    UserSymbols symbols;
    selectLibrary(symbols, editor, "/d/", "User Symbols.lib");
    ReloadLibrary(symbols, editor);
    const std::vector<std::string> names = symbols.UserSymbolName;
    WriteLibraryStructure(symbols, editor);
    ReloadLibrary(symbols, editor);
    fuzz::require(symbols.UserSymbolName == names);
    machine.platform.files = &machine.files;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    UnseenCanvas canvas;
    Dots dots;
    for (const char decimalMark : {'.', ','}) {
        fuzz::TinyPlatform machine(decimalMark);
        machine.platform.picLX = &canvas;
        machine.platform.images = &dots;
        placeAndPreview(machine, text);
        readAndWriteList(machine, text);
    }
    return 0;
}
