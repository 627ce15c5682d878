#include "browser/DrawingSketch.h"

#include <utility>

#include "canvas/file/DrawingIO.h"
#include "platform/SilentDialogs.h"

namespace ladrix {

std::optional<DrawingSketch> readSketch(const Editor& editor, const std::string& path) {
    try {
        Drawing scratch;
        const DrawingParts parts = readDevices(scratch, editor.platform, path);
        return DrawingSketch{std::move(scratch.devices),
                             pageSize(parts.pageKey).value_or(PageSize{})};
    } catch (const Failure&) {
        return std::nullopt;  // the caller marks a file that yields nothing
    }
}

void drawSketch(Editor& editor, const DrawingSketch& sketch, Surface& surface) {
    SilentDialogs silence;
    Platform quiet = editor.platform;
    quiet.dialogs = &silence;
    quiet.ReportError = [](std::string_view, const Failure&) {};
    Symbols symbols = editor.symbols;
    for (Short i = 0; i < sketch.devices.DeviceCount; ++i)
        drawRow(symbols, editor.drawing, quiet, surface, sketch.devices, i,
                sketch.devices.DeviceColor[static_cast<std::size_t>(i)]);
}

}  // namespace ladrix
