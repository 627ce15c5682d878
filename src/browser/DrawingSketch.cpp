#include "browser/DrawingSketch.h"

#include <utility>

#include "canvas/file/DrawingIO.h"
#include "canvas/file/FileText.h"
#include "document/DrawingFile.h"
#include "document/Records.h"
#include "platform/SilentDialogs.h"

namespace ladrix {

namespace {

// Runs the steps on a platform that tells nobody anything: nobody waits for a small preview.
template <class Steps>
void quietly(const Platform& platform, const Steps& steps) {
    SilentDialogs silence;
    Platform quiet = platform;
    quiet.dialogs = &silence;
    quiet.ReportError = [](std::string_view, const Failure&) {};
    steps(quiet);
}

bool isDrawing(std::string_view content, const DrawingParts& parts, const Drawing& drawing) {
    if (drawing.ReadIncomplete) return false;
    if (drawing.devices.DeviceCount > 0 || !parts.labels.empty() || content.empty()) return true;
    return pageSize(parts.pageKey) && content.find(parts.pageKey) != std::string_view::npos;
}

}  // namespace

std::optional<DrawingSketch> readSketch(const Editor& editor, const std::string& path) {
    std::optional<DrawingSketch> sketch;
    quietly(editor.platform, [&](const Platform& quiet) {
        try {
            const FileText file = readDrawingFile(*quiet.files, path);
            const DrawingParts parts = splitFile(file.content, file.modified);
            Drawing scratch;
            scratch.DeviceString = parts.devices;
            ParseDeviceString(scratch, quiet);
            if (!isDrawing(file.content, parts, scratch)) return;
            sketch.emplace();
            sketch->devices = std::move(scratch.devices);
            sketch->page = pageSize(parts.pageKey).value_or(PageSize{});
        } catch (const Failure&) {
            // The caller marks a file that yields nothing.
        }
    });
    return sketch;
}

void drawSketch(Editor& editor, const DrawingSketch& sketch, Surface& surface) {
    quietly(editor.platform, [&](const Platform& quiet) {
        Symbols symbols = editor.symbols;
        for (Short i = 0; i < sketch.devices.DeviceCount; ++i)
            drawRow(symbols, editor.drawing, quiet, surface, sketch.devices, i,
                    sketch.devices.DeviceColor[static_cast<std::size_t>(i)]);
    });
}

}  // namespace ladrix
