#include "browser/FileBrowser.h"

#include <algorithm>
#include <utility>

#include "browser/BrowserFolders.h"
#include "browser/BrowserSaving.h"
#include "browser/Favorites.h"
#include "browser/FormState.h"
#include "browser/PreferencesCopy.h"
#include "canvas/file/DrawingCommands.h"
#include "canvas/file/Pictures.h"

namespace ladrix {

namespace {

void showTexts(FileBrowser& browser, const ModeTraits& traits) {
    browser.cmdOpenOK = captioned(std::string(traits.OkCaption));
    browser.cmdSaveAs = captioned(traits.saves ? std::string(traits.OkCaption) : "&Save");
    browser.cmdOpenCancel = captioned("Cancel");
    browser.cmdNewFolder = captioned("&New Folder");
    browser.cmdPreviewAll = captioned("Preview A&ll");
    browser.lblHeading = captioned(std::string(traits.heading));
    browser.lblHeading.Visible = !traits.heading.empty();
    browser.lblPrompt = captioned(std::string(traits.prompt));
    browser.lblPrompt.Visible = !traits.prompt.empty();
    browser.lblSaveAs =
        captioned(traits.mode == BrowserMode::Folder ? "New &folder" : "&File name");
}

void setUpForm(FileBrowser& browser, const Drawing& drawing) {
    const ModeTraits& traits = traitsOf(browser.FileBrowserMode);
    const bool saving = isSaving(browser, drawing);
    const bool drawings = traits.preview == BrowserPreview::Drawing && !saving;
    showTexts(browser, traits);
    browser.cmdOpenOK.Visible = !saving;
    browser.cmdSaveAs.Visible = saving;
    browser.lblSaveAs.Visible = browser.txtSaveAs.Visible =
        saving || traits.mode == BrowserMode::Folder;
    browser.framPreview.Visible = !saving && traits.preview != BrowserPreview::None;
    browser.txtDescription.Visible = browser.cmdPreviewAll.Visible = drawings;
    browser.PreviewAllShown = browser.PreviewAllShown && drawings;
    browser.FileTypes.clear();
    browser.optFileType = 0;
    browser.BrowserFilter = traits.BrowserFilter;
    txtSaveAs_Change(browser, "");
    if (saving) setUpSaving(browser, drawing);
    showModeCaption(browser, drawing);
    mark(browser, -1);
    clearPreview(browser);
}

void openChosen(FileBrowser& browser, Editor& editor) {
    if (RefusedWhileCopying(editor)) return;
    editor.drawing.CurrentFolder = browser.BrowserFolder;
    editor.drawing.CurrentFileName = browser.BrowserFile;
    browser.Chosen = true;
    browser.Visible = false;
    OpenDrawing(editor);
}

void openInDrawingMode(FileBrowser& browser, Editor& editor) {
    if (extensionOf(browser.BrowserFile) != ".bmp") return openChosen(browser, editor);
    if (!editor.platform.shell->open(browser.BrowserFolder + browser.BrowserFile))
        editor.platform.tell("No program could be found that opens " + browser.BrowserFile + ".",
                             browser.Caption);
}

void placePicture(FileBrowser& browser, Editor& editor) {
    guarded(browser, editor, "Insert Picture", [&] {
        InsertPicture(editor, browser.BrowserFolder, browser.BrowserFile, browser.PreviewPicture);
        browser.PictureFolder = browser.BrowserFolder;
        handOver(browser, browser.BrowserFolder, browser.BrowserFile);
    });
}

// A cancel restores nothing: who saves now must know what.
void tellPreviewStays(Editor& editor) {
    const std::string& former = editor.drawing.CurrentFileName;
    editor.form.lblMessage.Caption =
        "The drawing is now the preview of " + editor.PreviewedFile + ". " +
        (former.empty() ? "What stood there before is gone."
                        : "For its former text open " + former +
                              " again or, once saved, \"Open Backup of This Drawing...\".");
}

// The marked folder, else the one that is shown.
void chooseFolder(FileBrowser& browser, Editor& editor) {
    if (!withoutBlanks(browser.txtSaveAs.Text).empty()) return cmdNewFolder_Click(browser, editor);
    const std::string marked = markedName(browser);
    handOver(browser,
             marked.empty() ? browser.BrowserFolder
                            : withSeparator(*editor.platform.files, browser.BrowserFolder + marked),
             "");
}

}  // namespace

bool isSaving(const FileBrowser& browser, const Drawing& drawing) {
    const BrowserMode mode = browser.FileBrowserMode;
    if (traitsOf(mode).saves) return true;
    return drawing.SaveInProgress && (mode == BrowserMode::Drawing || mode == BrowserMode::WebPage);
}

void frmFile_Load(FileBrowser& browser, Editor& editor, Favorites& favorites,
                  const BrowserPlaces& places) {
    browser.Visible = true;
    browser.Chosen = false;
    browser.lblNote = {};
    browser.places = places;
    if (!favorites.FavoritesChanged) ReadFavorites(favorites, editor);
    LoadFavoriteFolders(favorites, browser);
    setUpForm(browser, editor.drawing);
    enterStartFolder(browser, editor);
}

void frmFile_Unload(FileBrowser& browser, Editor& editor) {
    browser.FileBrowserMode = BrowserMode::Drawing;
    browser.StartFolder.clear();
    browser.SuggestedName.clear();
    browser.PreviewPicture.reset();
    editor.drawing.SaveInProgress = false;
}

void CheckOpenFileMode(FileBrowser& browser, Editor& editor) {
    browser.FileBrowserMode = BrowserMode::Drawing;
    setUpForm(browser, editor.drawing);
    browser.BrowserFilter = "*.els";
    FileList1_Refresh(browser, editor);
}

void FileList1_Click(FileBrowser& browser, Editor& editor, int index) {
    if (index >= static_cast<int>(browser.entries.size())) return;
    browser.lblNote.Caption.clear();
    mark(browser, std::max(index, -1));
    const bool isFile = index >= 0 && !browser.entries[static_cast<std::size_t>(index)].isFolder;
    if (isFile) {
        // By value: a failing preview may bring up a box, behind which the list is read again.
        const std::string name = browser.entries[static_cast<std::size_t>(index)].name;
        return chooseFile(browser, editor, name);
    }
    clearPreview(browser);
    showModeCaption(browser, editor.drawing);
}

void FileList1_DblClick(FileBrowser& browser, Editor& editor, int index) {
    if (index < 0 || index >= static_cast<int>(browser.entries.size())) return;
    const FileEntry& entry = browser.entries[static_cast<std::size_t>(index)];
    if (entry.isFolder) return Dir1_Change(browser, editor, browser.BrowserFolder + entry.name);
    if (browser.Selected != index || browser.BrowserFile != entry.name)
        FileList1_Click(browser, editor, index);
    if (isSaving(browser, editor.drawing))
        cmdSaveAs_Click(browser, editor);
    else
        cmdOpenOK_Click(browser, editor);
}

void cmdOpenOK_Click(FileBrowser& browser, Editor& editor) {
    if (!browser.cmdOpenOK.Enabled) return;
    if (browser.FileBrowserMode == BrowserMode::Folder) return chooseFolder(browser, editor);
    if (browser.BrowserFile.empty()) return FileList1_DblClick(browser, editor, browser.Selected);
    switch (browser.FileBrowserMode) {
        case BrowserMode::Drawing:
            return openInDrawingMode(browser, editor);
        case BrowserMode::Picture:
            return placePicture(browser, editor);
        case BrowserMode::RestorePreferences:
            return restorePreferences(browser, editor);
        default:
            return handOver(browser, browser.BrowserFolder, browser.BrowserFile);
    }
}

void cmdOpenCancel_Click(FileBrowser& browser, Editor& editor) {
    browser.Visible = false;
    const bool previews = traitsOf(browser.FileBrowserMode).preview == BrowserPreview::Drawing &&
                          !isSaving(browser, editor.drawing);
    if (previews && !editor.PreviewedFile.empty()) tellPreviewStays(editor);
}

void cmdPreviewAll_Click(FileBrowser& browser) {
    browser.PreviewAllShown = !browser.PreviewAllShown;
}

void drawPreview(FileBrowser& browser, Editor& editor, Surface& surface) {
    if (!browser.PreviewShown) return;
    const DeviceTable& devices = editor.drawing.devices;
    const Extent view = surface.visible();
    for (Short i = 0; i < devices.DeviceCount; ++i) {
        if (!deviceExtent(devices, i).meets(view)) continue;
        drawRow(editor.symbols, editor.drawing, editor.platform, surface, devices, i,
                devices.DeviceColor[static_cast<std::size_t>(i)]);
    }
}

}  // namespace ladrix
