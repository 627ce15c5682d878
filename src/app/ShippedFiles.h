// The files that come with the program, in the folder that it works from. A build tree or a
// portable copy works from its own; an installed program from a copy of the installed files in the
// user's data folder, which a new version renews without touching what the user has changed or
// deleted.
//
// What was put there stands in an account beside the files, ".shipped": the version, then a line
// "sum name" for each file that stands there whole, "+sum name" for one that is about to be
// written. So a file that was never written, or lost by a failure, is told from one that the user
// deleted, and one that a killed run wrote from one of the user's.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"

namespace ladrix {

// Both end in the separator.
struct ShippedFolders {
    std::string share;  // what was installed; "" where the program works from its own folder
    std::string work;   // what the program works from; it need not exist yet
};

// For a program whose binary stands in `binaries`; `data` is the user's data folder.
ShippedFolders shippedFolders(Files& files, const std::string& binaries, const std::string& data);

// A file that could not be put in place, by its name below the folder; it is as it was.
struct NotPut {
    std::string name;
    Failure failure;
};

// Brings the work folder up to `version` of the installed files; nothing to do where there is no
// share. A file that differs from what was put there last is the user's and stays; so does the
// absence of one that they deleted. An empty file is a lost one. What could not be put is tried
// again by the next call; the rest is done. Throws nothing.
std::vector<NotPut> renewShippedFiles(Files& files, const ShippedFolders& folders,
                                      std::string_view version);

// Puts these files there whatever stands in their places. Throws nothing.
std::vector<NotPut> putShippedFiles(Files& files, const ShippedFolders& folders,
                                    const std::vector<std::string>& names);

// The names of all files below the share, with the platform's separator, sorted. Throws a Failure
// where a folder cannot be listed.
std::vector<std::string> shippedNames(Files& files, const std::string& share);

// All that could not be put, in one text: for each reason a few names, and how many others.
Failure asOneFailure(const std::vector<NotPut>& notPut);

}  // namespace ladrix
