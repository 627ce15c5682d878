// Any bytes as a drawing file: the first byte chooses its age, the locale and a template in force.
#include <cstdint>

#include "CheckedDrawing.h"
#include "document/DrawingFile.h"

namespace ladrix {
namespace {

bool holdsMarker(std::string_view text) {
    return text.find("///") != std::string_view::npos;
}

// What was split joins to a file that splits to the same parts, unless a marker stands where no
// writer puts one.
void checkDivision(const Drawing& drawing, FileTime modified) {
    if (holdsMarker(drawing.FileDescription) || holdsMarker(drawing.PageLayoutKey) ||
        holdsMarker(drawing.DeviceString) || holdsMarker(drawing.LabelString)) {
        return;
    }
    if (drawing.devices.DeviceCount == 0 || drawing.labels.LabelCount == 0) return;
    const DrawingParts parts = splitFile(fileText(drawing), modified);
    fuzz::require(parts.description == drawing.FileDescription);
    fuzz::require(parts.pageKey == drawing.PageLayoutKey);
    fuzz::require(parts.devices == drawing.DeviceString);
    fuzz::require(parts.labels == drawing.LabelString);
    fuzz::require(parts.pictures == drawing.PictureString);
}

}  // namespace
}  // namespace ladrix

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ladrix;
    using namespace std::chrono;
    if (size == 0) return 0;
    const FileTime today = sys_days{2024y / June / 1};
    const FileTime longAgo = sys_days{2009y / March / 1};
    const std::string text(data + 1, data + size);

    fuzz::TinyPlatform machine(data[0] & 1 ? ',' : '.');
    Drawing drawing;
    drawing.CurrentFolder = "/drawings/";
    drawing.CurrentFileName = "Pictures.els";
    drawing.TemplateActive = (data[0] & 4) != 0;
    drawing.TemplateDevices =
        "InsertCoil\xFF"
        "1\xFF"
        "1\xFF"
        "0\xFF\r\n";
    drawing.TemplateLabels =
        "M1\xFF"
        "1\xFF"
        "1\xFF"
        "0\r\n";
    takeParts(drawing, splitFile(text, data[0] & 2 ? longAgo : today));
    fuzz::parseAll(drawing, machine.platform);
    fuzz::checkTables(drawing);
    fuzz::checkRewriting(drawing, machine.platform);
    if (drawing.PageLayoutKey.starts_with("Insert")) return 0;
    fuzz::rebuildAll(drawing, machine.platform);
    checkDivision(drawing, today);
    return 0;
}
