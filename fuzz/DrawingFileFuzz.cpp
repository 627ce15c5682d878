// Any bytes as a drawing file; the first one chooses its age, the locale and a template in force,
// and that one's form.
#include <array>
#include <cstdint>

#include "CheckedDrawing.h"
#include "document/DrawingFile.h"

namespace ladrix {
namespace {

// What was split joins to a file that splits to the same parts, whatever their texts read like.
void checkDivision(const Drawing& drawing, FileTime modified) {
    if (drawing.devices.DeviceCount == 0 || drawing.labels.LabelCount == 0) return;
    const DrawingParts parts = splitFile(fileText(drawing), modified);
    fuzz::require(parts.description == drawing.FileDescription);
    fuzz::require(parts.pageKey == drawing.PageLayoutKey);
    fuzz::require(parts.devices == drawing.DeviceString);
    fuzz::require(parts.labels == drawing.LabelString);
    fuzz::require(parts.pictures == drawing.PictureString);
}

// Whatever it was joined with. A table that would be too full is refused as a whole.
void checkTemplate(const Drawing& drawing) {
    const auto& names = drawing.devices.DeviceName;
    const auto& texts = drawing.labels.LabelText;
    fuzz::require(names.empty() || names[0] == "InsertCoil");
    fuzz::require(texts.empty() || texts[0] == "M1");
    const bool small = drawing.DeviceString.size() + drawing.LabelString.size() < LargestCount;
    fuzz::require(!small || (!names.empty() && !texts.empty()));
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
    const bool joining = drawing.TemplateActive;
    takeParts(drawing, splitFile(input.text, input.chosen(1) ? longAgo : today));
    ParseDeviceString(drawing, platform);
    ParseLabelString(drawing, platform);
    ParsePictureString(drawing, platform);
    fuzz::checkDevices(drawing);
    fuzz::checkLabels(drawing);
    fuzz::checkPictures(drawing);
    if (joining) checkTemplate(drawing);
    fuzz::checkDeviceRewriting(drawing, platform);
    fuzz::checkLabelRewriting(drawing, platform);
    fuzz::checkAdding(drawing, platform);
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
    static constexpr std::array<std::string_view, 3> Separators = {"\xFF", "=FF", ", "};
    const std::string separator{Separators[(input.choice >> 3 & 3) % Separators.size()]};
    const std::string at = separator + "1.5" + separator + "2,5" + separator + "0";
    drawing.TemplateDevices = "InsertCoil" + at + separator + "\r\n";
    drawing.TemplateLabels = "M1" + at + "\r\n";
    ladrix::readFile(drawing, input, machine.platform);
    return 0;
}
