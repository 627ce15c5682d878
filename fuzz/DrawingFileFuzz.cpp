// Any bytes as a drawing file; the first one chooses its age, the locale and a template in force.
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

void readFile(Drawing& drawing, const fuzz::Input& input, const Platform& platform) {
    static const FileTime today = std::chrono::sys_days{std::chrono::year_month_day{
        std::chrono::year{2024}, std::chrono::June, std::chrono::day{1}}};
    static const FileTime longAgo = today - std::chrono::years{15};
    drawing.CurrentFolder = "/drawings/";
    drawing.CurrentFileName = "Pictures.els";
    drawing.PictureParentFolder.clear();
    drawing.PictureFolderName.clear();
    drawing.TemplateActive = input.chosen(2);
    takeParts(drawing, splitFile(input.text, input.chosen(1) ? longAgo : today));
    ParseDeviceString(drawing, platform);
    ParseLabelString(drawing, platform);
    ParsePictureString(drawing, platform);
    fuzz::checkDevices(drawing);
    fuzz::checkLabels(drawing);
    fuzz::checkPictures(drawing);
    fuzz::checkDeviceRewriting(drawing, platform);
    fuzz::checkLabelRewriting(drawing, platform);
    RebuildPictureString(drawing, platform);
    if (!drawing.PageLayoutKey.starts_with("Insert")) checkDivision(drawing, today);
}

}  // namespace
}  // namespace ladrix

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static ladrix::fuzz::OnePicture files;
    static ladrix::fuzz::Machine machine(files);
    static ladrix::Drawing drawing;
    const ladrix::fuzz::Input input(data, size);
    machine.begin(input);
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
    ladrix::readFile(drawing, input, machine.platform);
    return 0;
}
