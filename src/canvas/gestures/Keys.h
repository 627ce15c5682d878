// What the keys mean on the main window and on the canvas.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// The classic codes of the keys that the handlers know.
namespace key {
constexpr Short Backspace = 8, Enter = 13, Escape = 27, PageUp = 33, PageDown = 34, End = 35,
                Home = 36, Left = 37, Up = 38, Right = 39, Down = 40, Plus = 187, Minus = 189;
}
enum : Short { NoShift = 0, ShiftKey = 1, ControlKey = 2, ControlShift = 3, ControlAlt = 6 };

// The form sees keys first. ESC resets in every state. Letters come as their capital's code.
void Form_KeyDown(Editor& editor, Short keyCode, Short shift);

// False: the character is swallowed (ESC's own never reaches a text box).
bool Form_KeyPress(Short keyAscii);

// Arrow keys on a selection: without Shift they stretch lines and squares, with Shift they move.
void picLX_KeyDown(Editor& editor, Short keyCode, Short shift);

}  // namespace ladrix
