// The pictures of the file dialog: one stroke weight, crisp at every pixel ratio.
#pragma once

#include <QIcon>

namespace ladrix {

enum class FileIcon { Folder, Drawing, Template, Up, Picture, Library, Page };

const QIcon& fileIcon(FileIcon icon);

}  // namespace ladrix
