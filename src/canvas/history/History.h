// The undo history: slot UndoTop holds the newest snapshot, slot UndoPosition the one shown. A
// snapshot is the three master texts, each behind its marker:
//
//   ///DEVICES///...///LABELS///...///PICTURES///...
//
// From the 500th on each new snapshot shifts all slots down by one while UndoTop goes on growing,
// so that every other slot on the way back is empty. At the last slot UndoTop stays: the box of a
// full history is shown, once, and from there on each step takes the place of the oldest.
#pragma once

#include <string_view>

#include "canvas/state/Editor.h"

namespace ladrix {

constexpr std::string_view DevicesMark = "///DEVICES///", LabelsMark = "///LABELS///",
                           PicturesMark = "///PICTURES///";

// Called by everything that changes the drawing, when its texts hold the change.
void TakeUndoSnapshot(Editor& editor);

// The end of a command that has changed the tables: their texts follow, the drawing counts as
// changed and the history gets its step. Painting is the caller's.
void recordStep(Editor& editor);

// The slot whose texts are shown takes the present ones, where they differ: what changed the
// drawing without a step of its own, such as the later dashes of a line, can be brought back.
// Called before any step back or forth.
void keepShownTexts(Editor& editor);

// The present state is all the history there is.
void ClearHistory(Editor& editor);

}  // namespace ladrix
