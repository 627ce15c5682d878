// Any bytes as each of the three master texts, under both locales.
#include <cstdint>

#include "CheckedDrawing.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ladrix;
    const std::string text(data, data + size);
    for (const char decimalMark : {'.', ','}) {
        fuzz::TinyPlatform machine(decimalMark);
        Drawing drawing;
        drawing.DeviceString = drawing.LabelString = drawing.PictureString = text;
        fuzz::parseAll(drawing, machine.platform);
        fuzz::checkTables(drawing);
        fuzz::require(drawing.LabelString == text && drawing.PictureString == text);
        fuzz::checkRewriting(drawing, machine.platform);
    }
    return 0;
}
