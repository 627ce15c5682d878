// How a running relay circuit is drawn: each device by the symbol of the position that it is in,
// with a mark behind it if it is operated; what is live, or carries current, in colour.
#pragma once

#include <stdexcept>
#include <string_view>

#include "RelayCircuit.h"

namespace ladrix::tools {

constexpr Long LiveColor = RGB(208, 0, 0), CurrentColor = RGB(0, 96, 208);
constexpr Long OperatedColor = RGB(255, 212, 96);

enum class View { Voltage, Current };

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

// From the end of the symbol to the bar of a contact and to a lamp's bulb; half the bar.
constexpr Single ContactStub = 0.175f, LampStub = 0.075f, ContactHeight = 0.15f;

// How far above its line a device has its name; 0: in its middle.
inline Single nameHeight(Kind kind) {
    switch (kind) {
        case Kind::Stop:
        case Kind::Start:
            return 0.46f;
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

class LadderDrawing {
  public:
    LadderDrawing(Sheet& sheet, const RelayCircuit& circuit, const RunningCircuit& running,
                  View view)
        : sheet_(sheet), circuit_(circuit), running_(running), view_(view) {}

    void draw() {
        for (const RelayDevice& device : circuit_.devices)
            markOperated(sheet_, running_, device);
        for (const auto& edge : running_.edges())
            edge.device < 0 ? drawWire(edge) : drawDevice(edge);
        drawDots();
        sheet_.ink = Black;
    }

  private:
    using Edge = RunningCircuit::Edge;

    Sheet& sheet_;
    const RelayCircuit& circuit_;
    const RunningCircuit& running_;
    View view_;

    // A device has the voltage of its first terminal if it lets it through.
    bool shines(const Edge& edge) const {
        if (view_ == View::Current) return edge.carriesCurrent;
        return edge.conducts && running_.live(edge.from);
    }
    Long colorOf(bool shines) const {
        if (!shines) return Black;
        return view_ == View::Voltage ? LiveColor : CurrentColor;
    }

    void drawWire(const Edge& edge) {
        sheet_.ink = colorOf(shines(edge));
        sheet_.wire({running_.point(edge.from), running_.point(edge.to)},
                    shines(edge) ? Heavy : std::string_view());
    }
    void drawDevice(const Edge& edge) {
        const RelayDevice& device = circuit_.devices[static_cast<std::size_t>(edge.device)];
        sheet_.ink = colorOf(shines(edge));
        sheet_.symbol(symbolOf(running_, device), device.at.x, device.at.y);
        if (view_ == View::Voltage) drawTerminals(edge, device);
        sheet_.centred(device.name, device.at.x + 0.25f, device.at.y - nameHeight(device.kind),
                       device.kind == Kind::Lamp ? TextStyle{7} : Plain);
    }
    // An open contact and a lamp part what is live from what is not: each side takes the colour of
    // its wire, whatever the symbol's is.
    void drawTerminals(const Edge& edge, const RelayDevice& device) {
        const bool isContact = device.kind == Kind::ContactNO || device.kind == Kind::ContactNC;
        if (!isContact && device.kind != Kind::Lamp) return;
        const Single stub = isContact ? ContactStub : LampStub;
        for (const Single side : {-1.0f, 1.0f}) {
            const bool live = running_.live(side < 0 ? edge.from : edge.to);
            if (live == shines(edge)) continue;
            sheet_.ink = colorOf(live);
            const Point middle{device.at.x + 0.25f, device.at.y};
            const Single end = middle.x + side * 0.25f, inner = end - side * stub;
            sheet_.wire({{end, middle.y}, {inner, middle.y}}, live ? Heavy : std::string_view());
            if (!isContact) continue;
            sheet_.wire({{inner, middle.y - ContactHeight}, {inner, middle.y + ContactHeight}});
        }
    }
    // Where three or more meet.
    void drawDots() {
        for (std::size_t node = 0; node < running_.nodeCount(); ++node) {
            int meeting = 0;
            bool coloured = false;
            for (const Edge& edge : running_.edges()) {
                if (edge.from != node && edge.to != node) continue;
                ++meeting;
                coloured = coloured || (edge.device < 0 && shines(edge));
            }
            if (meeting < 3) continue;
            sheet_.ink = colorOf(coloured);
            sheet_.dot(running_.point(node).x, running_.point(node).y);
        }
    }
};

}  // namespace ladrix::tools
