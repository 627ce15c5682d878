// The editor as a program.
#pragma once

namespace ladrix {

// Runs until the window is closed. With "--demo-screenshot FILE" it opens the first demonstration
// drawing, writes the window's picture to FILE and ends: 0, or 1 if it could not.
int runEditor(int argc, char** argv);

struct Program;
struct QtPlatform;
class MainWindow;

// The machine's dialogs belong to the window, which shows the state after all that the machine
// calls. Once per run, before the window is shown.
void connectPlatform(QtPlatform& machine, Program& program, MainWindow& window);

}  // namespace ladrix
