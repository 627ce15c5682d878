// The record text of a device, a label or a picture: fields joined by the byte 255. Writers give
// the present form; the parsers also accept the older ones.
//
//   InsertNormallyOpenAux|3.125|2.5|0||1|1|0|False      an ordinary symbol
//   InsertSavedLine|1|1|4.5|1|255|0                     a free line
//   InsertCircle|2|2|0.25|0|0|1                         a circle
//   InsertArc|2|2|0.5|0|16711680|0|0|1.570796|1         an arc
//   Motor Starter|3.2|2.75|0|Arial|10|False|False       a label
//   logo.bmp|0.5|0.5|2|1.25                             a picture
//
// (`|` stands for the byte 255.)
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "document/Drawing.h"

namespace ladrix {

constexpr char FieldSeparator = '\xFF';
constexpr std::string_view LineEnd = "\r\n";

// Which fields a device's record holds depends on its name alone; names are compared exactly.
enum class RecordLayout { FreeLineOrSquare, Circle, Arc, SemiCircle, Ordinary };
RecordLayout recordLayout(std::string_view name);

// Append one record without its line end. A free line without a width tag is written with the tag
// "0", a circle or arc of aspect 0 with the aspect 1.
void appendDeviceRecord(std::string& out, const DeviceTable& table, Short index, char decimalMark);
void appendLabelRecord(std::string& out, const LabelTable& table, Short index, char decimalMark);
void appendPictureRecord(std::string& out, const PictureRow& row, char decimalMark);

// Empty and refill a table from its master text, which stays as it is. Boxes tell what could not be
// read; a bad number ends the parse with a report, the table holding the lines before it. The
// caller redraws.
void ParseDeviceString(Drawing& drawing, const Platform& platform);
void ParseLabelString(Drawing& drawing, const Platform& platform);

// Where the pictures of this run came from: the full path by the bare name.
using PicturePaths = std::map<std::string, std::string, std::less<>>;

// Takes `known` for where the pictures are; without it PictureParentFolder and PictureFolderName.
// Missing files are counted and told in one box. The images themselves are loaded by the layer
// above.
void ParsePictureString(Drawing& drawing, const Platform& platform, const PicturePaths& known = {});

}  // namespace ladrix
