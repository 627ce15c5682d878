#include "usersymbols/RemovedForm.h"

#include <algorithm>

#include "platform/Encoding.h"
#include "platform/Numbers.h"
#include "usersymbols/Libraries.h"
#include "usersymbols/UserButtonOrder.h"

namespace ladrix {

namespace {

constexpr std::string_view Description = "Bring Back a Removed Symbol";

// "Pump", "Pump (2)", "Pump (3)"; what `behind` says stays at the end.
template <class IsFree>
std::string firstFree(const std::string& name, std::string_view behind, const IsFree& isFree) {
    std::string free = name + std::string(behind);
    for (Long number = 2; !isFree(free); ++number)
        free = name + " (" + longText(number) + ')' + std::string(behind);
    return free;
}

void listItems(RemovedForm& form, Editor& editor) {
    Files& files = *editor.platform.files;
    form.Items = removedItems(files, removalsFolder(files, editor.BasePath));
    form.ListIndex = std::min(form.ListIndex, static_cast<int>(form.Items.size()) - 1);
    if (form.ListIndex < 0 && !form.Items.empty()) form.ListIndex = 0;
    form.cmdBringBack.Enabled = !form.Items.empty();
}

void showTarget(RemovedForm& form, const UserSymbols& symbols) {
    form.lblTarget.Caption =
        "A symbol goes into the open library, " + symbols.LibraryName + "; a library is opened.";
}

void tellBack(RemovedForm& form, Editor& editor, const RemovedItem& item, std::string_view where,
              const std::string& name) {
    std::string text = item.Name + " is back" + std::string(where);
    if (name != item.Name) text += " as " + name;
    form.lblMessage.Caption = editor.form.lblMessage.Caption = text + ".";
}

void bringSymbolBack(RemovedForm& form, UserSymbols& symbols, Editor& editor,
                     const RemovedItem& item) {
    Files& files = *editor.platform.files;
    const LibraryPlace library = currentLibrary(symbols);
    const std::vector<std::string> lines = readList(files, library);
    const FolderIndex here(files, symbols.SymbolFolder);
    const std::string name = firstFree(item.Name, {}, [&](const std::string& wanted) {
        return !here.hasAny(wanted) && nameRefusal(here, wanted).empty();
    });
    writeSymbol(files, symbols.SymbolFolder, name,
                readSymbol(files, item.Folder, FolderIndex(files, item.Folder), item.Name));
    const bool listed = std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
        return equalIgnoringCase(line, name);
    });
    if (!listed) appendToList(files, library, {name});
    ReloadLibrary(symbols, editor);
    tellBack(form, editor, item, " in " + library.Name, name);
}

void bringLibraryBack(RemovedForm& form, UserSymbols& symbols, Editor& editor,
                      const RemovedItem& item) {
    Files& files = *editor.platform.files;
    std::string_view stem = item.Name;
    if (stem.ends_with(LibrarySuffix)) stem.remove_suffix(LibrarySuffix.size());
    const std::string name =
        firstFree(std::string(stem), LibrarySuffix, [&](const std::string& wanted) {
            return !FolderExists(files, editor.BasePath, wanted) &&
                   !FileExists(files, editor.BasePath, wanted + ".lib");
        });
    restoreLibrary(files, item, {editor.BasePath, name});
    ListUserLibraries(symbols, editor);
    OpenUserLibrary(symbols, editor, editor.BasePath, name + ".lib");
    tellBack(form, editor, item, {}, name);
}

}  // namespace

void mnuLibBringBack_Click(RemovedForm& form, UserSymbols& symbols, Editor& editor) {
    if (editor.Arranging) return editor.platform.tell(OrderMessage);
    form = {};
    form.cmdBringBack.Caption = "Bring Back";
    form.cmdExit.Caption = "Close";
    form.cmdBringBack.Enabled = false;
    showTarget(form, symbols);
    if (!editor.platform.attempt(Description, [&] { listItems(form, editor); })) return;
    if (form.Items.empty()) form.lblMessage.Caption = "No symbol has been removed.";
    form.Visible = true;
    editor.platform.dialogs->show(Form::frmRemoved);
}

void lstRemoved_Click(RemovedForm& form, int row) {
    if (row >= 0 && row < static_cast<int>(form.Items.size())) form.ListIndex = row;
}

void frmRemoved_cmdBringBack_Click(RemovedForm& form, UserSymbols& symbols, Editor& editor) {
    if (form.ListIndex < 0) return;
    const RemovedItem item = form.Items[static_cast<std::size_t>(form.ListIndex)];
    editor.platform.attempt(Description, [&] {
        try {
            (item.IsLibrary ? bringLibraryBack : bringSymbolBack)(form, symbols, editor, item);
            listItems(form, editor);
        } catch (const Failure& failure) {
            form.lblMessage.Caption = item.Name + " was not brought back. " + failure.text;
            throw;
        }
    });
    showTarget(form, symbols);
}

void frmRemoved_cmdExit_Click(RemovedForm& form) {
    form.Visible = false;
}

std::shared_ptr<const Picture> pictureOfRemoved(const RemovedItem& item, const Platform& platform) {
    Files& files = *platform.files;
    try {
        std::string name = item.Name;
        if (item.IsLibrary) {
            const FolderIndex index(files, item.Folder);
            const std::vector<std::string> names = readList(files, {item.Folder, item.Library});
            const auto first =
                std::find_if(names.begin(), names.end(),
                             [&](const std::string& line) { return index.hasAll(line); });
            if (first == names.end()) return nullptr;
            name = *first;
        }
        return platform.images->fromBitmap(readIcon(files, item.Folder, name));
    } catch (const Failure&) {
        return nullptr;  // the row stands without a picture
    }
}

}  // namespace ladrix
