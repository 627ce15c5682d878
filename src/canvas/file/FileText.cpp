#include "canvas/file/FileText.h"

namespace ladrix {

FileText readDrawingFile(Files& files, const std::string& path) {
    FileText file;
    file.content = files.read(path);
    if (const auto status = files.status(path)) file.modified = status->modified;
    return file;
}

}  // namespace ladrix
