// The handlers of the menu commands that belong to no smaller part: pages, demos, the web, the
// author's login.
#pragma once

#include "app/Program.h"

namespace ladrix {

// Asks about what is unsaved, in the drawing and in the help window. False: the run goes on.
bool mayEnd(Program& program);
void exitProgram(Program& program);

// 0 and 1: letter, portrait and landscape; 2 and 3: 11 by 17 likewise.
void choosePage(Program& program, int choice);
template <int Choice>
void choosePage(Program& program) {
    choosePage(program, Choice);
}

void openDemo(Program& program, int number);
template <int Number>
void openDemo(Program& program) {
    openDemo(program, Number);
}

void parseDevices(Program& program);
void chooseNormalMode(Program& program);
void flipAttachLabels(Program& program);
void showVersion(Program& program);
void viewTutorials(Program& program);
void viewLibraries(Program& program);
void visitSupport(Program& program);
void sendComment(Program& program);

// Asks for the password; the right one shows the admin menu.
void logIn(Program& program);

// A starter on the desktop, through the platform.
void createShortcut(Program& program);

}  // namespace ladrix
