// The drawing file as text: building it and taking it apart. Reading and writing of the format live
// here together; the file system and the user are asked elsewhere.
//
//   ///File Description///          only with a description
//   Conveyor start circuit
//   ///End File Description///
//   8.5x11Portrait                  the page key, in files dated from 2011-01-10 on
//   (blank line)
//   devices, one record a line
//   (blank line)
//   labels, one record a line
//   ///Picture Files///
//   pictures, one record a line
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/Drawing.h"
#include "platform/Files.h"

namespace ladrix {

constexpr std::string_view DefaultPageKey = "8.5x11Portrait";
constexpr std::string_view PictureMarker = "///Picture Files///";

struct DrawingParts {
    std::string description;
    std::string pageKey;
    std::string devices, labels;          // master texts
    std::optional<std::string> pictures;  // absent: the file has no picture section
};

// From the description block to the labels.
std::string mainText(const Drawing& drawing);
// The main text without the description: what a crash copy holds.
std::string crashCopyText(const Drawing& drawing);
// The main text and the picture section that every saved file ends with.
std::string fileText(const Drawing& drawing);

// Files of before 2011-01-10 have no page key.
bool isOldFile(FileTime modified, std::string_view text);

// Never fails: a file without the expected divisions gives what the splitting finds.
DrawingParts splitFile(std::string_view text, FileTime modified);

// Puts the parts in the drawing's master texts and description; tables are not parsed.
void takeParts(Drawing& drawing, DrawingParts parts);

}  // namespace ladrix
