// Placing a picture file on the canvas.
#pragma once

#include <memory>
#include <string>

#include "canvas/state/Editor.h"

namespace ladrix {

// Resets the editor for a picture to come. False, and told, while the page is zoomed.
bool makeReadyForPicture(Editor& editor);

// Adds the file to PictureTable in its own size of 96 pixels to the inch, at the upper left of what
// can be seen of the page; one larger than the page is shrunk to it. It becomes part of the
// drawing's file and of the folder beside it at the next save, under a name that no other picture
// has. `image` is what the file holds; without it the file is read. Throws a Failure, with the
// table as it was, where the file cannot be read or the table is full.
void InsertPicture(Editor& editor, const std::string& folder, const std::string& file,
                   std::shared_ptr<const Picture> image = nullptr);

}  // namespace ladrix
