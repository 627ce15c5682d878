// A drawing as a small preview shows it: its devices on its page. Read into tables of its own, so
// that the open drawing keeps its own.
#pragma once

#include <optional>
#include <string>

#include "canvas/state/Editor.h"
#include "document/PageLayout.h"

namespace ladrix {

// A larger file would keep the window waiting; it is seen when it is chosen. Bytes.
constexpr std::uintmax_t LargestSketch = 2u * 1024 * 1024;

struct DrawingSketch {
    DeviceTable devices;
    PageSize page;
};

// nullopt where the file cannot be read, by the rule of the large preview. Tells and reports
// nothing.
std::optional<DrawingSketch> readSketch(const Editor& editor, const std::string& path);

// On a surface of the page's inches. Records nothing.
void drawSketch(Editor& editor, const DrawingSketch& sketch, Surface& surface);

}  // namespace ladrix
