// Copies of what a drawing's file held before a save replaced it. They lie under the user's base
// folder, in "Backups", in a folder for each drawing:
//
//   Backups/Pump.els (1f3a09bc)/2026-11-23 09-41-07.els
//
// The number in brackets stands for the folder that the drawing lies in, the date and time (local)
// are those of the save.
#pragma once

#include <string>

#include "document/DrawingFile.h"
#include "platform/Files.h"

namespace ladrix {

constexpr std::size_t BackupsKept = 10;  // of each drawing, the newest

// Of the drawing `name` in `folder`; ends in the separator. It need not exist.
std::string backupFolder(const Files& files, const std::string& basePath, const std::string& folder,
                         const std::string& name);

// Whether a copy lies there; false where the folder is missing or cannot be read.
bool hasBackups(Files& files, const std::string& backups);

// Adds a copy, with the ending .tpl or .els, unless the newest one says the same, and removes what
// is too old. A text whose layout follows from its date gets the page key with which its copy,
// being younger, reads the same. Throws a Failure if the copy could not be written whole; the
// former ones are then as they were.
void keepBackup(Files& files, const std::string& backups, const FileText& former, bool isTemplate);

}  // namespace ladrix
