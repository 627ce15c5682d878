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
//
// A marker is a line. The same characters inside a line are text, which may say anything.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/Drawing.h"
#include "platform/Files.h"

namespace ladrix {

constexpr std::string_view DefaultPageKey = "8.5x11Portrait";
constexpr std::string_view PictureMarker = "///Picture Files///";

// A file as it is read: its date tells how to take it apart.
struct FileText {
    std::string content;
    FileTime modified;
};

struct DrawingParts {
    std::string description;
    std::string pageKey;
    std::string devices, labels;          // master texts
    std::optional<std::string> pictures;  // absent: the file has no picture section

    friend bool operator==(const DrawingParts&, const DrawingParts&) = default;
};

// From the description block to the labels.
std::string mainText(const Drawing& drawing);
// The main text without the description: what a crash copy holds.
std::string crashCopyText(const Drawing& drawing);
// The main text and the picture section that every saved file ends with.
std::string fileText(const Drawing& drawing);

// Files of before 2011-01-10 (local time) have no page key; a text that begins with a device has
// none either. `text` is what follows the description.
bool isOldFile(FileTime modified, std::string_view text);

// Linear in the text. Never fails: a file without the expected divisions gives what the splitting
// finds, one without a page key the default key.
DrawingParts splitFile(std::string_view text, FileTime modified);

// Puts the parts in the drawing's master texts, description and page key; tables are not parsed. A
// template in force comes before the file's devices and labels, once, in one form with them: it is
// no longer in force afterwards. With a picture section, the folder of the pictures is told by
// CurrentFolder and CurrentFileName.
void takeParts(Drawing& drawing, DrawingParts parts);

}  // namespace ladrix
