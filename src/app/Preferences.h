// The few settings that outlive a run: "UserPreferences.upf", one line each, a tag of 15 characters
// followed by the value.
#pragma once

#include "app/Program.h"

namespace ladrix {

// Reads the file into UserPrefs, from the data folder or, where it is not there, from the program's
// own, and puts the settings in force: an empty or missing one as its default. Lines that no
// setting can be taken from are reported together, by number and content, and cost only themselves.
// A file that cannot be read is reported, once for one reason, and what is in force stays.
void ReadUserPreferences(Program& program);

// Writes UserPrefs to the folder that they were read from. Until the new file stands, the former
// one is also in the program's folder as "Temp_UserPreferences.upf"; a save that fails is reported
// and leaves that copy. False if it failed, as it does while the present file cannot be read.
bool SaveUserPreferences(Program& program);

// The lines that hold a setting; every other line is kept as it was read.
enum class Setting : unsigned char {
    PrinterName = 22,
    PrinterNumber = 23,  // in the list of printers when it was stored
    PrintLineWeight = 24,
    PaletteRows = 25,
    DashSpacing = 26,  // inches
};

// Gives the setting's line a new value, in memory and in the file. Lines that could not be read
// before are read first, so that they come back with it.
void StoreSetting(Program& program, Setting setting, std::string_view value);

}  // namespace ladrix
