// The modal forms by their names.
#pragma once

#include "app/Program.h"

class QWidget;

namespace ladrix {

// Shows the form above the window and returns when its Visible has become false.
void runForm(Program& program, QWidget* window, Form form);

}  // namespace ladrix
