#include "canvas/file/DrawingIO.h"

#include <utility>

#include "canvas/file/Title.h"
#include "canvas/history/History.h"
#include "canvas/view/Painting.h"
#include "canvas/view/View.h"
#include "document/Records.h"

namespace ladrix {

namespace {

// Every picture stands in a folder beside the drawing, named as it is.
void copyPictures(Editor& editor) {
    const Drawing& drawing = editor.drawing;
    if (drawing.PictureCount == 0) return;
    Files& files = *editor.platform.files;
    const std::string name{nameWithoutExtension(drawing.CurrentFileName)};
    const std::string folder = drawing.CurrentFolder + name + files.separator();
    if (!FolderExists(files, drawing.CurrentFolder, name))
        files.makeFolder(drawing.CurrentFolder + name);
    for (const PictureRow& row : drawing.PictureTable)
        if (!FileExists(files, folder, row.FileName))
            files.copy(row.FullPath, folder + row.FileName);
}

void parseAll(Editor& editor) {
    editor.drawing.ReadIncomplete = false;
    ParseDeviceString(editor.drawing, editor.platform);
    ParseLabelString(editor.drawing, editor.platform);
    ParsePictureString(editor.drawing, editor.platform);
    loadPictures(editor);
}

}  // namespace

void writeDrawing(Editor& editor, std::string_view text) {
    const Drawing& drawing = editor.drawing;
    copyPictures(editor);
    editor.platform.files->replace(drawing.CurrentFolder + drawing.CurrentFileName, text);
}

void openText(Editor& editor, const FileText& file, PageView view) {
    Drawing& drawing = editor.drawing;
    DrawingParts parts = splitFile(file.content, file.modified);
    const bool joining = drawing.TemplateActive;
    if (joining) parts.pageKey = drawing.PageLayoutKey;
    takeParts(drawing, std::move(parts));
    drawing.PictureFolderName = nameWithoutExtension(drawing.CurrentFileName);
    drawing.PictureParentFolder = drawing.CurrentFolder;
    if (extensionOf(drawing.CurrentFileName) == ".tpl") {
        drawing.TemplateActive = true;
        drawing.TemplateDevices = drawing.DeviceString;
        drawing.TemplateLabels = drawing.LabelString;
    }
    parseAll(editor);
    if (view == PageView::Kept)
        keepViewOnNewPage(editor);
    else if (!joining)
        layOutNewPage(editor);
    RedrawDrawing(editor);
    ClearHistory(editor);
    drawing.DrawingChanged = false;
    drawing.OpenAfterSave = false;
    drawing.TitleState = 1;
    UpdateTitle(editor);
}

void restoreText(Editor& editor, const FileText& file) {
    Drawing& drawing = editor.drawing;
    // A template in force stays so: the crash copy holds its items already.
    const bool withTemplate = std::exchange(drawing.TemplateActive, false);
    takeParts(drawing, splitFile(file.content, file.modified));
    drawing.TemplateActive = withTemplate;
    parseAll(editor);
    layOutNewPage(editor);
    RedrawDrawing(editor);
    ClearHistory(editor);
    // The copy on disk goes: what it held has no other place than the tables.
    drawing.DrawingChanged = true;
}

void loadPictures(Editor& editor) {
    editor.img.clear();
    for (const PictureRow& row : editor.drawing.PictureTable) {
        editor.img.emplace_back();
        const auto known = editor.HistoryPictures.find(row.FileName);
        if (known != editor.HistoryPictures.end() && known->second.FullPath == row.FullPath) {
            editor.img.back() = known->second.image;
            continue;
        }
        editor.platform.attempt("Load Picture", [&] {
            editor.img.back() = editor.platform.images->load(row.FullPath);
        });
    }
}

}  // namespace ladrix
