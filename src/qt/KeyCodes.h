// Keys, modifiers and mouse buttons as the core's handlers know them.
#pragma once

#include <QKeyEvent>

#include "platform/Types.h"

namespace ladrix {

// The classic code: capitals and digits by their character, 0 for a key without a code.
Short classicKeyCode(const QKeyEvent& event);

// 1 Shift, 2 Ctrl, 4 Alt, added up.
Short classicShift(Qt::KeyboardModifiers modifiers);

// 1 left, 2 right, of both the left; 0 where it is neither.
Short classicButton(Qt::MouseButtons buttons);

}  // namespace ladrix
