// The drawings opened or saved last, newest first: at the foot of the File menu, and from run to
// run in "Recent Files.txt" in the data folder, one path a line.
#pragma once

#include <string>
#include <vector>

#include "platform/FileProbe.h"
#include "platform/ReadState.h"

namespace ladrix {

struct Program;

constexpr std::size_t RecentFilesKept = 9;

struct RecentFiles {
    std::vector<std::string> paths;
    FileProbe probe;
    ReadState file;
};

// At the start. A missing list is an empty one, of a damaged one what can be read is taken. One
// that cannot be read, or is beyond all measure, is reported.
void ReadRecentFiles(Program& program);

// The drawing's file comes first from now on. What is shipped with the program and backup copies
// are not kept. A list that cannot be written, or still cannot be read and is therefore left alone,
// is only noted in the diagnostics.
void KeepRecentFile(Program& program);

// "&1 Pump.els", with its folder behind a tab unless it is the user's own for drawings.
std::string recentCaption(const Program& program, std::size_t index);

// Opens it in the place of the present drawing, which may be saved before.
void mnuFileRecent_Click(Program& program, std::size_t index);
template <int Index>
void mnuFileRecent_Click(Program& program) {
    mnuFileRecent_Click(program, Index);
}

}  // namespace ladrix
