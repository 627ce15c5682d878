// The pages: a key such as "8.5x11Portrait" and its size in inches. Metric sizes are inches with
// two decimals; a "Landscape" key has the numbers exchanged.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "platform/Types.h"

namespace ladrix {

struct PageSize {
    Single PageWidth = 8.5f, PageHeight = 11;  // inches
};

struct PagePrefix {
    std::string_view prefix;   // "210x297"
    std::string_view caption;  // "210mm x 297mm"
    PageSize portrait;
    Single previewUnit;                  // side of the preview's square
    Single previewWidth, previewHeight;  // portrait, in that unit
};

std::span<const PagePrefix> pagePrefixes();  // the twelve sizes, by size index

// nullopt for a key that is not one of the 24; comparison is exact.
std::optional<PageSize> pageSize(std::string_view key);

// The browser's own, shorter list: three keys are missing from it.
std::optional<PageSize> previewPageSize(std::string_view key);

}  // namespace ladrix
