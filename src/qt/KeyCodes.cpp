#include "qt/KeyCodes.h"

#include "canvas/gestures/Keys.h"

namespace ladrix {

Short classicShift(Qt::KeyboardModifiers modifiers) {
    int shift = 0;
    if (modifiers & Qt::ShiftModifier) shift |= ShiftKey;
    if (modifiers & Qt::ControlModifier) shift |= ControlKey;
    if (modifiers & Qt::AltModifier) shift |= 4;
    return static_cast<Short>(shift);
}

Short classicButton(Qt::MouseButtons buttons) {
    if (buttons & Qt::LeftButton) return LeftButton;
    return buttons & Qt::RightButton ? Short{RightButton} : Short{0};
}

Short classicKeyCode(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Backspace:
            return key::Backspace;
        case Qt::Key_Tab:
            return 9;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return key::Enter;
        case Qt::Key_Escape:
            return key::Escape;
        case Qt::Key_PageUp:
            return key::PageUp;
        case Qt::Key_PageDown:
            return key::PageDown;
        case Qt::Key_End:
            return key::End;
        case Qt::Key_Home:
            return key::Home;
        case Qt::Key_Left:
            return key::Left;
        case Qt::Key_Up:
            return key::Up;
        case Qt::Key_Right:
            return key::Right;
        case Qt::Key_Down:
            return key::Down;
        case Qt::Key_Insert:
            return 45;
        case Qt::Key_Delete:
            return 46;
        case Qt::Key_Equal:
        case Qt::Key_Plus:
            return key::Plus;
        case Qt::Key_Minus:
        case Qt::Key_Underscore:
            return key::Minus;
        default:
            break;
    }
    const bool letterOrDigit = (event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) ||
                               (event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9);
    return letterOrDigit ? static_cast<Short>(event.key()) : Short{0};
}

}  // namespace ladrix
