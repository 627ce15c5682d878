// The edit of one label in txtEdit: begun, changed by each key, and kept or dropped. The label on
// the canvas shows what has been typed; the table holds the former text until it is kept.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// The font of row i as it stands on paper.
FontSpec fontOfLabel(const LabelTable& labels, std::size_t i);

// Opens the label in txtEdit, which asks for the focus. What was typed in another one is kept.
void beginLabelEdit(Editor& editor, Short index);

// Takes what stands in txtEdit now. The label keeps its centre while its text grows and shrinks.
// Without an edit nothing happens.
void changeLabelEdit(Editor& editor);

// Ends the edit: the label has the text typed, one undo step if that is another one than before.
// The text box closes unless the Text tool needs it. Without an edit nothing happens.
void keepLabelEdit(Editor& editor);

// The same, but the label has its former text.
void dropLabelEdit(Editor& editor);

// The field gets the focus: by a handler's wish, or because the person went there.
void focusTextBox(Editor& editor);
void txtEdit_GotFocus(Editor& editor);

}  // namespace ladrix
