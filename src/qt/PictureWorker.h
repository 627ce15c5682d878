// The program that draws an SVG picture for the others: its text comes on standard input, its dots
// go to standard output. Whoever starts it limits its time and memory; it gives up files and the
// network itself before it draws.
#pragma once

namespace ladrix {

// The exit status, with nothing on standard output but after Drawn.
enum class WorkerStatus { Drawn, Broken, RefersToOthers, DeclaresEntities, TooDeep, Empty, Memory };

// What stands before the dots, in the machine's byte order: 4 bytes each, rows of premultiplied
// ARGB without gaps, and the picture's own size in 1/96 inch.
struct WorkerHeader {
    int magic = 0x4C585031;
    int width = 0, height = 0;
    int ownWidth = 0, ownHeight = 0;
};

constexpr int LongestPictureSide = 4096;  // dots, of any picture
constexpr int DrawnDensity = 3;           // dots to 1/96 inch, so that lines stay fine on paper

// Arguments: none, or the width and height that the picture shall have, in 1/96 inch.
int pictureWorkerMain(int argc, char** argv);

}  // namespace ladrix
