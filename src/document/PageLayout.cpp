#include "document/PageLayout.h"

#include <algorithm>
#include <array>

namespace ladrix {

namespace {

constexpr std::array<PagePrefix, 12> Prefixes = {{
    // The preview of the first is half an inch shorter than its page.
    {"7.5x10.5", "7 1/2\" x 10 1/2\"", {7.5f, 10.5f}, 24, 7.5f, 10},
    {"8.5x11", "8 1/2\" x 11\"", {8.5f, 11}, 24, 8.5f, 11},
    {"8.5x13", "8 1/2\" x 13\"", {8.5f, 13}, 24, 8.5f, 13},
    {"8.5x14", "8 1/2\" x 14\"", {8.5f, 14}, 24, 8.5f, 14},
    {"10x14", "10\" x 14\"", {10, 14}, 24, 10, 14},
    {"11x17", "11\" x 17\"", {11, 17}, 24, 11, 17},
    {"182x257", "182mm x 257mm", {7.17f, 10.12f}, 450, 182, 257},
    {"210x297", "210mm x 297mm", {8.27f, 11.69f}, 450, 210, 297},
    {"215x275", "215mm x 275mm", {8.46f, 10.83f}, 450, 215, 275},
    {"250x354", "250mm x 354mm", {9.84f, 13.94f}, 450, 250, 354},
    {"297x420", "297mm x 420mm", {11.69f, 16.54f}, 450, 297, 420},
    {"17x22", "17\" x 22\"", {17, 22}, 24, 17, 22},
}};

constexpr std::array<std::string_view, 3> MissingInPreview = {"10x14Landscape", "17x22Portrait",
                                                              "17x22Landscape"};

}  // namespace

std::span<const PagePrefix> pagePrefixes() {
    return Prefixes;
}

std::optional<PageSize> pageSize(std::string_view key) {
    for (const PagePrefix& entry : Prefixes) {
        if (!key.starts_with(entry.prefix)) continue;
        const std::string_view orientation = key.substr(entry.prefix.size());
        if (orientation == "Portrait") return entry.portrait;
        if (orientation == "Landscape") {
            return PageSize{entry.portrait.PageHeight, entry.portrait.PageWidth};
        }
    }
    return std::nullopt;
}

std::optional<PageSize> previewPageSize(std::string_view key) {
    const bool missing =
        std::find(MissingInPreview.begin(), MissingInPreview.end(), key) != MissingInPreview.end();
    return missing ? std::nullopt : pageSize(key);
}

}  // namespace ladrix
