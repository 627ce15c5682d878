// The folder that the program works from. A build tree or a portable copy works from its own; an
// installed program from a copy of its shared files in the user's data folder, renewed by version
// without touching what the user has changed.
#pragma once

#include <QString>

namespace ladrix {

// Brings `target` up to `version` of the files in `share`. A file that differs from what was put
// there last is the user's and stays; so does the absence of one that they deleted. Throws a
// Failure if a file cannot be written.
void renewFromShare(const QString& share, const QString& target, const QString& version);

// The folder for a program whose binary stands in `binaries`; `data` is the user's data folder.
QString settleProgramFolder(const QString& binaries, const QString& data, const QString& version);

}  // namespace ladrix
