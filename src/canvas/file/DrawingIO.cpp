#include "canvas/file/DrawingIO.h"

#include <utility>

#include "canvas/file/FileText.h"
#include "canvas/file/PictureFiles.h"
#include "canvas/file/Title.h"
#include "canvas/history/History.h"
#include "canvas/view/Painting.h"
#include "canvas/view/View.h"
#include "document/Records.h"
#include "platform/SilentDialogs.h"

namespace ladrix {

namespace {

void parseAll(Editor& editor) {
    editor.drawing.ReadIncomplete = false;
    ParseDeviceString(editor.drawing, editor.platform);
    ParseLabelString(editor.drawing, editor.platform);
    ParsePictureString(editor.drawing, editor.platform);
    loadPictures(editor);
}

}  // namespace

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
    forgetAfterSave(drawing, After::Open);
    editor.PreviewedFile.clear();
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

DrawingParts readDevices(Drawing& tables, const Platform& platform, const std::string& path) {
    const FileText file = readDrawingFile(*platform.files, path);
    DrawingParts parts = splitFile(file.content, file.modified);
    SilentDialogs silence;
    Platform quiet = platform;
    quiet.dialogs = &silence;
    quiet.ReportError = [](std::string_view, const Failure&) {};
    tables.DeviceString = std::exchange(parts.devices, {});
    tables.ReadIncomplete = false;
    ParseDeviceString(tables, quiet);
    if (tables.ReadIncomplete) throw Failure{failure::TypeMismatch, "A record cannot be read."};
    return parts;
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
            keepPictureFile(editor, row.FullPath);
        });
    }
}

}  // namespace ladrix
