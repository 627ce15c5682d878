#include "browser/FormState.h"

#include <algorithm>
#include <utility>

#include "browser/BrowserSaving.h"
#include "canvas/file/DrawingCommands.h"
#include "document/PageLayout.h"

namespace ladrix {

namespace {

void previewDrawing(FileBrowser& browser, Editor& editor, const std::string& name) {
    if (extensionOf(name) == ".bmp") return;
    const auto preview = ReadPreview(editor, browser.BrowserFolder, name);
    if (!preview) {
        browser.PreviewNote = "This drawing cannot be shown.";
        return;
    }
    browser.PreviewShown = true;
    browser.txtDescription.Text = preview->description;
    const auto page = previewPageSize(preview->pageKey);
    if (!page) return;
    browser.PreviewWidth = page->PageWidth;
    browser.PreviewHeight = page->PageHeight;
}

// One that cannot be read cannot be placed either.
void previewPicture(FileBrowser& browser, Editor& editor, const std::string& name) {
    try {
        browser.PreviewPicture = editor.platform.images->load(browser.BrowserFolder + name);
    } catch (const Failure& failure) {
        browser.cmdOpenOK.Enabled = false;
        browser.PreviewNote = failure.text;
        editor.platform.tell("File structure corrupted and cannot be read.", "Bad File Structure");
    }
}

}  // namespace

std::string withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(" \t") - first + 1));
}

int indexOf(const FileBrowser& browser, std::string_view name) {
    const auto found = std::find_if(browser.entries.begin(), browser.entries.end(),
                                    [&](const FileEntry& entry) { return entry.name == name; });
    return found == browser.entries.end() ? -1 : static_cast<int>(found - browser.entries.begin());
}

std::string markedName(const FileBrowser& browser) {
    if (browser.Selected < 0) return {};
    return browser.entries[static_cast<std::size_t>(browser.Selected)].name;
}

void mark(FileBrowser& browser, int index) {
    browser.Selected = index;
    browser.BrowserFile.clear();
    // The present folder is a choice too.
    browser.cmdOpenOK.Enabled = index >= 0 || browser.FileBrowserMode == BrowserMode::Folder;
}

void clearPreview(FileBrowser& browser) {
    const BrowserPreview preview = traitsOf(browser.FileBrowserMode).preview;
    browser.PreviewShown = false;
    browser.PreviewPicture.reset();
    browser.PreviewNote.clear();
    browser.framPreview.Caption = preview == BrowserPreview::Unavailable ? "No Preview Available"
                                  : preview == BrowserPreview::Picture   ? "Picture Preview"
                                                                         : "Drawing Preview";
    browser.txtDescription.Text.clear();
    ++browser.PreviewVersion;
}

void showModeCaption(FileBrowser& browser, const Drawing& drawing) {
    const bool savesDrawing =
        isSaving(browser, drawing) && !traitsOf(browser.FileBrowserMode).saves;
    browser.Caption =
        savesDrawing ? "Saving File as..." : traitsOf(browser.FileBrowserMode).Caption;
}

void chooseFile(FileBrowser& browser, Editor& editor, const std::string& name) {
    browser.BrowserFile = name;
    browser.cmdOpenOK.Enabled = true;
    if (isSaving(browser, editor.drawing)) {
        txtSaveAs_Change(browser, name);
        ++browser.txtSaveAs.SelectAllRequests;
        return;
    }
    clearPreview(browser);
    switch (browser.FileBrowserMode) {
        case BrowserMode::Program:
        case BrowserMode::Folder:
        case BrowserMode::Library:
        case BrowserMode::MergeLibrary:
        case BrowserMode::TransferLibrary:
            return;
        case BrowserMode::Picture:
            return previewPicture(browser, editor, name);
        default:
            browser.Caption = "Open... " + name;
    }
    if (traitsOf(browser.FileBrowserMode).preview == BrowserPreview::Drawing)
        previewDrawing(browser, editor, name);
}

void handOver(FileBrowser& browser, std::string folder, std::string file) {
    browser.BrowserFolder = std::move(folder);
    browser.BrowserFile = std::move(file);
    browser.Chosen = true;
    browser.Visible = false;
}

void tellIllegalName(const Editor& editor) {
    editor.platform.tell(
        "Action Cancelled. File and Folder Names cannot include\r\n"
        "any of the following characters: / \\ : * ? < > | ",
        "Illegal Filename");
}

}  // namespace ladrix
