// Any bytes as the picture section of a drawing; the first one chooses the locale and where the
// pictures are looked for.
#include <algorithm>
#include <cstdint>

#include "Machine.h"
#include "document/Records.h"
#include "platform/Encoding.h"

namespace {

using namespace ladrix;
using Names = std::vector<std::string_view>;

const std::string Folder = "/drawings/Plant/";
const Names Present = {"logo.bmp", "Plan A.png", "b.bmp", "B.bmp", "\xC4rger.jpg", "a,b.gif"};

// Files of the folder whose names read as a way into another place. They are missing.
const Names Refused = {"..", "sub\\logo.bmp", "C:logo.bmp"};

class PictureFolder final : public fuzz::RefusingFiles {
  public:
    std::vector<FileEntry> list(const std::string& folder) override {
        if (folder == "/drawings/") return {fuzz::entryOf("Plant", true)};
        fuzz::require(folder == Folder);
        return entries_;
    }

  private:
    std::vector<FileEntry> entries_ = [] {
        std::vector<FileEntry> entries = {fuzz::entryOf("sub", true)};
        for (const Names& names : {Present, Refused})
            for (const std::string_view name : names)
                entries.push_back(fuzz::entryOf(name));
        return entries;
    }();
};

PicturePaths knownPaths() {
    PicturePaths paths;
    for (const std::string_view name : Present)
        paths.emplace(name, Folder + std::string(name));
    return paths;
}

bool isPresent(std::string_view name) {
    return std::find(Present.begin(), Present.end(), name) != Present.end();
}

bool isPresentInAnyCase(std::string_view name) {
    return std::any_of(Present.begin(), Present.end(),
                       [&](std::string_view one) { return equalIgnoringCase(one, name); });
}

// A row names a picture of the folder, by its bare name, the one of exactly that name before
// others.
void checkRow(const PictureRow& row, bool anyCase) {
    fuzz::require(row.FileName.find_first_of("/\\:\xFF\r\n") == std::string::npos);
    fuzz::require(row.FullPath.starts_with(Folder));
    const std::string_view found = std::string_view(row.FullPath).substr(Folder.size());
    fuzz::require(isPresent(found));
    if (isPresent(row.FileName) || !anyCase)
        fuzz::require(found == row.FileName);
    else
        fuzz::require(equalIgnoringCase(found, row.FileName));
}

struct Count {
    std::size_t rows = 0, missing = 0;
};

// The lines of a text in the present form, by whether the picture that they name is there.
Count countOf(std::string_view text, bool anyCase) {
    Count count;
    for (std::size_t end; (end = text.find("\r\n")) != std::string_view::npos;
         text.remove_prefix(end + 2)) {
        const std::string_view line = text.substr(0, end);
        if (line.empty()) continue;
        const std::string_view name = line.substr(0, line.find('\xFF'));
        ++((anyCase ? isPresentInAnyCase(name) : isPresent(name)) ? count.rows : count.missing);
    }
    return count;
}

std::string missingMessage(std::size_t missing) {
    if (missing == 0) return {};
    if (missing == 1) return "1 picture could not be found.";
    return std::to_string(missing) + " pictures could not be found.";
}

bool sameRows(const std::vector<PictureRow>& a, const std::vector<PictureRow>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const PictureRow& one, const PictureRow& other) {
                          return one.FileName == other.FileName && one.FullPath == other.FullPath &&
                                 one.Left == other.Left && one.Top == other.Top &&
                                 one.Width == other.Width && one.Height == other.Height;
                      });
}

// Every line of a text in the present form that was read to its end is a row or was told missing.
void checkCount(const Drawing& drawing, const fuzz::Machine& machine, bool anyCase) {
    if (drawing.PictureString.find('\xFF') == std::string::npos || drawing.ReadIncomplete) return;
    std::string_view text = drawing.PictureString;
    if (const auto head = text.find("\r\n///"); head != std::string_view::npos)
        text.remove_prefix(head + 5);
    if (text.find('\xFF') == std::string_view::npos) return;
    const Count count = countOf(text, anyCase);
    fuzz::require(drawing.PictureTable.size() == count.rows);
    fuzz::require(machine.dialogs.told == missingMessage(count.missing));
}

void checkRewriting(Drawing& drawing, fuzz::Machine& machine, const PicturePaths& known) {
    RebuildPictureString(drawing, machine.platform);
    machine.dialogs.told.clear();
    ParsePictureString(drawing, machine.platform, known);
    fuzz::require(drawing.PictureTable.empty() || machine.dialogs.told.empty());
    const std::vector<PictureRow> rows = drawing.PictureTable;
    RebuildPictureString(drawing, machine.platform);
    ParsePictureString(drawing, machine.platform, known);
    fuzz::require(sameRows(drawing.PictureTable, rows));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static PictureFolder files;
    static const PicturePaths byHistory = knownPaths(), byFolder;
    static fuzz::Machine machine(files);
    static Drawing drawing;
    const fuzz::Input input(data, size);
    machine.begin(input);
    const bool anyCase = !input.chosen(1);
    const PicturePaths& known = anyCase ? byFolder : byHistory;
    drawing.PictureParentFolder = "/drawings/";
    drawing.PictureFolderName = input.chosen(2) ? "pLANT" : "Plant";
    drawing.PictureString = input.text;
    drawing.ReadIncomplete = false;
    ParsePictureString(drawing, machine.platform, known);
    fuzz::require(drawing.PictureString == input.text);
    fuzz::require(drawing.PictureTable.size() == static_cast<std::size_t>(drawing.PictureCount));
    fuzz::require(machine.reports == 0 || drawing.ReadIncomplete);
    for (const PictureRow& row : drawing.PictureTable)
        checkRow(row, anyCase);
    checkCount(drawing, machine, anyCase);
    if (drawing.PictureCount > 0) checkRewriting(drawing, machine, known);
    return 0;
}
