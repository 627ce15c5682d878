// The two modes of the browser that copy the user's preferences out and back.
#pragma once

#include <string>
#include <string_view>

#include "browser/FileBrowser.h"

namespace ladrix {

constexpr std::string_view PreferencesName = "UserPreferences.upf";
// What a restore makes of preferences that cannot be read.
constexpr std::string_view UnreadableName = "Unreadable UserPreferences.upf";

// Copies the preferences to the browser's folder under this name; asks before one is replaced.
void savePreferencesCopy(FileBrowser& browser, const Editor& editor, const std::string& name);

// Puts the chosen file in the place of the preferences in the data folder. A file of another name,
// and the one that is in force, are refused. What is in memory is the caller's to read again.
void restorePreferences(FileBrowser& browser, const Editor& editor);

}  // namespace ladrix
