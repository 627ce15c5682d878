// frmFile, the program's own file dialog, as state: one form for opening and for saving. The caller
// sets the mode and the save flag, shows it, and reads the result.
#pragma once

#include <string>
#include <vector>

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

    std::string BrowserFolder, BrowserFile;  // the folder ends in the separator
    std::string BrowserFilter;               // "*.els;*.tpl"
    std::string BrowserExtension = ".els";   // what a save adds
    std::string BrowserSaveName;

    // The list as it is shown: folders first, then files that match, each in natural order without
    // regard to case; hidden ones left out.
    std::vector<FileEntry> entries;
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

// Sets the form up for the mode and the drawing's save flag, in the folder used last or the user's
// drawings.
void frmFile_Load(FileBrowser& browser, Editor& editor, const std::string& drawingsPath);
void frmFile_Unload(FileBrowser& browser, Editor& editor);

// Goes to a folder; one that cannot be read is reported and the present one stays.
void Dir1_Change(FileBrowser& browser, Editor& editor, const std::string& folder);
void goToParentFolder(FileBrowser& browser, Editor& editor);
// The folders from the root to the present one, for the path bar: name and whole path.
struct PathPart {
    std::string name, path;
};
std::vector<PathPart> pathParts(const FileBrowser& browser, const Files& files);

// A click on an entry: a file is previewed unless saving (then its name is taken); a folder is
// marked.
void FileList1_Click(FileBrowser& browser, Editor& editor, int index);
// Enter or a double-click: a folder is entered, a file is what OK means.
void FileList1_DblClick(FileBrowser& browser, Editor& editor, int index);

void cmdOpenOK_Click(FileBrowser& browser, Editor& editor);
void cmdSaveAs_Click(FileBrowser& browser, Editor& editor);
void cmdOpenCancel_Click(FileBrowser& browser, Editor& editor);
void cmdNewFolder_Click(FileBrowser& browser, Editor& editor);
void optFileType_Click(FileBrowser& browser, Editor& editor, Short type);

// The selected drawing, from the editor's tables, on a surface of the preview page's inches.
void drawPreview(FileBrowser& browser, Editor& editor, Surface& surface);

// Digits inside names compare as numbers; letters without regard to case.
bool naturalLess(std::string_view a, std::string_view b);

}  // namespace ladrix
