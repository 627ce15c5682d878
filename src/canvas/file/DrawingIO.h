// Between a drawing's file and the editor: the steps that open, save and restore share. Each throws
// a Failure where the file system fails; the commands catch it.
#pragma once

#include <string>

#include "canvas/state/Editor.h"
#include "document/DrawingFile.h"

namespace ladrix {

// Fills the tables from a file's text, or adds it to the template in force, and shows the drawing:
// at 100 percent from its upper left, or where the view stood.
enum class PageView { Fresh, Kept };
void openText(Editor& editor, const FileText& file, PageView view);

// Fills the tables from a crash copy; the drawing stays untitled.
void restoreText(Editor& editor, const FileText& file);

// Fills the device table alone, as previews show a drawing, and tells and reports nothing. Throws a
// Failure where not all of them can be read. A file without the parts of a drawing has none.
DrawingParts readDevices(Drawing& tables, const Platform& platform, const std::string& path);

// Loads the images of PictureTable, those of the history's pictures from memory, and keeps what
// their files hold; one that cannot be read leaves an empty place, told once.
void loadPictures(Editor& editor);

}  // namespace ladrix
