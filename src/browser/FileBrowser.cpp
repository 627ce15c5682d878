#include "browser/FileBrowser.h"

#include <algorithm>
#include <utility>

#include "canvas/DrawingCommands.h"
#include "document/PageLayout.h"
#include "platform/Encoding.h"

namespace ladrix {

namespace {

constexpr std::string_view IllegalName =
    "Action Cancelled. File and Folder Names cannot include\r\n"
    "any of the following characters: / \\ : * ? < > | ";

void tellIllegalName(const Editor& editor) {
    editor.platform.tell(IllegalName, "Illegal Filename");
}

// Runs a handler's steps on its single error path. False if they failed.
template <class Steps>
bool guarded(Editor& editor, std::string_view description, const Steps& steps) {
    try {
        steps();
        return true;
    } catch (const Failure& failure) {
        if (editor.platform.ReportError) editor.platform.ReportError(description, failure);
        return false;
    }
}

std::string withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(" \t") - first + 1));
}

bool isDrawingExtension(std::string_view extension) {
    return extension == ".els" || extension == ".tpl";
}

std::string withExtension(std::string_view name, std::string_view extension) {
    const std::string_view stem =
        isDrawingExtension(extensionOf(name)) ? nameWithoutExtension(name) : name;
    return std::string(stem).append(extension);
}

// ---- The form's state

void showName(FileBrowser& browser, const std::string& name) {
    txtSaveAs_Change(browser, name);
    ++browser.txtSaveAs.SelectAllRequests;
}

void clearPreview(FileBrowser& browser) {
    browser.PreviewShown = false;
    browser.framPreview.Caption = "Drawing Preview";
    browser.txtDescription.Text.clear();
    ++browser.PreviewVersion;
}

void mark(FileBrowser& browser, int index) {
    browser.Selected = index;
    browser.BrowserFile.clear();
    browser.cmdOpenOK.Enabled = index >= 0;
}

int indexOf(const FileBrowser& browser, std::string_view name) {
    const auto found = std::find_if(browser.entries.begin(), browser.entries.end(),
                                    [&](const FileEntry& entry) { return entry.name == name; });
    return found == browser.entries.end() ? -1 : static_cast<int>(found - browser.entries.begin());
}

void setUpOpen(FileBrowser& browser) {
    browser.Caption = "Opening File From...";
    browser.BrowserFilter = "*.els;*.tpl";
}

void setUpSave(FileBrowser& browser, const Drawing& drawing) {
    browser.Caption = "Saving File as...";
    browser.BrowserFilter = "*.els";
    const std::string& name = drawing.CurrentFileName;
    showName(browser, name.empty() ? name : withExtension(name, browser.BrowserExtension));
}

void setUpForm(FileBrowser& browser, const Drawing& drawing) {
    const bool saving = drawing.SaveInProgress;
    browser.optFileType = 0;
    browser.BrowserExtension = ".els";
    browser.cmdOpenOK = captioned("&Open");
    browser.cmdSaveAs = captioned("&Save");
    browser.cmdOpenCancel = captioned("Cancel");
    browser.cmdNewFolder = captioned("&New Folder");
    browser.cmdOpenOK.Visible = !saving;
    browser.framPreview.Visible = browser.txtDescription.Visible = !saving;
    browser.cmdSaveAs.Visible = browser.txtSaveAs.Visible = saving;
    browser.txtSaveAs.Text.clear();
    if (saving)
        setUpSave(browser, drawing);
    else
        setUpOpen(browser);
    mark(browser, -1);
    clearPreview(browser);
}

std::string markedName(const FileBrowser& browser) {
    if (browser.Selected < 0) return {};
    return browser.entries[static_cast<std::size_t>(browser.Selected)].name;
}

// ---- Folders

