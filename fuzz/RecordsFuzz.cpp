// Any bytes as the master text of the devices or of the labels; the first one chooses which, and
// the locale.
#include <cstdint>

#include "CheckedDrawing.h"

namespace {

using namespace ladrix;

void readDevices(Drawing& drawing, const Platform& platform, const std::string& text) {
    drawing.DeviceString = text;
    ParseDeviceString(drawing, platform);
    fuzz::checkDevices(drawing);
    fuzz::require(drawing.DeviceString == (text == "\r\n" ? "" : text));
    fuzz::checkDeviceRewriting(drawing, platform);
    drawing.DeviceString = text;
    drawing.LabelString.clear();
    fuzz::checkAdding(drawing, platform);
}

void readLabels(Drawing& drawing, const Platform& platform, const std::string& text) {
    drawing.LabelString = text;
    ParseLabelString(drawing, platform);
    fuzz::checkLabels(drawing);
    fuzz::require(drawing.LabelString == text);
    fuzz::checkLabelRewriting(drawing, platform);
    drawing.LabelString = text;
    drawing.DeviceString.clear();
    fuzz::checkAdding(drawing, platform);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::RefusingFiles files;
    static fuzz::Machine machine(files);
    static Drawing drawing;
    const fuzz::Input input(data, size);
    machine.begin(input);
    if (input.chosen(1))
        readLabels(drawing, machine.platform, input.text);
    else
        readDevices(drawing, machine.platform, input.text);
    return 0;
}
