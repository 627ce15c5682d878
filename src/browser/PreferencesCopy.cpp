#include "browser/PreferencesCopy.h"

#include "browser/FormState.h"
#include "platform/Encoding.h"

namespace ladrix {

namespace {

// What cannot be read may yet be of use to somebody. It steps aside for the file that is restored.
void keepUnreadable(Files& files, const std::string& folder) {
    if (!FileExists(files, folder, PreferencesName)) return;
    const std::string path = pathIn(folder, PreferencesName);
    try {
        files.read(path);
    } catch (const Failure&) {
        files.rename(path, pathIn(folder, UnreadableName));
    }
}

}  // namespace

void savePreferencesCopy(FileBrowser& browser, const Editor& editor, const std::string& name) {
    guarded(browser, editor, "Save a Copy of the User Preferences", [&] {
        Files& files = *editor.platform.files;
        if (FileExists(files, browser.BrowserFolder, name) &&
            editor.platform.dialogs->message("Overwrite existing User Preferences File?",
                                             "Duplicate File Name", Buttons::YesNo) != Answer::Yes)
            return;
        // Until a setting has been changed, the shipped ones are the user's.
        const BrowserPlaces& places = browser.places;
        const bool own = FileExists(files, places.DataFilesPath, PreferencesName);
        const std::string& from = own ? places.DataFilesPath : places.PrefsFolder;
        files.copy(pathIn(from, PreferencesName), browser.BrowserFolder + name);
        editor.platform.tell("User Preferences Saved.");
        handOver(browser, browser.BrowserFolder, name);
    });
}

void restorePreferences(FileBrowser& browser, const Editor& editor) {
    const std::string& target = browser.places.DataFilesPath;
    if (!equalIgnoringCase(browser.BrowserFile, PreferencesName))
        return editor.platform.tell("Please select the file \"" + std::string(PreferencesName) +
                                    "\".");
    if (browser.BrowserFolder == target)
        return editor.platform.tell(
            "Restoration not possible. Source and destiny file are\r\n"
            "one and the same. Please browse to another location.");
    guarded(browser, editor, "Restore User Preferences", [&] {
        Files& files = *editor.platform.files;
        keepUnreadable(files, target);
        files.copy(browser.BrowserFolder + browser.BrowserFile, pathIn(target, PreferencesName));
        handOver(browser, browser.BrowserFolder, browser.BrowserFile);
    });
}

}  // namespace ladrix
