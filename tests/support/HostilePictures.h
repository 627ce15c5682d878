// Small picture files made to hang, crash or fill whoever reads them, or to lead out of themselves.
#pragma once

#include <string>
#include <vector>

namespace ladrix::test {

struct HostilePicture {
    std::string name;     // of a file; not always of its kind
    std::string content;  // a few kilobytes at most, but for the deeply nested one
    std::string reason;   // part of what is told
    bool mayShow = false;
};

// `neighbour`: a file that they name, which must not be opened.
std::vector<HostilePicture> hostilePictures(const std::string& neighbour);

// A red box 2 inches wide and 1 high, in 1440 units to the inch.
std::string boxMetafile();

}  // namespace ladrix::test