// Shows the folder; throws, with everything as it was, if it cannot be read.
void enter(FileBrowser& browser, Editor& editor, const std::string& folder) {
    Files& files = *editor.platform.files;
    const std::string path = withSeparator(files, folder);
    browser.entries = listFolder(files, path, browser.BrowserFilter, browser.sorting);
    browser.BrowserFolder = path;
    ++browser.ListVersion;
    mark(browser, -1);
    clearPreview(browser);
    if (!editor.drawing.SaveInProgress) browser.Caption = "Opening File From...";
}

bool canEnter(FileBrowser& browser, Editor& editor, const std::string& folder) {
    if (folder.empty()) return false;
    try {
        enter(browser, editor, folder);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

// The nearest folder on the path that can be read. False if there is none, up to the root.
bool enterNearest(FileBrowser& browser, Editor& editor, std::string folder) {
    while (!canEnter(browser, editor, folder)) {
        const std::string parent = parentFolder(*editor.platform.files, folder);
        if (parent == folder) return false;
        folder = parent;
    }
    return true;
}

void enterStartFolder(FileBrowser& browser, Editor& editor, const std::string& drawingsPath) {
    const Drawing& drawing = editor.drawing;
    // The program's own folder holds what is shipped with it, not what users save.
    const bool hasHome =
        !drawing.CurrentFileName.empty() && drawing.CurrentFolder != editor.AppFilePath;
    const std::string home = hasHome ? drawing.CurrentFolder : std::string();
    const std::string last = browser.BrowserFolder;
    const std::string& first = drawing.SaveInProgress ? home : last;
    const std::string& second = drawing.SaveInProgress ? last : home;
    if (canEnter(browser, editor, first) || canEnter(browser, editor, second)) return;
    if (enterNearest(browser, editor, drawingsPath)) return;
    browser.entries.clear();
    browser.BrowserFolder = drawingsPath;
    ++browser.ListVersion;
}

// ---- Opening

void chooseFile(FileBrowser& browser, Editor& editor, const std::string& name) {
    browser.BrowserFile = name;
    browser.cmdOpenOK.Enabled = true;
    if (editor.drawing.SaveInProgress) return showName(browser, name);
    browser.Caption = "Open... " + name;
    clearPreview(browser);
    if (extensionOf(name) == ".bmp") return;
    const auto preview = ReadPreview(editor, browser.BrowserFolder, name);
    if (!preview) return;
    browser.PreviewShown = true;
    browser.txtDescription.Text = preview->description;
    const auto page = previewPageSize(preview->pageKey);
    if (!page) return;
    browser.PreviewWidth = page->PageWidth;
    browser.PreviewHeight = page->PageHeight;
}

void openChosen(FileBrowser& browser, Editor& editor) {
    Drawing& drawing = editor.drawing;
    std::string formerFolder = std::exchange(drawing.CurrentFolder, browser.BrowserFolder);
    std::string formerName = std::exchange(drawing.CurrentFileName, browser.BrowserFile);
    drawing.OpenAfterSave = true;
    browser.Visible = false;
    OpenDrawing(editor);
    // A drawing that has been opened has cleared the flag. One that has not must not lend its name
    // to what the tables hold instead.
    if (!std::exchange(drawing.OpenAfterSave, false)) return;
    if (drawing.CurrentFileName != browser.BrowserFile) return;
    drawing.CurrentFolder = std::move(formerFolder);
    drawing.CurrentFileName = std::move(formerName);
}

// ---- Saving

// What the box means: the extension is added unless it stands there.
std::string nameToSave(const FileBrowser& browser) {
    const std::string typed = withoutBlanks(browser.txtSaveAs.Text);
    if (typed.empty() || isDrawingExtension(extensionOf(typed))) return typed;
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

// A save that is refused or fails leaves the form up, and the drawing its former name.
void saveUnder(FileBrowser& browser, Editor& editor, const std::string& name) {
    Drawing& drawing = editor.drawing;
    std::string formerFolder = std::exchange(drawing.CurrentFolder, browser.BrowserFolder);
    std::string formerName = std::exchange(drawing.CurrentFileName, name);
    // This very form turns into the one that opens.
    const bool openNext = std::exchange(drawing.OpenAfterSave, false);
    SaveDrawing(editor);
    const bool saved = !drawing.SaveInProgress && !drawing.DrawingChanged;
    if (!saved) {
        drawing.CurrentFolder = std::move(formerFolder);
        drawing.CurrentFileName = std::move(formerName);
        drawing.OpenAfterSave = openNext;
        drawing.SaveInProgress = true;
        return;
    }
    browser.Visible = openNext;
    if (!openNext) return;
    setUpForm(browser, drawing);
    FileList1_Refresh(browser, editor);
}

}  // namespace

void frmFile_Load(FileBrowser& browser, Editor& editor, const std::string& drawingsPath) {
    browser.Visible = true;
    setUpForm(browser, editor.drawing);
    enterStartFolder(browser, editor, drawingsPath);
}

void frmFile_Unload(FileBrowser& browser, Editor& editor) {
    browser.FileBrowserMode = BrowserMode::Drawing;
    editor.drawing.SaveInProgress = false;
}

void Dir1_Change(FileBrowser& browser, Editor& editor, const std::string& folder) {
    guarded(editor, "Change Folder " + folder, [&] { enter(browser, editor, folder); });
}

void goToParentFolder(FileBrowser& browser, Editor& editor) {
    const std::string left = browser.BrowserFolder;
    const std::string parent = parentFolder(*editor.platform.files, left);
    if (parent == left) return;
    Dir1_Change(browser, editor, parent);
    if (browser.BrowserFolder != parent) return;
    std::string name = left.substr(parent.size());
    name.pop_back();
    mark(browser, indexOf(browser, name));
}

void goToPath(FileBrowser& browser, Editor& editor, std::string_view typed) {
    const std::string blankless = withoutBlanks(typed);
    if (blankless.empty()) return;
    Files& files = *editor.platform.files;
    guarded(editor, "Go to Folder", [&] {
        const std::string path = resolvedPath(files, browser.BrowserFolder, blankless);
        const auto status = files.status(path);
        if (!status || status->isFolder) return enter(browser, editor, path);
        enter(browser, editor, parentFolder(files, withSeparator(files, path)));
        mark(browser, indexOf(browser, status->name));
        chooseFile(browser, editor, status->name);
    });
}

std::vector<PathPart> pathParts(const FileBrowser& browser, const Files& files) {
    std::vector<PathPart> parts;
    std::string folder = browser.BrowserFolder;
    while (!folder.empty()) {
        const std::string parent = parentFolder(files, folder);
        const bool isRoot = parent == folder;
        std::string name = isRoot ? folder : folder.substr(parent.size());
        if (!isRoot) name.pop_back();
        parts.push_back({std::move(name), folder});
        folder = isRoot ? std::string() : parent;
    }
    std::reverse(parts.begin(), parts.end());
    return parts;
}

void FileList1_Click(FileBrowser& browser, Editor& editor, int index) {
    if (index >= static_cast<int>(browser.entries.size())) return;
    mark(browser, std::max(index, -1));
    const bool isFile = index >= 0 && !browser.entries[static_cast<std::size_t>(index)].isFolder;
    if (isFile) {
        // By value: a failing preview may bring up a box, behind which the list is read again.
        const std::string name = browser.entries[static_cast<std::size_t>(index)].name;
        return chooseFile(browser, editor, name);
    }
    clearPreview(browser);
    if (!editor.drawing.SaveInProgress) browser.Caption = "Opening File From...";
}

void FileList1_DblClick(FileBrowser& browser, Editor& editor, int index) {
    if (index < 0 || index >= static_cast<int>(browser.entries.size())) return;
    const FileEntry& entry = browser.entries[static_cast<std::size_t>(index)];
    if (entry.isFolder) return Dir1_Change(browser, editor, browser.BrowserFolder + entry.name);
    if (browser.Selected != index || browser.BrowserFile != entry.name)
        FileList1_Click(browser, editor, index);
    if (editor.drawing.SaveInProgress)
        cmdSaveAs_Click(browser, editor);
    else
        cmdOpenOK_Click(browser, editor);
}

void FileList1_ColumnClick(FileBrowser& browser, BrowserOrder order) {
    const bool again = browser.sorting.order == order;
    browser.sorting = {order, again && !browser.sorting.descending};
    const std::string marked = markedName(browser);
    sortEntries(browser.entries, browser.sorting);
    browser.Selected = indexOf(browser, marked);
    ++browser.ListVersion;
}

void FileList1_Refresh(FileBrowser& browser, Editor& editor) {
    const std::string marked = markedName(browser);
    guarded(editor, "Refresh Folder", [&] {
        Files& files = *editor.platform.files;
        if (!files.status(browser.BrowserFolder)) {
            enterNearest(browser, editor, browser.BrowserFolder);
            return;
        }
        browser.entries =
            listFolder(files, browser.BrowserFolder, browser.BrowserFilter, browser.sorting);
        browser.Selected = indexOf(browser, marked);
        ++browser.ListVersion;
        if (browser.Selected >= 0 || marked.empty()) return;
        mark(browser, -1);
        clearPreview(browser);
    });
}

void txtSaveAs_Change(FileBrowser& browser, const std::string& text) {
    browser.txtSaveAs.Text = browser.BrowserSaveName = text;
    browser.cmdSaveAs.Enabled = !withoutBlanks(text).empty();
}

void optFileType_Click(FileBrowser& browser, Editor& editor, Short type) {
    browser.optFileType = type;
    browser.BrowserExtension = type == 1 ? ".tpl" : ".els";
    browser.BrowserFilter = "*" + browser.BrowserExtension;
    const std::string name = browser.txtSaveAs.Text;
    if (isDrawingExtension(extensionOf(name)))
        txtSaveAs_Change(browser, withExtension(name, browser.BrowserExtension));
    FileList1_Refresh(browser, editor);
}

void cmdOpenOK_Click(FileBrowser& browser, Editor& editor) {
    if (browser.BrowserFile.empty()) return FileList1_DblClick(browser, editor, browser.Selected);
    if (extensionOf(browser.BrowserFile) != ".bmp") return openChosen(browser, editor);
    if (!editor.platform.shell->open(browser.BrowserFolder + browser.BrowserFile))
        editor.platform.tell("No program could be found that opens " + browser.BrowserFile + ".",
                             browser.Caption);
}

void cmdSaveAs_Click(FileBrowser& browser, Editor& editor) {
    const std::string name = nameToSave(browser);
    if (name.empty()) return;
    if (!isLegalFileName(name)) return tellIllegalName(editor);
    guarded(editor, "Save Drawing As", [&] {
        const auto existing = existingName(*editor.platform.files, browser.BrowserFolder, name);
        if (existing && !mayReplace(editor, browser, *existing)) return;
        saveUnder(browser, editor, existing.value_or(name));
    });
}

void cmdOpenCancel_Click(FileBrowser& browser, Editor& editor) {
    browser.Visible = false;
    // Without this the next save would go on to an open that nobody waits for.
    if (!editor.drawing.SaveInProgress) editor.drawing.OpenAfterSave = false;
}

void cmdNewFolder_Click(FileBrowser& browser, Editor& editor) {
    const auto answer =
        editor.platform.dialogs->input("Please Enter a Name for the New Folder",
                                       browser.BrowserFolder + "Creating New Folder in", "");
    const std::string name = withoutBlanks(answer.value_or(""));
    if (name.empty()) return;
    if (!isLegalFileName(name)) return tellIllegalName(editor);
    guarded(editor, "New Folder", [&] {
        Files& files = *editor.platform.files;
        const std::string& folder = browser.BrowserFolder;
        if (FolderExists(files, folder, name) || FileExists(files, folder, name))
            return editor.platform.tell("Folder Name Already Exists.");
        files.makeFolder(folder + name);
        FileList1_Refresh(browser, editor);
        FileList1_Click(browser, editor, indexOf(browser, name));
    });
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
