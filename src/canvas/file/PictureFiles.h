// The files of a drawing's pictures. Each has a copy in the folder beside the drawing that bears
// the drawing's name, and what was read of it stays in memory until the next drawing.
#pragma once

#include <string>
#include <vector>

#include "canvas/state/Editor.h"

namespace ladrix {

// Where the drawing keeps its pictures, with the separator; "" while it has no name.
std::string picturesFolder(const Editor& editor);

// "logo (2).bmp" of "logo.bmp" and 2; the name itself of 1.
std::string numberedName(const std::string& name, int number);

// Keeps what the file holds, should it be gone when the drawing is saved. One that cannot be read,
// or is larger than a document may be, is not kept.
void keepPictureFile(Editor& editor, const std::string& path);

// Before the drawing is written: a picture whose name belongs to another file of the drawing's
// folder takes a free one.
void settlePictureNames(Editor& editor);

// After it: puts the files into the folder that are not there, and lets FullPath name them. Returns
// those that could not be written.
struct UnwrittenPicture {
    std::string name, why;
};
std::vector<UnwrittenPicture> writePictures(Editor& editor);

}  // namespace ladrix
