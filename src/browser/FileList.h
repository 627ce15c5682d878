// What the browser lists of a folder, and in which order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"

namespace ladrix {

enum class BrowserOrder { Name, Modified, Size };

struct Sorting {
    BrowserOrder order = BrowserOrder::Name;
    bool descending = false;

    friend bool operator==(const Sorting&, const Sorting&) = default;
};

// Digits inside names compare as numbers; letters without regard to case. Names that differ have
// an order even where these rules see none.
bool naturalLess(std::string_view a, std::string_view b);

// Whether a name fits one of the patterns "*.els;*.tpl", without regard to case.
bool matchesFilter(std::string_view name, std::string_view filter);

// The folders, and the files that fit the filter; hidden ones left out. Throws where the folder
// cannot be read.
std::vector<FileEntry> listFolder(Files& files, const std::string& folder, std::string_view filter,
                                  const Sorting& sorting);

// Folders stay first whatever the order; among equals the name decides.
void sortEntries(std::vector<FileEntry>& entries, const Sorting& sorting);

// A path as a person types it, made whole: relative ones start at `folder`, "." and ".." are
// followed, separators in a row count once. A root stays a root. No separator at the end but a
// root's.
std::string resolvedPath(const Files& files, const std::string& folder, std::string_view typed);

// Of a folder that ends in the separator; the root is its own.
std::string parentFolder(const Files& files, const std::string& folder);

}  // namespace ladrix
