#include "canvas/file/PictureFiles.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "document/Records.h"
#include "platform/Encoding.h"

namespace ladrix {

namespace {

// The names of the files in a folder, as far as it can be read.
std::vector<std::string> namesIn(Files& files, const std::string& folder) {
    try {
        return files.fileNames(folder);
    } catch (const Failure&) {
        return {};
    }
}

// The file that bears the name; an exact one before one that differs in case. "": none.
std::string actualName(const std::vector<std::string>& names, std::string_view wanted) {
    std::string found;
    for (const std::string& name : names) {
        if (!equalIgnoringCase(name, wanted)) continue;
        if (name == wanted) return name;
        found = name;
    }
    return found;
}

std::optional<std::string> contentOf(Files& files, const std::string& path) {
    try {
        return files.read(path);
    } catch (const Failure&) {
        return std::nullopt;
    }
}

// Of the file itself, else what was read of it before.
std::optional<std::string> contentOf(const Editor& editor, const PictureRow& row) {
    if (auto present = contentOf(*editor.platform.files, row.FullPath)) return present;
    const auto kept = editor.KeptPictureFiles.find(row.FullPath);
    if (kept == editor.KeptPictureFiles.end()) return std::nullopt;
    return *kept->second;
}

// Of a picture that nothing is known of, the file in the folder is the one.
bool isSameFile(const Editor& editor, const PictureRow& row, const std::string& path) {
    if (row.FullPath == path) return true;
    const auto own = contentOf(editor, row);
    return !own || own == contentOf(*editor.platform.files, path);
}

std::string nameInFolder(const Editor& editor, const PictureRow& row, const std::string& folder,
                         const std::vector<std::string>& names) {
    const auto isAnothers = [&](const std::string& name) {
        return std::any_of(editor.drawing.PictureTable.begin(), editor.drawing.PictureTable.end(),
                           [&](const PictureRow& other) {
                               return other.FullPath != row.FullPath &&
                                      equalIgnoringCase(other.FileName, name);
                           });
    };
    for (int number = 1;; ++number) {
        const std::string name = numberedName(row.FileName, number);
        if (number > 1 && isAnothers(name)) continue;
        const std::string present = actualName(names, name);
        if (present.empty() || isSameFile(editor, row, folder + present)) return name;
    }
}

void makeMissingFolder(Files& files, const std::string& parent, std::string_view name) {
    const std::string folder = parent + std::string(name);
    const auto present = files.status(folder);
    if (!present || !present->isFolder) files.makeFolder(folder);
}

// What was kept stands in for a file that cannot be read any more.
void writeFile(const Editor& editor, const std::string& from, const std::string& to) {
    Files& files = *editor.platform.files;
    try {
        files.copy(from, to);
    } catch (const Failure&) {
        const auto kept = editor.KeptPictureFiles.find(from);
        if (kept == editor.KeptPictureFiles.end() || contentOf(files, from)) throw;
        files.replace(to, *kept->second);
    }
}

// The history's pictures and what is kept of the file go along.
void movePicture(Editor& editor, PictureRow& row, const std::string& path) {
    if (row.FullPath == path) return;
    for (auto& [name, known] : editor.HistoryPictures)
        if (known.FullPath == row.FullPath) known.FullPath = path;
    const auto kept = editor.KeptPictureFiles.find(row.FullPath);
    if (kept != editor.KeptPictureFiles.end())
        editor.KeptPictureFiles.insert_or_assign(path, kept->second);
    row.FullPath = path;
}

void writePicture(Editor& editor, PictureRow& row, const std::string& folder) {
    const std::string present = actualName(editor.platform.files->fileNames(folder), row.FileName);
    const std::string path = folder + (present.empty() ? row.FileName : present);
    if (present.empty()) writeFile(editor, row.FullPath, path);
    movePicture(editor, row, path);
}

}  // namespace

std::string picturesFolder(const Editor& editor) {
    const Drawing& drawing = editor.drawing;
    if (drawing.CurrentFileName.empty()) return {};
    return withSeparator(
        *editor.platform.files,
        drawing.CurrentFolder + std::string(nameWithoutExtension(drawing.CurrentFileName)));
}

std::string numberedName(const std::string& name, int number) {
    if (number == 1) return name;
    const std::string stem{nameWithoutExtension(name)};
    return stem + " (" + std::to_string(number) + ")" + name.substr(stem.size());
}

void keepPictureFile(Editor& editor, const std::string& path) {
    if (editor.KeptPictureFiles.contains(path)) return;
    if (auto content = contentOf(*editor.platform.files, path))
        editor.KeptPictureFiles[path] = std::make_shared<const std::string>(std::move(*content));
}

void settlePictureNames(Editor& editor) {
    Drawing& drawing = editor.drawing;
    if (drawing.PictureCount == 0) return;
    const std::string folder = picturesFolder(editor);
    const std::vector<std::string> names = namesIn(*editor.platform.files, folder);
    bool renamed = false;
    for (PictureRow& row : drawing.PictureTable) {
        std::string name = nameInFolder(editor, row, folder, names);
        if (name == row.FileName) continue;
        row.FileName = std::move(name);
        renamed = true;
    }
    if (renamed) RebuildPictureString(drawing, editor.platform);
}

std::vector<UnwrittenPicture> writePictures(Editor& editor) {
    Drawing& drawing = editor.drawing;
    std::vector<UnwrittenPicture> unwritten;
    if (drawing.PictureCount == 0) return unwritten;
    std::string noFolder;
    try {
        makeMissingFolder(*editor.platform.files, drawing.CurrentFolder,
                          nameWithoutExtension(drawing.CurrentFileName));
    } catch (const Failure& failure) {
        noFolder = failure.text;
    }
    const std::string folder = picturesFolder(editor);
    for (PictureRow& row : drawing.PictureTable) {
        try {
            if (!noFolder.empty()) throw Failure{failure::PathFileAccess, noFolder};
            writePicture(editor, row, folder);
        } catch (const Failure& failure) {
            const bool isNamed =
                std::any_of(unwritten.begin(), unwritten.end(),
                            [&](const auto& other) { return other.name == row.FileName; });
            if (!isNamed) unwritten.push_back({row.FileName, failure.text});
        }
    }
    return unwritten;
}

}  // namespace ladrix
