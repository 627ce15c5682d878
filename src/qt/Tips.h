// The fly-over tips of windows and dialogs, in one table and one style: what the control does, as
// an order without a full stop, the key in brackets.
#pragma once

class QWidget;

namespace ladrix {

// Gives every control of the window that has no tip of its own the one of the table.
void giveTips(QWidget& window);

}  // namespace ladrix
