// Keys, mouse buttons, the wheel and distances on the screen as the core's handlers know them.
#pragma once

#include <QKeyEvent>

#include "platform/Types.h"

namespace ladrix {

constexpr Single TwipsPerPixel = 15;  // of a logical pixel

// The classic code: capitals and digits by their character, 0 for a key without a code.
Short classicKeyCode(const QKeyEvent& event);

// 1 Shift, 2 Ctrl, 4 Alt, added up.
Short classicShift(Qt::KeyboardModifiers modifiers);

// 1 left, 2 right, of both the left; 0 where it is neither.
Short classicButton(Qt::MouseButtons buttons);

// Counts a wheel's turns in whole notches; a part of one is kept for the next turn.
class WheelNotches {
  public:
    static constexpr int Angle = 120;  // of a notch, in the toolkit's eighths of a degree

    // Above 0: away from the user.
    int take(int angle) {
        travel_ += angle;
        const int notches = travel_ / Angle;
        travel_ -= notches * Angle;
        return notches;
    }

  private:
    int travel_ = 0;
};

}  // namespace ladrix
