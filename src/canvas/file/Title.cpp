#include "canvas/file/Title.h"

namespace ladrix {

void UpdateTitle(Editor& editor) {
    const std::string& name = editor.drawing.CurrentFileName;
    const std::string& backup = editor.backups.shown;
    editor.form.Caption = "Ladrix - Current Library: " + editor.UserLibraryName +
                          " - File Name: " + (name.empty() ? "Untitled" : name) +
                          (backup.empty() ? "" : " (backup of " + backup + ")");
}

}  // namespace ladrix
