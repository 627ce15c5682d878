// The place for the user's files on a machine that has no documents folder.
#pragma once

#include <string>
#include <string_view>

#include "platform/Files.h"

namespace ladrix {

// The system's temporary folder, if `folder` is the user's own in it or is not there yet. Anyone
// may make files there, so where somebody else has taken that name it is a folder in it that only
// the user may enter, made if it is missing. Throws where that one is not the user's either. Ends
// in the separator.
std::string fallbackRoot(Files& files, std::string_view folder);

}  // namespace ladrix
