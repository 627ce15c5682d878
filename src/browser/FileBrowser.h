// frmFile, the program's own file dialog, as state: one form for opening and for saving. The caller
// sets the mode and the drawing's save flag and shows it; the view loads it, calls the handler of
// each event and unloads it when Visible has become false.
#pragma once

#include <string>
#include <vector>

#include "browser/FileList.h"
#include "canvas/Controls.h"
#include "canvas/Editor.h"
#include "platform/Files.h"

namespace ladrix {

// What is being chosen. Each has its own file types and its own meaning of OK.
enum class BrowserMode : Short { Drawing = 0 };

struct FileBrowser {
    bool Visible = false;
    BrowserMode FileBrowserMode = BrowserMode::Drawing;
    std::string Caption;
    Single Width = 0, Height = 0;  // pixels, as the user left it last; 0: not shown yet

    std::string BrowserFolder;              // ends in the separator; kept for the whole run
    std::string BrowserFile;                // the file chosen; "" while none or a folder is marked
    std::string BrowserFilter;              // "*.els;*.tpl"
    std::string BrowserExtension = ".els";  // what a save adds
    std::string BrowserSaveName;            // the name in txtSaveAs

    // The list as it is shown.
    std::vector<FileEntry> entries;
    Sorting sorting;
    int Selected = -1;
    unsigned ListVersion = 0;  // raised by every change of the list

    TextBox txtSaveAs;
    Short optFileType = 0;  // 0 drawing, 1 template; while saving
    Control cmdOpenOK, cmdSaveAs, cmdOpenCancel, cmdNewFolder;
    Control framPreview;  // its caption tells what the preview shows
    TextBox txtDescription;
    bool PreviewShown = false;                       // the editor's tables hold the file selected
    Single PreviewWidth = 8.5f, PreviewHeight = 11;  // page, inches
    unsigned PreviewVersion = 0;
};

// Sets the form up for the mode and the drawing's save flag. A save begins in the drawing's own
// folder, an open in the folder used last; else the user's drawings, or what is left of its path.
void frmFile_Load(FileBrowser& browser, Editor& editor, const std::string& drawingsPath);
void frmFile_Unload(FileBrowser& browser, Editor& editor);

// Goes to a folder; one that cannot be read is reported and the present one stays.
void Dir1_Change(FileBrowser& browser, Editor& editor, const std::string& folder);
// Marks the folder that it leaves.
void goToParentFolder(FileBrowser& browser, Editor& editor);
// A path typed by hand: a folder is entered, a file chosen as by a click.
void goToPath(FileBrowser& browser, Editor& editor, std::string_view typed);
// The folders from the root to the present one, for the path bar: name and whole path.
struct PathPart {
    std::string name, path;
};
std::vector<PathPart> pathParts(const FileBrowser& browser, const Files& files);

// A click on an entry: a file is previewed unless saving (then its name is taken); a folder is
// marked. -1: none.
void FileList1_Click(FileBrowser& browser, Editor& editor, int index);
// Enter or a double-click: a folder is entered, a file is what OK means.
void FileList1_DblClick(FileBrowser& browser, Editor& editor, int index);
// A click on a column's head: sorts by it, and the other way round at the second.
void FileList1_ColumnClick(FileBrowser& browser, BrowserOrder order);
// Reads the folder again; the mark stays on its name. A folder that has gone gives way to the
// nearest one above it.
void FileList1_Refresh(FileBrowser& browser, Editor& editor);

void txtSaveAs_Change(FileBrowser& browser, const std::string& text);
// The extension of the name in the box follows.
void optFileType_Click(FileBrowser& browser, Editor& editor, Short type);

void cmdOpenOK_Click(FileBrowser& browser, Editor& editor);
void cmdSaveAs_Click(FileBrowser& browser, Editor& editor);
void cmdOpenCancel_Click(FileBrowser& browser, Editor& editor);
void cmdNewFolder_Click(FileBrowser& browser, Editor& editor);

// The selected drawing, from the editor's tables, on a surface of the preview page's inches.
void drawPreview(FileBrowser& browser, Editor& editor, Surface& surface);

}  // namespace ladrix
