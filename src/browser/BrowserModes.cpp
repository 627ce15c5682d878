#include "browser/BrowserModes.h"

#include <algorithm>

namespace ladrix {

namespace {

constexpr FileType ExportTypes[] = {
    {"PDF (.pdf)", ".pdf"},
    {"SVG (.svg)", ".svg"},
    {"PNG (.png)", ".png"},
};
constexpr FileType PreferencesType[] = {{"", ".upf"}};

constexpr std::string_view OpenCaption = "Opening File From...";
constexpr std::string_view Drawings = "*.els;*.tpl", Libraries = "*.lib";

// clang-format off
constexpr ModeTraits Modes[] = {
    {BrowserMode::Drawing, OpenCaption, Drawings, "&Open", BrowserPreview::Drawing, BrowserStart::Drawing},
    {BrowserMode::WebPage, OpenCaption, "*.htm;*.html;*.xml", "&Open", BrowserPreview::Drawing, BrowserStart::Drawing},
    {BrowserMode::List, OpenCaption, "*.lst", "&Open", BrowserPreview::Drawing, BrowserStart::Drawing},
    {BrowserMode::Program, OpenCaption, "*.exe", "&Open", BrowserPreview::None, BrowserStart::Drawing},
    {BrowserMode::Library, "Opening User Library From...", Libraries, "&Open", BrowserPreview::Unavailable, BrowserStart::Base},
    {BrowserMode::Picture, "Inserting Picture From...", "*.bmp;*.ico;*.wmf;*.jpg;*.jpeg;*.gif", "&Insert", BrowserPreview::Picture, BrowserStart::Pictures},
    {BrowserMode::SavePreferences, "Saving User Preferences", "*.upf", "&OK", BrowserPreview::None, BrowserStart::Base, true,
     "", "Select a location to save the User Preferences and click OK.", PreferencesType},
    {BrowserMode::RestorePreferences, "Restoring User Preferences", "*.upf", "&OK", BrowserPreview::None, BrowserStart::Base, false,
     "", "Browse to and select the User Preferences File and click OK."},
    {BrowserMode::MergeLibrary, "Merging User Library From...", Libraries, "&Merge", BrowserPreview::Unavailable, BrowserStart::Base},
    {BrowserMode::TransferLibrary, "Transferring to User Library...", Libraries, "&OK", BrowserPreview::Unavailable, BrowserStart::Base},
    {BrowserMode::Backup, "Opening Backup From...", Drawings, "&Open", BrowserPreview::Drawing, BrowserStart::Base},
    {BrowserMode::SaveExport, "Exporting Drawing as...", "*.pdf", "&Save", BrowserPreview::None, BrowserStart::Drawing, true,
     "", "", ExportTypes},
    {BrowserMode::Folder, "Adding a Favorite Folder", "", "&OK", BrowserPreview::None, BrowserStart::Drawing, false,
     "How to Add a Favorite Folder", "Browse to the folder and click OK. A new folder is made under the name that you type."},
};
// clang-format on

}  // namespace

const ModeTraits& traitsOf(BrowserMode mode) {
    const auto found = std::find_if(std::begin(Modes), std::end(Modes),
                                    [&](const ModeTraits& traits) { return traits.mode == mode; });
    return found == std::end(Modes) ? Modes[0] : *found;
}

}  // namespace ladrix
