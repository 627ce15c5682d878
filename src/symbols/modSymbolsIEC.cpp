// IEC 60617: control symbols in the European style. Contacts are angled blades on a vertical lead
// from (0, 0) to (0, 0.5); what works a blade stands at its left, on a link at b = 0.125.
#include <algorithm>
#include <array>

#include "symbols/Libraries.h"

namespace ladrix {

namespace {

using namespace art;

// One list from several: a contact, then its link, then its mark.
template <std::size_t... Sizes>
constexpr auto joined(const std::array<Primitive, Sizes>&... parts) {
    std::array<Primitive, (Sizes + ...)> result{};
    auto* end = result.data();
    ((end = std::copy(parts.begin(), parts.end(), end)), ...);
    return result;
}

// The part of a horizontal twin: a vertical one's, by a quarter turn counter-clockwise. For lists
// that a block cannot turn as a whole, since a letter stays upright or a mirror follows.
template <std::size_t Size>
constexpr auto laidDown(std::array<Primitive, Size> parts) {
    for (Primitive& p : parts) {
        const Primitive upright = p;
        p.a1 = upright.b1;
        p.b1 = -upright.a1;
        p.a2 = upright.b2;
        p.b2 = -upright.a2;
        if (p.kind == PrimitiveKind::Arc) {
            p.start = upright.start + 90;
            p.end = upright.end + 90;
        }
    }
    return parts;
}

// clang-format off

// ---- Connections, protection ----

// IEC 60617 03-03-05: plug and socket.
constexpr std::array Connector{
    Arc(0.1375f, 0, 0.0375f, 270, 90), FilledBox(0.0625f, -0.0125f, 0.1375f, 0.0125f),
    Line(0, 0, 0.0625f, 0), Line(0.175f, 0, 0.25f, 0)};
constexpr std::array ConnectorDown{
    Arc(0, 0.1375f, 0.0375f, 180, 360), FilledBox(-0.0125f, 0.05f, 0.0125f, 0.1375f),
    Line(0, 0, 0, 0.05f), Line(0, 0.175f, 0, 0.25f)};
constexpr std::array ConnectorUp{
    Arc(0, 0.1125f, 0.0375f, 360, 180), FilledBox(-0.0125f, 0.1125f, 0.0125f, 0.2f),
    Line(0, 0, 0, 0.075f), Line(0, 0.2f, 0, 0.25f)};

// IEC 60617 07-15-21: thermally operated device, the release of a motor circuit breaker.
constexpr std::array CircuitBreaker{
    Line(0, 0, 0, 0.15f), Line(0, 0.35f, 0, 0.5f),
    Line(-0.25f, 0.15f, 0.25f, 0.15f), Line(0.25f, 0.15f, 0.25f, 0.35f),
    Line(-0.25f, 0.35f, 0.25f, 0.35f), Line(-0.25f, 0.15f, -0.25f, 0.35f),
    Line(0, 0.15f, 0, 0.1875f), Line(0, 0.1875f, 0.125f, 0.1875f),
    Line(0.125f, 0.1875f, 0.125f, 0.3125f), Line(0, 0.3125f, 0.125f, 0.3125f),
    Line(0, 0.3125f, 0, 0.35f)};

// IEC 60617 07-21-01: fuse.
constexpr std::array Fuse{
    Line(0, 0, 0.5f, 0),
    Line(0.05f, -0.075f, 0.45f, -0.075f), Line(0.45f, -0.075f, 0.45f, 0.075f),
    Line(0.05f, 0.075f, 0.45f, 0.075f), Line(0.05f, -0.075f, 0.05f, 0.075f)};

// ---- Operating devices ----

// IEC 60617 07-15-01: operating device, relay coil.
constexpr std::array RelayCoil{
    Line(0, 0, 0, 0.15f), Line(0, 0.35f, 0, 0.5f),
    Line(-0.25f, 0.15f, 0.25f, 0.15f), Line(0.25f, 0.15f, 0.25f, 0.35f),
    Line(-0.25f, 0.35f, 0.25f, 0.35f), Line(-0.25f, 0.15f, -0.25f, 0.35f)};

// IEC 60617 07-15-08: coil of a slow-operating relay.
constexpr auto OnDelayCoil = joined(RelayCoil, std::array{
    Line(-0.25f, 0.15f, -0.375f, 0.15f), Line(-0.375f, 0.15f, -0.375f, 0.35f),
    Line(-0.375f, 0.35f, -0.25f, 0.35f),
    Line(-0.375f, 0.15f, -0.25f, 0.35f), Line(-0.375f, 0.35f, -0.25f, 0.15f)});

// IEC 60617 07-15-07: coil of a slow-releasing relay.
constexpr auto OffDelayCoil = joined(RelayCoil, std::array{
    FilledBox(-0.375f, 0.15f, -0.25f, 0.35f)});

// IEC 60617 07-15-01 with 05-03-01: relay coil with its suppressor diode, cathode at the top.
constexpr auto SpecialRelayCoil = joined(RelayCoil, std::array{
    Line(0, 0.0625f, 0.375f, 0.0625f), Line(0.375f, 0.0625f, 0.375f, 0.4375f),
    Line(0.375f, 0.4375f, 0, 0.4375f),
    Line(0.3125f, 0.1875f, 0.4375f, 0.1875f), Line(0.375f, 0.1875f, 0.3125f, 0.3125f),
    Line(0.3125f, 0.3125f, 0.4375f, 0.3125f), Line(0.4375f, 0.3125f, 0.375f, 0.1875f)});

// IEC 60617 07-15-01 with a valve: solenoid.
constexpr std::array Solenoid{
    Line(-0.25f, 0.15f, 0.25f, 0.15f), Line(0.25f, 0.15f, 0.25f, 0.35f),
    Line(-0.25f, 0.35f, 0.25f, 0.35f), Line(-0.25f, 0.15f, -0.25f, 0.35f),
    Line(0, 0, 0, 0.15f), Line(0, 0.35f, 0, 0.5f),
    Line(0.25f, 0.25f, 0.3f, 0.25f), Line(0.325f, 0.25f, 0.375f, 0.25f),
    Line(0.4f, 0.25f, 0.45f, 0.25f),
    Line(0.4f, 0.15f, 0.5f, 0.35f), Line(0.4f, 0.35f, 0.5f, 0.35f),
    Line(0.4f, 0.35f, 0.5f, 0.15f), Line(0.4f, 0.15f, 0.5f, 0.15f),
    Line(0.125f, 0.15f, -0.125f, 0.35f)};

// ---- Contacts ----

// IEC 60617 07-02-01: make contact.
constexpr std::array ContactNO{
    Line(0, 0, 0, 0.0625f), Line(-0.125f, 0, 0, 0.25f), Line(0, 0.25f, 0, 0.5f)};

// IEC 60617 07-02-03: break contact.
constexpr std::array ContactNC{
    Line(0, 0, 0, 0.0625f), Line(0, 0.0625f, 0.15f, 0.0625f), Line(0.125f, 0, 0, 0.25f),
    Line(0, 0.25f, 0, 0.5f)};

// IEC 60617 07-05-01: make contact, delayed closing.
constexpr std::array OnDelayNO{
    Line(0, 0, 0, 0.0625f), Line(-0.125f, 0, 0, 0.25f), Line(0, 0.25f, 0, 0.5f),
    Line(-0.25f, 0.125f, -0.0625f, 0.125f), Line(-0.25f, 0.175f, -0.0375f, 0.175f),
    Arc(-0.15f, 0.15f, 0.1f, 120, 240)};

// IEC 60617 07-05: break contact, delayed opening.
constexpr auto OnDelayNC = joined(ContactNC, std::array{
    Line(-0.25f, 0.125f, 0.0625f, 0.125f), Line(-0.25f, 0.175f, 0.0375f, 0.175f),
    Arc(-0.15f, 0.15f, 0.1f, 120, 240)});

// IEC 60617 07-05: make contact, delayed opening.
constexpr std::array OffDelayNO{
    Line(0, 0, 0, 0.0625f), Line(0, 0.25f, 0, 0.5f),
    Line(-0.225f, 0.125f, -0.0625f, 0.125f), Line(-0.225f, 0.175f, -0.0375f, 0.175f),
    Arc(-0.321f, 0.1529f, 0.1f, 300, 60), Line(-0.125f, 0, 0, 0.25f)};

// IEC 60617 07-05: break contact, delayed closing.
constexpr auto OffDelayNC = joined(ContactNC, std::array{
    Line(-0.225f, 0.125f, 0.0625f, 0.125f), Line(-0.225f, 0.175f, 0.0375f, 0.175f),
    Arc(-0.321f, 0.1529f, 0.1f, 300, 60)});

// ---- Links ----

// IEC 60617 02-12-01: mechanical link, from the mark at a = -0.25 to the blade.
constexpr std::array LinkNO{
    Line(-0.25f, 0.125f, -0.2f, 0.125f), Line(-0.175f, 0.125f, -0.125f, 0.125f),
    Line(-0.1f, 0.125f, -0.0625f, 0.125f)};
constexpr std::array LinkNC{
    Line(-0.25f, 0.125f, -0.1925f, 0.125f), Line(-0.165f, 0.125f, -0.1075f, 0.125f),
    Line(-0.08f, 0.125f, -0.0225f, 0.125f), Line(0.005f, 0.125f, 0.0625f, 0.125f)};

// ---- Marks ----

// IEC 60617 02-13-01: manual control, general.
constexpr std::array ManualMark{Line(-0.25f, 0.0625f, -0.25f, 0.1875f)};

// IEC 60617 02-13-05: operated by pushing.
constexpr std::array PushMark{
    Line(-0.25f, 0.0625f, -0.2f, 0.0625f), Line(-0.25f, 0.0625f, -0.25f, 0.1875f),
    Line(-0.25f, 0.1875f, -0.2f, 0.1875f)};

// IEC 60617 02-13-03: operated by pulling.
constexpr std::array PullMark{
    Line(-0.3f, 0.0625f, -0.25f, 0.0625f), Line(-0.25f, 0.0625f, -0.25f, 0.1875f),
    Line(-0.3f, 0.1875f, -0.25f, 0.1875f)};

// IEC 60617 02-13-04: operated by turning.
constexpr std::array TurnMark{
    Line(-0.25f, 0.0625f, -0.2f, 0.0625f), Line(-0.25f, 0.0625f, -0.25f, 0.1875f),
    Line(-0.3f, 0.1875f, -0.25f, 0.1875f)};

// IEC 60617 02-13-06: operated by proximity effect.
constexpr std::array ProximityMark{
    Line(-0.25f, 0.125f, -0.34375f, 0.03125f), Line(-0.34375f, 0.03125f, -0.4375f, 0.125f),
    Line(-0.4375f, 0.125f, -0.34375f, 0.21875f), Line(-0.34375f, 0.21875f, -0.25f, 0.125f)};

// IEC 60617 02-13-08: emergency switch, mushroom head.
constexpr std::array MushroomMark{
    Line(-0.25f, 0.025f, -0.25f, 0.225f), Arc(-0.175f, 0.125f, 0.125f, 126.87f, 233.13f)};

// IEC 60617 02-13-10: operated by pedal.
constexpr std::array PedalMark{
    Line(-0.1875f, 0.03125f, -0.3125f, 0.21875f), Line(-0.3125f, 0.21875f, -0.1875f, 0.21875f)};

// IEC 60617 02-13-13: operated by key, the profile of a lock cylinder.
constexpr std::array KeyMark{
    Arc(-0.3f, 0.125f, 0.05f, 300, 240), Line(-0.325f, 0.1683f, -0.325f, 0.21875f),
    Arc(-0.3f, 0.21875f, 0.025f, 180, 360), Line(-0.275f, 0.21875f, -0.275f, 0.1683f)};

// IEC 60617 02-13-15: operated by roller.
constexpr std::array RollerMark{
    Circle(-0.3f, 0.125f, 0.05f)};

// IEC 60617 02-14-01: operated by fluid level, a float on the surface.
constexpr std::array FloatMark{
    Circle(-0.3f, 0.125f, 0.05f), Line(-0.375f, 0.175f, -0.225f, 0.175f),
    Line(-0.35f, 0.2f, -0.25f, 0.2f), Line(-0.325f, 0.225f, -0.275f, 0.225f)};

// IEC 60617 02-14: operated by the quantity named in the box.
constexpr std::array QuantityBox{
    Box(-0.4375f, 0.03125f, -0.25f, 0.21875f)};

// IEC 60617 02-14-03: flow.
constexpr std::array FlowMark{
    Line(-0.34375f, 0.1875f, -0.34375f, 0.0625f), Line(-0.375f, 0.1125f, -0.34375f, 0.0625f),
    Line(-0.3125f, 0.1125f, -0.34375f, 0.0625f)};

// IEC 60027: p, pressure.
constexpr std::array PressureMark{
    Line(-0.38125f, 0.06875f, -0.38125f, 0.1875f), Circle(-0.34375f, 0.10625f, 0.0375f)};
constexpr std::array PressureMarkHorz{
    Line(0.0875f, 0.2875f, 0.0875f, 0.40625f), Circle(0.125f, 0.325f, 0.0375f)};

// IEC 60027: theta, temperature.
constexpr std::array TemperatureMark{
    Arc(-0.34375f, 0.1f, 0.03125f, 360, 180), Line(-0.375f, 0.1f, -0.375f, 0.15f),
    Arc(-0.34375f, 0.15f, 0.03125f, 180, 360), Line(-0.3125f, 0.15f, -0.3125f, 0.1f),
    Line(-0.375f, 0.125f, -0.3125f, 0.125f)};

// ---- Actuated switches ----

// IEC 60617 07-07-01: manually operated switch.
constexpr std::array GPNO{
    Line(0, 0, 0, 0.0625f), Line(-0.125f, 0, 0, 0.25f), Line(0, 0.25f, 0, 0.5f),
    Line(-0.25f, 0.125f, -0.2f, 0.125f), Line(-0.175f, 0.125f, -0.125f, 0.125f),
    Line(-0.1f, 0.125f, -0.0625f, 0.125f), Line(-0.25f, 0.0625f, -0.25f, 0.1875f)};
constexpr auto GPNC = joined(ContactNC, LinkNC, ManualMark);

// IEC 60617 07-07-02: push-button switch.
constexpr std::array PBNO{
    Line(0, 0, 0, 0.0625f), Line(0, 0.25f, 0, 0.5f),
    Line(-0.25f, 0.125f, -0.2f, 0.125f), Line(-0.175f, 0.125f, -0.125f, 0.125f),
    Line(-0.1f, 0.125f, -0.0625f, 0.125f),
    Line(-0.25f, 0.0625f, -0.2f, 0.0625f), Line(-0.25f, 0.0625f, -0.25f, 0.1875f),
    Line(-0.25f, 0.1875f, -0.2f, 0.1875f), Line(-0.125f, 0, 0, 0.25f)};
constexpr auto PBNC = joined(ContactNC, LinkNC, PushMark);

// IEC 60617 07-07-03: pull switch.
constexpr auto PullNO = joined(ContactNO, LinkNO, PullMark);
constexpr auto PullNC = joined(ContactNC, LinkNC, PullMark);

// IEC 60617 07-07-04: turn switch.
constexpr auto TwistNO = joined(ContactNO, LinkNO, TurnMark);
constexpr auto TwistNC = joined(ContactNC, LinkNC, TurnMark);

// IEC 60617 07-07: switches worked by key, by pedal and by mushroom head.
constexpr auto KeyNO = joined(ContactNO, LinkNO, KeyMark);
constexpr auto KeyNC = joined(ContactNC, LinkNC, KeyMark);
constexpr auto FootSwitchNO = joined(ContactNO, LinkNO, PedalMark);
constexpr auto MushroomNO = joined(ContactNO, LinkNO, MushroomMark);
constexpr auto MushroomNC = joined(ContactNC, LinkNC, MushroomMark);
constexpr auto MushroomNOHorz = laidDown(MushroomNO);
constexpr auto MushroomNCHorz = laidDown(MushroomNC);

// IEC 60617 07-08-01 and 07-08-02: position switch, with a roller on its link.
constexpr auto MicroNO = joined(ContactNO, std::array{
    Line(-0.08125f, 0.0875f, -0.1375f, 0.125f), Line(-0.1375f, 0.125f, -0.04375f, 0.1625f),
    Line(-0.25f, 0.125f, -0.20625f, 0.125f), Line(-0.18125f, 0.125f, -0.1375f, 0.125f)},
    RollerMark);
constexpr auto MicroNC = joined(ContactNC, std::array{
    Line(0.08125f, 0.0875f, -0.0125f, 0.125f), Line(-0.0125f, 0.125f, 0.04375f, 0.1625f),
    Line(-0.25f, 0.125f, -0.1875f, 0.125f), Line(-0.1625f, 0.125f, -0.1f, 0.125f),
    Line(-0.075f, 0.125f, -0.0125f, 0.125f)}, RollerMark);

// IEC 60617 07-09-01 and 07-09-02: temperature-sensitive switch.
constexpr auto TSNO = joined(ContactNO, LinkNO, QuantityBox, TemperatureMark);
constexpr auto TSNC = joined(ContactNC, LinkNC, QuantityBox, TemperatureMark);

// IEC 60617 07-20-02: proximity switch.
constexpr auto ProxNO = joined(ContactNO, LinkNO, ProximityMark);
constexpr auto ProxNC = joined(ContactNC, LinkNC, ProximityMark);

// IEC 60617 07-02 with 02-14: switches worked by level, flow and pressure.
constexpr auto FloatNO = joined(ContactNO, LinkNO, FloatMark);
constexpr auto FloatNC = joined(ContactNC, LinkNC, FloatMark);
constexpr auto FlowNO = joined(ContactNO, LinkNO, QuantityBox, FlowMark);
constexpr auto FlowNC = joined(ContactNC, LinkNC, QuantityBox, FlowMark);
constexpr auto PSNO = joined(ContactNO, LinkNO, QuantityBox, PressureMark);
constexpr auto PSNC = joined(ContactNC, LinkNC, QuantityBox, PressureMark);
constexpr auto PSNOHorz = joined(laidDown(joined(ContactNO, LinkNO, QuantityBox)),
                                 PressureMarkHorz);
constexpr auto PSNCHorz = joined(laidDown(joined(ContactNC, LinkNC, QuantityBox)),
                                 PressureMarkHorz);

// ---- Drawings ----

constexpr Block ConnectorBlocks[] = {
    {0, Connector}, {1, Connector, Turn::MirrorLeftRight, 0.25f, 0},
    {3, ConnectorDown}, {4, ConnectorUp}};
constexpr Block Connector90Blocks[] = {
    {0, Connector, Turn::Clockwise}, {1, Connector, Turn::CounterClockwise, 0, 0.25f}};

constexpr Block CircuitBreakerBlocks[] = {{AnyOrientation, CircuitBreaker}};
constexpr Block CircuitBreakerVertBlocks[] = {
    {AnyOrientation, CircuitBreaker, Turn::CounterClockwise}};
constexpr Block FuseBlocks[] = {{AnyOrientation, Fuse}};
constexpr Block FuseVertBlocks[] = {{AnyOrientation, Fuse, Turn::Clockwise}};

constexpr Block RelayCoilBlocks[] = {{AnyOrientation, RelayCoil}};
constexpr Block OnDelayCoilBlocks[] = {{AnyOrientation, OnDelayCoil}};
constexpr Block OffDelayCoilBlocks[] = {{AnyOrientation, OffDelayCoil}};
constexpr Block SpecialRelayCoilBlocks[] = {{AnyOrientation, SpecialRelayCoil}};
constexpr Block SolenoidBlocks[] = {{AnyOrientation, Solenoid}};

constexpr Block ContactNOBlocks[] = {{AnyOrientation, ContactNO}};
constexpr Block ContactNCBlocks[] = {{AnyOrientation, ContactNC}};
constexpr Block ContactNOHorzBlocks[] = {{AnyOrientation, ContactNO, Turn::CounterClockwise}};
constexpr Block ContactNCHorzBlocks[] = {{AnyOrientation, ContactNC, Turn::CounterClockwise}};
constexpr Block OnDelayNOBlocks[] = {{AnyOrientation, OnDelayNO}};
constexpr Block OnDelayNCBlocks[] = {{AnyOrientation, OnDelayNC}};
constexpr Block OffDelayNOBlocks[] = {{AnyOrientation, OffDelayNO}};
constexpr Block OffDelayNCBlocks[] = {{AnyOrientation, OffDelayNC}};

constexpr Block GPNOBlocks[] = {{AnyOrientation, GPNO}};
constexpr Block GPNCBlocks[] = {{AnyOrientation, GPNC}};
constexpr Block PBNOBlocks[] = {{AnyOrientation, PBNO}};
constexpr Block PBNCBlocks[] = {{AnyOrientation, PBNC}};
constexpr Block PullNOBlocks[] = {{AnyOrientation, PullNO}};
constexpr Block PullNCBlocks[] = {{AnyOrientation, PullNC}};
constexpr Block TwistNOBlocks[] = {{AnyOrientation, TwistNO}};
constexpr Block TwistNCBlocks[] = {{AnyOrientation, TwistNC}};
constexpr Block KeyNOBlocks[] = {{AnyOrientation, KeyNO}};
constexpr Block KeyNCBlocks[] = {{AnyOrientation, KeyNC}};
constexpr Block FootSwitchNOBlocks[] = {{AnyOrientation, FootSwitchNO}};
constexpr Block MicroNOBlocks[] = {{AnyOrientation, MicroNO}};
constexpr Block MicroNCBlocks[] = {{AnyOrientation, MicroNC}};
constexpr Block TSNOBlocks[] = {{AnyOrientation, TSNO}};
constexpr Block TSNCBlocks[] = {{AnyOrientation, TSNC}};
constexpr Block ProxNOBlocks[] = {{AnyOrientation, ProxNO}};
constexpr Block ProxNCBlocks[] = {{AnyOrientation, ProxNC}};
constexpr Block ProxNOHorzBlocks[] = {{AnyOrientation, ProxNO, Turn::CounterClockwise}};
constexpr Block ProxNCHorzBlocks[] = {{AnyOrientation, ProxNC, Turn::CounterClockwise}};
constexpr Block FloatNOBlocks[] = {{AnyOrientation, FloatNO}};
constexpr Block FloatNCBlocks[] = {{AnyOrientation, FloatNC}};
constexpr Block FlowNOBlocks[] = {{AnyOrientation, FlowNO}};
constexpr Block FlowNCBlocks[] = {{AnyOrientation, FlowNC}};
constexpr Block PSNOBlocks[] = {{AnyOrientation, PSNO}};
constexpr Block PSNCBlocks[] = {{AnyOrientation, PSNC}};

// One button serves both contacts: the break contact first, as the palette has it, then the make
// contact; a mushroom head follows with both mirrored, the head at the other side.
constexpr Block PSVertBlocks[] = {{0, PSNC}, {1, PSNO}};
constexpr Block PSHorzBlocks[] = {{0, PSNCHorz}, {1, PSNOHorz}};
constexpr Block MHPBVertBlocks[] = {
    {0, MushroomNC}, {1, MushroomNO},
    {2, MushroomNC, Turn::MirrorLeftRight}, {3, MushroomNO, Turn::MirrorLeftRight}};
constexpr Block MHPBHorzBlocks[] = {
    {0, MushroomNCHorz}, {1, MushroomNOHorz},
    {2, MushroomNCHorz, Turn::MirrorTopBottom}, {3, MushroomNOHorz, Turn::MirrorTopBottom}};

constexpr Symbol Symbols[] = {
    {"InsertIECConnector", ConnectorBlocks, ""},
    {"InsertIECContactNO", ContactNOBlocks, "K", -0.25f, 0.25f},
    {"InsertIECContactNC", ContactNCBlocks, "K", -0.1875f, 0.25f},
    {"InsertIECCircuitBreaker", CircuitBreakerBlocks, ""},
    {"InsertIECFuse", FuseBlocks, "FU", 0.25f, -0.1875f, true},
    {"InsertIECOnDelayNO", OnDelayNOBlocks, "T", -0.375f, 0.125f, true},
    {"InsertIECOffDelayNO", OffDelayNOBlocks, "T", -0.375f, 0.125f, true},
    {"InsertIECRelayCoil", RelayCoilBlocks, "K", 0, 0.25f},
    {"InsertIECSolenoid", SolenoidBlocks, "Y", -0.375f, 0.25f, false, "InsertIECRelayCoil"},
    {"InsertIECPBNO", PBNOBlocks, "PB", -0.25f, 0.375f},
    {"InsertIECGPNO", GPNOBlocks, "PB", -0.25f, 0.375f},
    {"InsertIECConnector90", Connector90Blocks, ""},
    {"InsertIECContactNOHorz", ContactNOHorzBlocks, "K", 0.25f, -0.175f},
    {"InsertIECContactNCHorz", ContactNCHorzBlocks, "K", 0.25f, -0.275f},
    {"InsertIECCircuitBreakerVert", CircuitBreakerVertBlocks, ""},
    {"InsertIECFuseVert", FuseVertBlocks, "FU", 0.25f, 0.25f, true},
    {"InsertIECOffDelayNC", OffDelayNCBlocks, "T", -0.375f, 0.125f, true},
    {"InsertIECOnDelayNC", OnDelayNCBlocks, "T", -0.375f, 0.125f, true},
    {"InsertIECPSNC", PSNCBlocks, "PS", -0.25f, 0.375f},
    {"InsertIECPSVert", PSVertBlocks, "PS", -0.25f, 0.375f},
    {"InsertIECPSHorz", PSHorzBlocks, "PS", 0.25f, -0.275f},
    {"InsertIECPSNO", PSNOBlocks, "PS", -0.25f, 0.375f},
    {"InsertIECSpecialRelayCoil", SpecialRelayCoilBlocks, "K", 0, 0.25f},
    {"InsertIECOnDelayCoil", OnDelayCoilBlocks, "T", 0, 0.25f},
    {"InsertIECOffDelayCoil", OffDelayCoilBlocks, "T", 0, 0.25f},
    {"InsertIECProxNC", ProxNCBlocks, "PRX", -0.25f, 0.375f},
    {"InsertIECProxNCHorz", ProxNCHorzBlocks, "PRX", 0.25f, -0.275f},
    {"InsertIECProxNO", ProxNOBlocks, "PRX", -0.25f, 0.375f},
    {"InsertIECProxNOHorz", ProxNOHorzBlocks, "PRX", 0.25f, -0.175f},
    {"InsertIECTSNC", TSNCBlocks, "TS", -0.25f, 0.375f},
    {"InsertIECTSNO", TSNOBlocks, "TS", -0.25f, 0.375f},
    {"InsertIECFlowNC", FlowNCBlocks, "FLW", -0.25f, 0.375f},
    {"InsertIECFlowNO", FlowNOBlocks, "FLW", -0.25f, 0.375f},
    {"InsertIECTwistNC", TwistNCBlocks, "PB", -0.25f, 0.375f},
    {"InsertIECTwistNO", TwistNOBlocks, "SW", -0.25f, 0.375f},
    {"InsertIECFootSwitchNO", FootSwitchNOBlocks, "F", -0.25f, 0.375f},
    {"InsertIECPBNC", PBNCBlocks, "KS", -0.25f, 0.375f},
    {"InsertIECKeyNC", KeyNCBlocks, "KS", -0.25f, 0.375f},
    {"InsertIECKeyNO", KeyNOBlocks, "KS", -0.25f, 0.375f},
    {"InsertIECGPNC", GPNCBlocks, "PB", -0.25f, 0.375f},
    {"InsertIECMicroNC", MicroNCBlocks, "LS", -0.25f, 0.375f},
    {"InsertIECMicroNO", MicroNOBlocks, "LS", -0.25f, 0.375f},
    {"InsertIECPullNC", PullNCBlocks, "PB", -0.25f, 0.375f},
    {"InsertIECPullNO", PullNOBlocks, "PB", -0.25f, 0.375f},
    {"InsertIECFloatNO", FloatNOBlocks, "FL", -0.25f, 0.375f},
    {"InsertIECFloatNC", FloatNCBlocks, "FL", -0.25f, 0.375f},
    {"InsertIECMHPBVert", MHPBVertBlocks, "EM", -0.25f, 0.375f},
    {"InsertIECMHPBHorz", MHPBHorzBlocks, "EM", 0.25f, -0.4375f},
};

// clang-format on

}  // namespace

std::span<const Symbol> modSymbolsIEC() {
    return Symbols;
}

}  // namespace ladrix
