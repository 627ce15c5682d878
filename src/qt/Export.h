// The export program's work: a drawing or a gallery of symbols in, a file out. Needs a
// QGuiApplication, no display.
#pragma once

#include <iosfwd>
#include <span>
#include <string>

namespace ladrix {

// `arguments` as the system gives them, the program's name left out. Returns the exit status: 0
// with the output written (things that had to be left out are told on `err`, a line each), or 1
// with one line on `err` and the output file as it was.
int exportMain(std::span<const std::string> arguments, std::ostream& out, std::ostream& err);

}  // namespace ladrix
