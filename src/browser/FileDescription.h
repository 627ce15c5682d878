// frmDesc, the drawing's description: what of a typed text a drawing file can hold. The dialog's
// buttons are handled where the drawing's other commands are.
#pragma once

#include <string>
#include <string_view>

#include "canvas/state/Editor.h"

namespace ladrix {

// The text as core text with its lines divided by CR LF. Left out is what would not come back from
// the file: characters outside Windows-1252, control characters but the tab, and the slashes of the
// line that ends a description.
std::string describable(std::string_view utf8);

// The text in the box has changed; the view shows what the state then holds.
void frmDesc_txtDescription_Change(Editor& editor, std::string_view utf8);

}  // namespace ladrix
