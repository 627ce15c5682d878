// How a device of a running relay circuit is drawn: the symbol of the position that it is in, and
// the mark behind one that is operated.
#pragma once

#include <stdexcept>
#include <string_view>

#include "RelayCircuit.h"

namespace ladrix::tools {

constexpr Long LiveColor = RGB(208, 0, 0), CurrentColor = RGB(0, 96, 208);
constexpr Long OperatedColor = RGB(255, 212, 96);

inline std::string_view symbolOf(const RunningCircuit& running, const RelayDevice& device) {
    const bool operated = running.isOperated(device);
    switch (device.kind) {
        case Kind::Stop:
            return operated ? "InsertPBNCDown" : "InsertPBNC";
        case Kind::Start:
            return operated ? "InsertPBNODown" : "InsertPBNO";
        case Kind::ContactNO:
            return operated ? "InsertContactNOClosed" : "InsertContactNO";
        case Kind::ContactNC:
            return operated ? "InsertContactNCOpened" : "InsertContactNC";
        case Kind::OnDelayNO:
        case Kind::OnDelayNC:
            return running.isClosed(device) ? "InsertOnDelayNC" : "InsertOnDelayNO";
        case Kind::OffDelayNO:
            return operated ? "InsertOffDelayNC" : "InsertOffDelayNO";
        case Kind::Coil:
            return "InsertRelayCoil";
        case Kind::Lamp:
            return "InsertLamp";
    }
    throw std::logic_error("No such device.");
}

// A disc behind the device; nothing if it is at rest.
inline void markOperated(Sheet& sheet, const RunningCircuit& running, const RelayDevice& device) {
    if (!running.isOperated(device)) return;
    const Point middle{device.at.x + 0.25f, device.at.y};
    sheet.ink = OperatedColor;
    switch (device.kind) {
        case Kind::Stop:
        case Kind::Start:
            sheet.disc(middle.x, middle.y - 0.1f, 0.2f);
            break;
        case Kind::ContactNO:
        case Kind::ContactNC:
            sheet.disc(middle.x, middle.y, 0.2f);
            break;
        case Kind::Coil:
            sheet.disc(middle.x, middle.y, 0.25f);
            break;
        case Kind::Lamp:
            sheet.disc(middle.x, middle.y, 0.175f);
            break;
        default:
            sheet.disc(middle.x, middle.y + 0.125f, 0.25f);
            break;
    }
    sheet.ink = Black;
}

// How far above its line a device has its name; 0: in its middle.
inline Single nameHeight(Kind kind) {
    switch (kind) {
        case Kind::Stop:
        case Kind::Start:
            return 0.485f;
        case Kind::ContactNO:
        case Kind::ContactNC:
            return 0.29f;
        case Kind::Coil:
        case Kind::Lamp:
            return 0;
        default:
            return 0.2f;
    }
}

}  // namespace ladrix::tools
