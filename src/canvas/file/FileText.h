// Reading a drawing's file as text.
#pragma once

#include "document/DrawingFile.h"

namespace ladrix {

// The whole file. Refuses what is missing, not a regular file or too large: throws a Failure.
FileText readDrawingFile(Files& files, const std::string& path);

}  // namespace ladrix
