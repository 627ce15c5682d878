// frmFile, the program's own file dialog, as state: one form for every choice of a file or folder.
// The caller sets the mode (BrowserModes.h tells how) and shows it; the view loads it, calls the
// handler of each event and unloads it when Visible has become false.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "browser/BrowserModes.h"
#include "browser/FileList.h"
#include "canvas/state/Controls.h"
#include "canvas/state/Editor.h"
#include "platform/Files.h"

namespace ladrix {

struct Favorites;

// The folders that modes start in and work on; each ends in the separator, "" where there is none.
struct BrowserPlaces {
    std::string DrawingsPath;
    std::string PicturesPath = {};   // the user's pictures
    std::string DataFilesPath = {};  // where the user's own preferences belong
    std::string PrefsFolder = {};    // where the present preferences were read
};

struct FileBrowser {
    bool Visible = false;
    BrowserMode FileBrowserMode = BrowserMode::Drawing;
    std::string StartFolder, SuggestedName;  // of the next showing
    bool Chosen = false;                     // OK has been done since the form was loaded
    std::string Caption;
    Single Width = 0, Height = 0;  // pixels, as the user left it last; 0: not shown yet

    std::string BrowserFolder;              // ends in the separator; kept for the whole run
    std::string BrowserFile;                // the file chosen; "" while none or a folder is marked
    std::string BrowserFilter;              // "*.els;*.tpl"
    std::string BrowserExtension = ".els";  // what a save adds
    std::string BrowserSaveName;            // the name in txtSaveAs
    BrowserPlaces places;
    std::string PictureFolder;  // of the picture inserted last

    // The list as it is shown.
    std::vector<FileEntry> entries;
    Sorting sorting;
    int Selected = -1;
    unsigned ListVersion = 0;      // raised by every change of the list
    bool PreviewAllShown = false;  // the sheet of previews stands in the place of the list

    Control lblHeading, lblPrompt;
    Control lblSaveAs;  // beside txtSaveAs
    TextBox txtSaveAs;
    std::vector<FileType> FileTypes;  // what optFileType offers
    Short optFileType = 0;            // index in FileTypes; of a drawing 0, of a template 1
    Control
        lblNote;  // why the last step failed, also where the report of a repeated failure is quiet
    Control cmdOpenOK, cmdSaveAs, cmdOpenCancel, cmdNewFolder, cmdPreviewAll;
    ComboBox cmbFavorites;
    Control cmdGoFavorite, cmdAddToFavorites;
    Control framPreview;  // its caption tells what the preview shows
    TextBox txtDescription;
    bool PreviewShown = false;                       // the editor's tables hold the file selected
    Single PreviewWidth = 8.5f, PreviewHeight = 11;  // page, inches
    std::shared_ptr<const Picture> PreviewPicture;   // of the picture selected
    std::string PreviewNote;                         // why there is nothing to see; "": no reason
    unsigned PreviewVersion = 0;
};

// A name is typed and cmdSaveAs is what OK means.
bool isSaving(const FileBrowser& browser, const Drawing& drawing);

// Reads the favourites and sets the form up for the mode and the drawing's save flag. Drawings are
// looked for in the present drawing's folder; where a start folder cannot be read, in the user's
// drawings or what is left of that path.
void frmFile_Load(FileBrowser& browser, Editor& editor, Favorites& favorites,
                  const BrowserPlaces& places);
void frmFile_Unload(FileBrowser& browser, Editor& editor);

// Turns the form of a save into one that opens.
void CheckOpenFileMode(FileBrowser& browser, Editor& editor);

// A click on an entry: a file is previewed unless saving (then its name is taken); a folder is
// marked. -1: none.
void FileList1_Click(FileBrowser& browser, Editor& editor, int index);
// Enter or a double-click: a folder is entered, a file is what OK means.
void FileList1_DblClick(FileBrowser& browser, Editor& editor, int index);

void cmdOpenOK_Click(FileBrowser& browser, Editor& editor);
void cmdOpenCancel_Click(FileBrowser& browser, Editor& editor);
// Between the list and the sheet of previews.
void cmdPreviewAll_Click(FileBrowser& browser);

// The selected drawing, from the editor's tables, on a surface of the preview page's inches.
void drawPreview(FileBrowser& browser, Editor& editor, Surface& surface);

}  // namespace ladrix
