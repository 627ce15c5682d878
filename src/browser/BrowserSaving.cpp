#include "browser/BrowserSaving.h"

#include <algorithm>
#include <utility>

#include "browser/BrowserFolders.h"
#include "browser/FormState.h"
#include "browser/PreferencesCopy.h"
#include "canvas/file/DrawingCommands.h"
#include "platform/Encoding.h"

namespace ladrix {

namespace {

constexpr FileType DrawingTypes[] = {{"&Drawing (.els)", ".els"}, {"&Template (.tpl)", ".tpl"}};

// Whether the name ends as one of the form's file types does.
bool hasTypedExtension(const FileBrowser& browser, std::string_view name) {
    const std::string extension = extensionOf(name);
    return std::any_of(browser.FileTypes.begin(), browser.FileTypes.end(),
                       [&](const FileType& type) { return type.extension == extension; });
}

std::string withExtension(const FileBrowser& browser, std::string_view name) {
    const std::string_view stem =
        hasTypedExtension(browser, name) ? nameWithoutExtension(name) : name;
    return std::string(stem).append(browser.BrowserExtension);
}

void takeType(FileBrowser& browser, Short type) {
    browser.optFileType = type;
    browser.BrowserExtension = browser.FileTypes[static_cast<std::size_t>(type)].extension;
    browser.BrowserFilter = "*" + browser.BrowserExtension;
}

std::string nameToOffer(const FileBrowser& browser, const Drawing& drawing) {
    switch (browser.FileBrowserMode) {
        case BrowserMode::SavePreferences:
            return std::string(nameWithoutExtension(PreferencesName));
        case BrowserMode::SaveExport:
            if (!browser.SuggestedName.empty()) return browser.SuggestedName;
            // The drawing's own extension gives way.
            return std::string(nameWithoutExtension(drawing.CurrentFileName));
        default:
            return drawing.CurrentFileName;
    }
}

// What the box means: the extension is added unless it stands there.
std::string nameToSave(const FileBrowser& browser) {
    const std::string typed = withoutBlanks(browser.txtSaveAs.Text);
    if (typed.empty() || hasTypedExtension(browser, typed)) return typed;
    return typed + browser.BrowserExtension;
}

// The file in the folder that bears the name; an exact one before one that differs in case.
std::optional<std::string> existingName(Files& files, const std::string& folder,
                                        std::string_view name) {
    std::optional<std::string> found;
    for (const FileEntry& entry : files.list(folder)) {
        if (entry.isFolder || !equalIgnoringCase(entry.name, name)) continue;
        if (entry.name == name) return entry.name;
        found = entry.name;
    }
    return found;
}

bool mayReplace(const Editor& editor, const FileBrowser& browser, const std::string& name) {
    return editor.platform.dialogs->message(name + " already exists. Do you want to replace it?",
                                            browser.Caption, Buttons::YesNo) == Answer::Yes;
}

// A save that is refused or fails leaves the form up; this very form turns into the one that opens.
void saveDrawing(FileBrowser& browser, Editor& editor, const std::string& name) {
    const SaveOutcome outcome = SaveDrawingAs(editor, browser.BrowserFolder, name);
    browser.lblNote.Caption = outcome.why;
    if (outcome.result != SaveResult::Saved) return;
    if (outcome.next == After::Open) return CheckOpenFileMode(browser, editor);
    browser.Chosen = true;
    browser.Visible = false;
}

void makeFolder(FileBrowser& browser, Editor& editor, const std::string& name,
                std::string_view taken, std::string_view title) {
    if (!isLegalFileName(name)) return tellIllegalName(editor);
    guarded(browser, editor, "New Folder", [&] {
        Files& files = *editor.platform.files;
        const std::string& folder = browser.BrowserFolder;
        if (FileExists(files, folder, name) || FolderExists(files, folder, name))
            return editor.platform.tell(taken, title);
        files.makeFolder(folder + name);
        if (browser.FileBrowserMode == BrowserMode::Folder) txtSaveAs_Change(browser, "");
        FileList1_Refresh(browser, editor);
        FileList1_Click(browser, editor, indexOf(browser, name));
    });
}

}  // namespace

void setUpSaving(FileBrowser& browser, const Drawing& drawing) {
    const auto types = traitsOf(browser.FileBrowserMode).types;
    if (types.empty())
        browser.FileTypes.assign(std::begin(DrawingTypes), std::end(DrawingTypes));
    else
        browser.FileTypes.assign(types.begin(), types.end());
    std::string name = nameToOffer(browser, drawing);
    Short type = 0;
    if (browser.FileBrowserMode == BrowserMode::SaveExport)
        for (std::size_t i = 0; i < browser.FileTypes.size(); ++i)
            if (browser.FileTypes[i].extension == extensionOf(name)) type = static_cast<Short>(i);
    takeType(browser, type);
    const bool bare = name.empty() || browser.FileBrowserMode == BrowserMode::SavePreferences;
    txtSaveAs_Change(browser, bare ? name : withExtension(browser, name));
    ++browser.txtSaveAs.SelectAllRequests;
}

void txtSaveAs_Change(FileBrowser& browser, const std::string& text) {
    browser.txtSaveAs.Text = browser.BrowserSaveName = text;
    browser.lblNote.Caption.clear();
    browser.cmdSaveAs.Enabled = !withoutBlanks(text).empty();
}

void optFileType_Click(FileBrowser& browser, Editor& editor, Short type) {
    if (type < 0 || static_cast<std::size_t>(type) >= browser.FileTypes.size()) return;
    takeType(browser, type);
    const std::string name = browser.txtSaveAs.Text;
    if (hasTypedExtension(browser, name)) txtSaveAs_Change(browser, withExtension(browser, name));
    FileList1_Refresh(browser, editor);
}

void cmdSaveAs_Click(FileBrowser& browser, Editor& editor) {
    const std::string name = nameToSave(browser);
    if (name.empty()) return;
    if (!isLegalFileName(name)) return tellIllegalName(editor);
    if (browser.FileBrowserMode == BrowserMode::SavePreferences)
        return savePreferencesCopy(browser, editor, name);
    const bool exporting = browser.FileBrowserMode == BrowserMode::SaveExport;
    guarded(browser, editor, exporting ? "Export Drawing" : "Save Drawing As", [&] {
        const auto existing = existingName(*editor.platform.files, browser.BrowserFolder, name);
        if (existing && !mayReplace(editor, browser, *existing)) return;
        const std::string target = existing.value_or(name);
        if (exporting)
            handOver(browser, browser.BrowserFolder, target);
        else
            saveDrawing(browser, editor, target);
    });
}

void cmdNewFolder_Click(FileBrowser& browser, Editor& editor) {
    if (browser.FileBrowserMode == BrowserMode::Folder) {
        const std::string name = withoutBlanks(browser.txtSaveAs.Text);
        if (!name.empty())
            return makeFolder(browser, editor, name,
                              "Action cancelled. A folder with that name already exists.",
                              "Creating New Folder");
    }
    const auto answer =
        editor.platform.dialogs->input("Please Enter a Name for the New Folder",
                                       browser.BrowserFolder + "Creating New Folder in", "");
    const std::string name = withoutBlanks(answer.value_or(""));
    if (name.empty()) return;
    makeFolder(browser, editor, name, "Folder Name Already Exists.", "Ladrix");
}

}  // namespace ladrix
