#include "canvas/file/Pictures.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "canvas/file/PictureFiles.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/history/History.h"
#include "canvas/view/Painting.h"
#include "document/Records.h"
#include "platform/Encoding.h"
#include "platform/Files.h"

namespace ladrix {

namespace {

constexpr Single PixelsPerInch = 96;
constexpr Single Corner = 0.25f;  // inches from the upper left of the view

bool isUnzoomed(const Editor& editor) {
    return std::lround(editor.ZoomFactor * 10000) == 10000;
}

// The name as a record can hold it.
std::string recordableName(std::string name) {
    for (char& c : name)
        if (c == FieldSeparator || (c != '.' && !isBareName(std::string_view(&c, 1)))) c = '_';
    return name;
}

// Whether another file has the name, in the drawing or in its folder: a save would leave that one's
// content in the place of this picture's.
bool isTaken(const Editor& editor, const std::string& name, const std::string& path) {
    for (const PictureRow& row : editor.drawing.PictureTable)
        if (equalIgnoringCase(row.FileName, name)) return row.FullPath != path;
    for (const auto& [known, picture] : editor.HistoryPictures)
        if (equalIgnoringCase(known, name)) return picture.FullPath != path;
    const std::string folder = picturesFolder(editor);
    if (folder.empty() || path == folder + name) return false;
    return FileExists(*editor.platform.files, folder, name);
}

std::string freeName(const Editor& editor, const std::string& file, const std::string& path) {
    const std::string wanted = recordableName(file);
    int number = 1;
    while (isTaken(editor, numberedName(wanted, number), path))
        ++number;
    return numberedName(wanted, number);
}

}  // namespace

bool makeReadyForPicture(Editor& editor) {
    if (isUnzoomed(editor)) {
        ResetEditor(editor);
        return true;
    }
    editor.platform.tell(
        "Picture files cannot be inserted when the drawing is\r\n"
        "zoomed in or out. Change the zoom scale back to 100 %");
    return false;
}

void InsertPicture(Editor& editor, const std::string& folder, const std::string& file,
                   std::shared_ptr<const Picture> image) {
    Drawing& drawing = editor.drawing;
    if (drawing.PictureCount == LargestCount)
        throw Failure{failure::Overflow, "The drawing holds as many pictures as it can."};
    if (!image) image = editor.platform.images->load(folder + file);
    PictureRow row;
    row.FullPath = folder + file;
    row.FileName = freeName(editor, file, row.FullPath);
    row.Width = static_cast<Single>(image->pixelWidth()) / PixelsPerInch;
    row.Height = static_cast<Single>(image->pixelHeight()) / PixelsPerInch;
    const Single fit =
        std::min({1.f, editor.PageWidth / row.Width, editor.PageHeight / row.Height});
    row.Width *= fit;
    row.Height *= fit;
    row.Left = std::max(0.f, std::min(editor.ScaleLeft + Corner, editor.PageWidth - row.Width));
    row.Top = std::max(0.f, std::min(editor.ScaleTop + Corner, editor.PageHeight - row.Height));
    editor.img.resize(drawing.PictureTable.size());
    drawing.PictureTable.push_back(std::move(row));
    ++drawing.PictureCount;
    editor.img.push_back(std::move(image));
    keepPictureFile(editor, folder + file);
    drawing.DrawingChanged = true;
    RebuildPictureString(drawing, editor.platform);
    TakeUndoSnapshot(editor);
    ++editor.form.PictureVersion;
    RedrawDrawing(editor);
}

}  // namespace ladrix
