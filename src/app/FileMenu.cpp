#include "app/FileMenu.h"

#include <chrono>
#include <utility>

#include "app/RecentFiles.h"
#include "canvas/file/DrawingCommands.h"
#include "canvas/file/SaveGuard.h"
#include "document/BackupCopies.h"

namespace ladrix {

namespace {

constexpr std::chrono::milliseconds Patience{200};

MenuState& recentEntry(Program& program, std::size_t index) {
    const auto first = static_cast<std::size_t>(Menu::mnuFileRecent0);
    return program.editor.form.menu[static_cast<Menu>(first + index)];
}

void showRecentFiles(Program& program) {
    RecentFiles& recent = program.recentFiles;
    const std::vector<bool> isThere = recent.probe.ask(recent.paths, Patience);
    for (std::size_t i = 0; i < RecentFilesKept; ++i) {
        MenuState& entry = recentEntry(program, i);
        entry.Visible = i < recent.paths.size();
        if (!entry.Visible) continue;
        entry.Enabled = isThere[i];
        entry.Caption = recentCaption(program, i);
    }
}

}  // namespace

void mnuFile_Popup(Program& program) {
    const std::string backups = BackupsOfDrawing(program.editor);
    program.editor.form.menu[Menu::mnuFileBackups].Enabled =
        !backups.empty() && hasBackups(*program.platform.files, backups);
    showRecentFiles(program);
}

void mnuFileBackups_Click(Program& program) {
    Editor& editor = program.editor;
    FileBrowser& browser = program.frmFile;
    if (!MayGiveUpDrawing(editor)) return;
    browser.StartFolder = BackupsOfDrawing(editor);
    if (browser.StartFolder.empty()) return;
    browser.FileBrowserMode = BrowserMode::Backup;
    const Sorting formerSorting =
        std::exchange(browser.sorting, {BrowserOrder::Modified, /*descending=*/true});
    editor.platform.dialogs->show(Form::frmFile);
    browser.sorting = formerSorting;
    if (!browser.Chosen) return;
    Drawing& drawing = editor.drawing;
    editor.backups.CurrentFolder = std::exchange(drawing.CurrentFolder, browser.BrowserFolder);
    editor.backups.CurrentFileName = std::exchange(drawing.CurrentFileName, browser.BrowserFile);
    editor.backups.offered = browser.BrowserFolder;
    OpenDrawing(editor);
    editor.backups.offered.clear();
}

}  // namespace ladrix
