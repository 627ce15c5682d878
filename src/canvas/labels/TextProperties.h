// frmTextProps: the font of the selected labels, the text of a single one, and the font of new
// labels.
#pragma once

#include <array>
#include <string>

#include "canvas/state/Controls.h"
#include "canvas/state/Editor.h"

namespace ladrix {

// Sizes of text that can be chosen, points.
constexpr Single SmallestFontSize = 1, LargestFontSize = 400;

struct TextProperties {
    bool Visible = false;
    std::string Caption = "Text Properties";
    ComboBox cmbFonts;     // the installed families, and the one in use if it is not installed
    ComboBox cmbFontSize;  // points; any size may be typed
    std::array<CheckBox, 2> chkFontStyle;  // bold, italic
    TextBox txtCaption;                    // hidden while several labels are selected
    Control lblNote;                       // why what stands in the form cannot be used
};

// Fills the form from the selected label, of several from the last one, and shows it. Does nothing
// without one.
void mnuEditTextProps_Click(TextProperties& form, Editor& editor);

// Fills the lists.
void frmTextProps_Load(TextProperties& form, const Editor& editor);

// Another family was chosen. One of fixed width has a shorter list of sizes.
void cmbFonts_Click(TextProperties& form, const Editor& editor);
void LoadFontSizes(TextProperties& form);

// What is typed is only taken note of; a note about what stood there before goes.
void txtCaption_Change(TextProperties& form, std::string text);
void cmbFontSize_Change(TextProperties& form, std::string text);
// The field has kept out characters that a record cannot hold.
void txtCaption_Refused(TextProperties& form);

// Gives the selected labels what stands in the form, one undo step, and closes it; the editor
// resets. A size that is no number of points from 1 to 400 is reported, changes nothing and leaves
// the form open.
void SaveAndExit(TextProperties& form, Editor& editor);
void cmdOKTextProps_Click(TextProperties& form, Editor& editor);
void txtCaption_KeyDown(TextProperties& form, Editor& editor, Short keyCode);

// "Make Default": new labels take this font, in whole points. The form stays open.
void cmdSet_Click(TextProperties& form, Editor& editor);

// Closes the form with nothing changed.
void frmTextProps_Cancel(TextProperties& form);

}  // namespace ladrix
