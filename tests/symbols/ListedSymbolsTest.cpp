// What is fixed for the symbols, name by name: drawings stroke by stroke, labels, orientations,
// terminals. And what every drawing owes to its reader.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>
#include <sstream>

#include "SymbolText.h"

namespace ladrix {
namespace {

// A drawing a row: primitives as parsed() reads them, or the symbol's first drawing turned, so that
// a point (a, b) goes where the row says, and moved. A row goes on in lines that are indented.
constexpr std::string_view Drawings = R"(
# NEMA
Battery: L 0,0 .0625,0 L .0625,-.2 .0625,.2 L .1875,-.125 .1875,.125 L .3125,-.2 .3125,.2
    L .4375,-.125 .4375,.125 L .4375,0 .5,0 .5,0
Capacitor/0: L 0,0 .0875,0 L .0875,-.125 .0875,.125 L .1625,0 .25,0 A .3375,0 .175 135 225
Capacitor/1: L .25,0 .1625,0 L .1625,-.125 .1625,.125 L .0875,0 0,0 A -.0875,0 .175 315 45
Capacitor/2: L 0,.25 0,.1625 L -.125,.1625 .125,.1625 L 0,.0875 0,0 A 0,-.0875 .175 225 315
Capacitor/3: L 0,0 0,.0875 L .125,.0875 -.125,.0875 L 0,.1625 0,.25 A 0,.3375 .175 45 135
CircuitBreaker90: C .0375,0 .0375 C .4625,0 .0375 A .25,.3375 .5 60 120
ContactNC: L 0,0 .175,0 L .175,-.15 .175,.15 L .325,-.15 .325,.15 L .325,0 .5,0 L .1,-.1 .4,.1
ContactNOClosed: L .1125,-.15 .175,-.15 .175,.15 L .1125,.15 .175,.15 L 0,0 .175,0
    L .325,-.15 .3875,-.15 L .325,-.15 .325,.15 .3875,.15 L .325,0 .5,0 L .4,-.1 .1,.1
ContactNO: L 0,0 .175,0 L .175,-.15 .175,.15 L .325,-.15 .325,.15 L .325,0 .5,0
Disconnect: L 0,0 0,.1 L .125,0 0,.375 0,.5
EStop: C .0375,0 .0375 C .4625,0 .0375 L 0,.0375 .5,.0375 L .25,-.2125 .25,.0375
    A .25,-.0375 .175 45 135
Fuse: L 0,0 .05,0 L .45,0 .5,0 L .05,-.075 .45,-.075 .45,.075 L .05,.075 .45,.075
    L .05,-.075 .05,.075 L .15,-.075 .15,.075 L .35,-.075 .35,.075
Ground: L 0,0 0,.175 L -.15,.175 .15,.175 L -.1,.275 .1,.275 L -.05,.375 .05,.375
Lamp: C .25,0 .175 L 0,0 .075,0 L .425,0 .5,0 L 0,-.25 .075,-.175 L .5,-.25 .425,-.175
    L .425,.175 .5,.25 L .075,.175 0,.25
LSNO: C .0375,0 .0375 C .4625,0 .0375 L .075,0 .5,.15 L .075,0 .25,.1625 .3625,.1
OffDelayNO: C .0375,0 .0375 C .4625,0 .0375 L .25,.05 .25,.3125 L .175,.2125 .25,.3125 .325,.2125
    L .075,0 .5,.125
OnDelayNO: C .0375,0 .0375 C .4625,0 .0375 L .25,.05 .25,.2875 L .1625,.375 .25,.2875
    L .075,0 .5,.125 L .25,.2875 .3375,.375
GPSwitch: C .0375,0 .0375 C .4625,0 .0375 L .075,0 .5,.125
PBNC: C .0375,0 .0375 C .4625,0 .0375 L .25,-.2125 .25,.0375 L 0,.0375 .5,.0375
PBNO: C .0375,0 .0375 C .4625,0 .0375 L .25,-.375 .25,-.125 L 0,-.125 .5,-.125
RelayCoil: C .25,0 .25
CoilSuppressor/0: C .25,0 .25 L -.125,0 -.125,.5 .125,.5 L .625,0 .625,.5 L .375,.5 .625,.5
    L .125,.45 .375,.45 .375,.5375 L .125,.5375 .375,.5375 L .125,.45 .125,.5375 L .3,.4 .375,.4
    L .3,.4 .1875,.5875 L .125,.5875 .1875,.5875 On C -.125,0 .025i C .625,0 .025i Off
Solenoid/0: L 0,0 .0625,0 .1625,-.1625 .3375,.15 .4375,0 .5,0
Solenoid/1: C .0375,0 .0375 C .4625,0 .0375 L .075,0 .125,0 L .375,0 .425,0
    L .125,0 .1875,-.175 .3125,.175 .375,0
ThermalOverload: L 0,0 .1,0 L .4,0 .5,0 A .175,0 .075 270 180 A .325,0 .075 90 360
TransformerCoil/0: A .0625,.0625 .0625 180 360 L 0,0 0,.0625 A .1875,.0625 .0625 180 360
    L .125,0 .125,.0625 A .3125,.0625 .0625 180 360 L .25,0 .25,.0625 A .4375,.0625 .0625 180 360
    L .375,0 .375,.0625 L .5,0 .5,.0625
TransformerCoil/1: A .0625,-.0625 .0625 360 180 L 0,0 0,-.0625 A .1875,-.0625 .0625 360 180
    L .125,0 .125,-.0625 A .3125,-.0625 .0625 360 180 L .25,0 .25,-.0625
    A .4375,-.0625 .0625 360 180 L .375,0 .375,-.0625 L .5,0 .5,-.0625
TransformerCoil/2: A .0625,.4375 .0625 270 90 L 0,.5 .0625,.5 A .0625,.3125 .0625 270 90
    L 0,.375 .0625,.375 A .0625,.1875 .0625 270 90 L 0,.25 .0625,.25 A .0625,.0625 .0625 270 90
    L 0,.125 .0625,.125 L 0,0 .0625,0
TransformerCoil/3: A -.0625,.0625 .0625 90 270 L 0,0 -.0625,0 A -.0625,.1875 .0625 90 270
    L 0,.125 -.0625,.125 A -.0625,.3125 .0625 90 270 L 0,.25 -.0625,.25 A -.0625,.4375 .0625 90 270
    L 0,.375 -.0625,.375 L 0,.5 -.0625,.5
CoilWithDiodeLeft: C .25i,0 .2i L 0,0 .05i,0 L 0,0 0,.375i .225i,.375i L .225i,.3125i .225i,.4375i
    L .225i,.375i .2875i,.3125i .2875i,.4375i .225i,.375i L .2875i,.375i .5i,.375i
    L .5i,0 .5i,.375i L .45i,0 .5i,0
ReferenceSmall: L 0,0 .125i,-.125i .25i,0 .125i,.125i 0,0
ScrewTerminal: C 0,0 .0625 L .05,-.0375 -.05,.0375
Jumper: L 0,0 0,.125 L 0,.375 0,.5 A 0,.25 .125 270 90
Jumper90: L 0,0 .125,0 L .375,0 .5,0 A .25,0 .125 360 180
# IEC
IECConnector/0: A .1375,0 .0375 270 90 F .0625,-.0125 .1375,.0125 L 0,0 .0625,0 L .175,0 .25,0
IECConnector/1: A .1125,0 .0375 90 270 F .1875,-.0125 .1125,.0125 L .25,0 .1875,0 L .075,0 0,0
IECConnector/3: A 0,.1375 .0375 180 360 F -.0125,.05 .0125,.1375 L 0,0 0,.05 L 0,.175 0,.25
IECConnector/4: A 0,.1125 .0375 360 180 F -.0125,.1125 .0125,.2 L 0,0 0,.075 L 0,.2 0,.25
IECContactNO: L 0,0 0,.0625 L -.125,0 0,.25 0,.5
IECContactNC: L 0,0 0,.0625 .15,.0625 L .125,0 0,.25 0,.5
IECCircuitBreaker: L 0,0 0,.15 L 0,.35 0,.5 L -.25,.15 .25,.15 .25,.35 L -.25,.35 .25,.35
    L -.25,.15 -.25,.35 L 0,.15 0,.1875 .125,.1875 .125,.3125 L 0,.3125 .125,.3125 L 0,.3125 0,.35
IECFuse: L 0,0 .5,0 L .05,-.075 .45,-.075 .45,.075 L .05,.075 .45,.075 L .05,-.075 .05,.075
IECOnDelayNO: L 0,0 0,.0625 L -.125,0 0,.25 0,.5 L -.25,.125 -.0625,.125 L -.25,.175 -.0375,.175
    A -.15,.15 .1 120 240
IECOffDelayNO: L 0,0 0,.0625 L 0,.25 0,.5 L -.225,.125 -.0625,.125 L -.225,.175 -.0375,.175
    A -.321,.1529 .1 300 60 L -.125,0 0,.25
IECRelayCoil: L 0,0 0,.15 L 0,.35 0,.5 L -.25,.15 .25,.15 .25,.35 L -.25,.35 .25,.35
    L -.25,.15 -.25,.35
IECSolenoid: L -.25,.15 .25,.15 .25,.35 L -.25,.35 .25,.35 L -.25,.15 -.25,.35 L 0,0 0,.15
    L 0,.35 0,.5 L .25,.25 .3,.25 L .325,.25 .375,.25 L .4,.25 .45,.25 L .4,.15 .5,.35
    L .4,.35 .5,.35 L .4,.35 .5,.15 L .4,.15 .5,.15 L .125,.15 -.125,.35
IECPBNO: L 0,0 0,.0625 L 0,.25 0,.5 L -.25,.125 -.2,.125 L -.175,.125 -.125,.125
    L -.1,.125 -.0625,.125 L -.25,.0625 -.2,.0625 L -.25,.0625 -.25,.1875 -.2,.1875 L -.125,0 0,.25
IECGPNO: L 0,0 0,.0625 L -.125,0 0,.25 0,.5 L -.25,.125 -.2,.125 L -.175,.125 -.125,.125
    L -.1,.125 -.0625,.125 L -.25,.0625 -.25,.1875
# Electronic
ResistorHorz: L .1406,-.0469 .1719,.0469 .2031,-.0469 .2344,.0469 .2656,-.0469 .2969,.0469
    .3281,-.0469 .3594,.0469 .375,0 .5,0 L .1406,-.0469 .125,0 L 0,0 .125,0
Potentiometer/0: L .1406,-.0469 .1719,.0469 .2031,-.0469 .2344,.0469 .2656,-.0469 .2969,.0469
    .3281,-.0469 .3594,.0469 .375,0 .5,0 L .1406,-.0469 .125,0 L 0,0 .125,0
    L .25,-.25 .25,-.0625 .2812,-.125 L .25,-.0625 .2188,-.125
Potentiometer/1 = -b,a + 0,-.5
Potentiometer/2 = -a,-b + .5,0
Potentiometer/3 = b,-a
EuroResistor/0: L 0,0 .0625,0 L .4375,0 .5,0 B .0625,-.0625 .4375,.0625
EuroResistor/1 = -b,a + 0,-.5
Crystal2/0: L 0,0 .1562,0 L .1562,-.125 .1562,.125 L .3438,-.125 .3438,.125 L .3438,0 .5,0
    B .2031,-.1875 .2969,.1875
Crystal2/1 = -b,a + 0,-.5
Ground1: L -.0312,.25 .0312,.25 L -.0625,.1875 .0625,.1875 L -.0938,.125 .0938,.125 L 0,0 0,.125
Ground2: L 0,0 0,.125 L -.125,.125 .125,.125 L -.125,.125 -.1875,.25 L 0,.125 -.0625,.25
    L .125,.125 .0625,.25
Speaker/0: L .125,-.0625 .3125,-.0625 .3125,.3125 L .125,.3125 .3125,.3125 L .125,-.0625 .125,.3125
    L 0,0 .125,0 L 0,.25 .125,.25 L .5,-.25 .5,.5 L .3125,-.0625 .5,-.25 L .3125,.3125 .5,.5
Speaker/1 = -a,b
Speaker/2 = b,-a
Speaker/3 = -b,a + .25,0
Connector1/0: L .1719,0 .25,0 L 0,0 .125,0 .0938,.0312 L .1719,0 .1094,.0625 L .1719,0 .1094,-.0625
    L .125,0 .0938,-.0312
Connector1/1 = -a,b + .25,0
Connector1/2 = b,-a
Connector1/3 = -b,a + 0,-.25
ESolenoid/0: L 0,0 .125,0 .1875,-.125 .3125,.125 .375,0 .5,0
DiodeLeft: L 0,0 .2i,0 L .3i,0 .5i,0 L .3i,-.075i .3i,.075i L .2i,-.075i .2i,.075i
    L .3i,-.075i .2i,0 .3i,.075i
EGround: L 0,0 0,.125 -.0625,.25 L -.25,.25 -.1875,.125 .1875,.125 .125,.25
Crystal: L 0,0 .15,0 L .15,-.125 .15,.125 L .35,-.125 .35,.125 L .35,0 .5,0 B .2,-.175 .3,.15
Amplifier: L 0,0 .25,0 L 0,.25 .25,.25 L .25,-.125 .25,.375 .75,.125 .25,-.125
OpAmp: L .25i,-.125i .75i,.125i .25i,.375i A .6875i,.125i .5i 150 210 L 0,0 .2i,0
    L 0,.25i .2125i,.25i L .3i,-.0375i .3i,.0375i L .2625i,0 .3375i,0 L .2625i,.25i .3375i,.25i
Resistor: L 0,0 .1,0 .125,-.075 .175,.075 .225,-.075 .275,.075 .325,-.075 .375,.075 .4,0 .5,0
# Fluid power
LineRestrictionHorz: A 0,-.28125 .25 240 300 A 0,.28125 .25 60 120
FlowRestrictorHorz: A 0,.28125 .25 60 120 A 0,-.28125 .25 240 300 L .15625,-.15625 -.125,.125
    L .15625,-.15625 .0625,-.125 L .15625,-.15625 .14062,-.09375
Arrow/0: L 0,-.0625 .125,0 0,.0625 L 0,-.0625 0,.0625
Arrow/1 = -a,b
Arrow/2 = b,-a
Arrow/3 = -b,a
SingleEnvelope: B 0,0 .5,.5
DoubleEnvelope/0: B 0,0 1,.5 L .5,0 .5,.5
DoubleEnvelope/1 = -b,a + .5,0
SolL/0: L -.25,-.25 0,-.25 L -.25,-.25 -.25,0 0,0 L -.0625,-.25 -.1875,0
SolL/1 = -b,a
DetentL/0: L -.25,-.25 -.21875,-.25 -.1875,-.1875 -.15625,-.25 -.09375,-.25 -.0625,-.1875
    -.03125,-.25 0,-.25 L -.25,0 0,0 L -.25,-.25 -.25,0
DetentL/1 = -b,a
ElectricMotor/0: C .25,0 .25 L .1875,-.09375 .1875,.09375
    L .1875,-.09375 .25,.03125 .3125,-.09375 .3125,.09375
Compressor/0: C .25,0 .25 L .375,-.0625 .5,0 .375,.0625 L .375,-.0625 .375,.0625
CylinderEast: B -.125,-.375 .625,0 L .25,-.375 .25,0 L .25,-.1875 1,-.1875
CylinderEastSpringReturn: B -.125,-.375 .625,0 L .25,-.375 .25,0 L .25,-.1875 1,-.1875
    L .25,-.09375 .3125,-.28125 .375,-.09375 .4375,-.28125 .5,-.09375 .5625,-.28125 .625,-.09375
ManuallyActuated/0: L -.25,-.09375 0,-.09375 L -.25,.09375 0,.09375 L -.25,-.15625 -.25,.15625
ManuallyActuated/1 = -a,b
ManuallyActuated/2 = -b,a
ManuallyActuated/3 = b,-a
2WayValveOpen/0: L 0,0 0,.1875 L 0,.3125 0,.5 L -.0625,.3125 .0625,.3125 L -.0625,.1875 .0625,.1875
    B -.25,0 .25,.5
2WayValveOpen/1 = -b,a + .5,0
PressureGauge/0: C .125,0 .125 L .1875,.0625 .0625,-.0625 .07812,-.01562
    L .0625,-.0625 .10938,-.04688
ToTank/0: L -.125,.25 -.125,.375 .125,.375 L .125,.25 .125,.375 L 0,0 0,.375
ToTank/1: L 0,.0625 0,.125 L 0,.1875 0,.25 L 0,.3125 0,.375 L -.125,.25 -.125,.375 .125,.375
    L .125,.25 .125,.375
)";

// Prefix: names, behind each where its label stands from the insertion point ("i": in inches, not
// scaled). Names without a place have one of their maker's choice; all others have no label.
constexpr std::string_view Labels = R"(
CR: ContactNC .25,-.275 ContactNOClosed .25,-.275 ContactNC90 .25,.25 ContactNC90Opened .25,.25
    ContactNO90Closed .25,.25 ContactNO .25,-.275 ContactNCOpened ContactNO90 .25,.25
    RelayCoil .25,0 SpecialCoil CoilSuppressor .25,0 CoilDiodeRight CoilDiodeLeft
    CoilWithSuppressor CoilWithDiodeRight CoilWithDiodeLeft .25,0
E-Stop: EStop .25,-.4375
FLT: FloatSwitchNC FloatSwitchNO FloatSwitchNCHO FloatSwitchNOHC
FLW: FlowSwitchNO FlowSwitchNC IECFlowNC IECFlowNO
FT: FootSwitchNC FootSwitchNO
FU: Fuse .25,-.25 Fuse90 .25,.25 IECFuse .25,-.1875i IECFuseVert
PL: Lamp .25,0
LS: LSNC LSNCHO LSNO .25,-.175 LSNOHC IECMicroNC IECMicroNO
TR: OffDelayNC OffDelayNO .25,-.175 OnDelayNC OnDelayNO .25,-.175
SW: GPSwitch .25,-.1875 GPSwitchNC GPSwitch2Pos IECTwistNO
PB: PBNC .25,-.375 PBNCDown PBNO .25,-.5 PBNODown
    IECTwistNC IECPBNO -.25,.375 IECGPNC IECGPNO -.25,.375 IECPullNC IECPullNO
PS: PSNC PSNO PSNCHO PSNOHC IECPSNC IECPSVert IECPSHorz IECPSNO
1: Reference CircularReference ReferencePoint ReferenceSmall .125,0i ReferenceLarge .25,0i
SOL: Solenoid .25,-.3125 Solenoid90 .25,.25
SS: SS2Pos SS3Pos
OL: ThermalOverload .25,-.25 ThermalOverload90 .25,.25
TS: ThermalSwitchNC ThermalSwitchNO IECTSNC IECTSNO
K: IECContactNOHorz IECContactNCHorz IECContactNO -.25,.25 IECContactNC -.1875,.25
    IECRelayCoil 0,.25 IECSpecialRelayCoil
T: IECOnDelayNO -.375,.125i IECOffDelayNC IECOffDelayNO -.375,.125i IECOnDelayNC IECOnDelayCoil
    IECOffDelayCoil
Y: IECSolenoid -.375,.25
PRX: IECProxNC IECProxNCHorz IECProxNO IECProxNOHorz
F: IECFootSwitchNO
KS: IECPBNC IECKeyNC IECKeyNO
FL: IECFloatNO IECFloatNC
EM: IECMHPBVert IECMHPBHorz
M: HydPumpAndMotor .75,-.125 ElecMotorAndHydPump .25,-.375
)";

// The orientations of a name's own drawings. All others have one that serves any orientation.
constexpr std::string_view Orientations = R"(
01234: SpecialCoil
0134: IECConnector
0123: TransformerCoil Transformer SmallTransformerCoil Capacitor IECMHPBVert IECMHPBHorz
    Potentiometer EuroPot Speaker Connector1 SingleCellHorz SingleCellVert DoubleCellHorz LED
    PhotoDiode ZenerDiode SCRH SCRV TriacH TriacV NPNTransistorH NPNTransistorV PNPTransistorH
    PNPTransistorV FETN FETP UJTN UJTP Diode BridgeRectifier NPNTransistor PNPTransistor Triac
    SolidArrow Arrow SmallDiagonalArrow ValveBodyArrow HorzValveBodyDiagonalArrow
    VertValveBodyDiagonalArrow DirectionalArrowsLeft DirectionalArrowsRight RotationalArrow
    Accumulator Spring CheckValve Filter Separator ManuallyActuated RollerActuated
    PushButtonActuated HandLeverActuated HandLeverActuated2 Env4PC Env4PC2 2WayValveClosed
    ReliefValveClosed ReliefValveOpen HydPump HydMotor Venturi
01: ACCapacitor Solenoid Solenoid90 IECConnector90 IECPSVert IECPSHorz Resistor2 Trimmer
    TappedResistor EuroResistor EuroTrimmer EuroTappedResistor Crystal2 Connector1_90 Diac2 UJT
    Diac ProximitySwitch RotationalArrowCWCCW DoubleEnvelope TripleEnvelope Env4PL Env4PR SolL
    SolR DetentL DetentR 2WayValveOpen 3WayHorz 3WayHorzNC 3WayVert 3WayVertNC
    ElecMotorAndHydPump BidirectionalPump FlowMeter ToTank
0: CoilSuppressor CoilDiodeLeft CoilDiodeRight ESolenoid ESolenoid90 ElectricMotor Compressor
    VarDispPump HydPumpAndMotor Receiver Heater Cooler TemperatureGauge PressureGauge
)";

// Where wires meet a drawing, from the insertion point. A name without a number: in all drawings.
constexpr std::string_view Terminals = R"(
0,0 .5,0: Battery CircuitBreaker90 ContactNC ContactNOClosed ContactNO ContactNCOpened EStop Fuse
    Lamp LSNO LSNC LSNCHO LSNOHC OffDelayNO OffDelayNC OnDelayNO OnDelayNC GPSwitch GPSwitchNC
    PBNC PBNO PBNCDown PBNODown RelayCoil CoilSuppressor CoilDiodeLeft CoilDiodeRight SpecialCoil
    Solenoid ThermalOverload TransformerCoil/0 Transformer/0 ConnectorRight Disconnect90
    FloatSwitchNC FloatSwitchNO FloatSwitchNCHO FloatSwitchNOHC FlowSwitchNO FlowSwitchNC
    FootSwitchNC FootSwitchNO KeySwitch NormallyOpenAux NormallyClosedAux PSNC PSNO PSNCHO PSNOHC
    SS2Pos SS3Pos ThermalSwitchNC ThermalSwitchNO ControlTransformer IncadescentLamp SimpleLamp
    Jumper90 CoilWithSuppressor CoilWithDiodeLeft CoilWithDiodeRight ReferenceLarge
    IECCircuitBreakerVert IECContactNCHorz IECContactNOHorz IECFuse IECMHPBHorz IECPSHorz
    IECProxNCHorz IECProxNOHorz
    CylinderEast CylinderEast2Ports 2WayValveOpen/1 2WayValveClosed/1 2WayValveClosed/3
    CheckValve/0 CheckValve/1 Filter/0 Separator/1 Cooler Heater HydPump/0 HydPump/1 HydMotor/1
    BidirectionalPump/0 VarDispPump
0,0 0,.5: Disconnect CircuitBreaker Fuse90 ContactNC90 ContactNC90Opened ContactNO90
    ContactNO90Closed ConnectorDown Solenoid90 ThermalOverload90 Jumper Transformer/2
    Transformer/3 TransformerCoil/2 TransformerCoil/3 IECContactNO IECContactNC IECCircuitBreaker
    IECOnDelayNO IECOffDelayNO IECRelayCoil IECSolenoid IECPBNO IECGPNO IECFuseVert IECOffDelayNC
    IECOnDelayNC IECPSNC IECPSVert IECPSNO IECSpecialRelayCoil IECOnDelayCoil IECOffDelayCoil
    IECProxNC IECProxNO IECTSNC IECTSNO IECFlowNC IECFlowNO IECTwistNC IECTwistNO IECFootSwitchNO
    IECPBNC IECKeyNC IECKeyNO IECGPNC IECMicroNC IECMicroNO IECPullNC IECPullNO IECFloatNO
    IECFloatNC IECMHPBVert
    CylinderSouth CylinderSouth2Ports 2WayValveOpen/0 2WayValveClosed/0 2WayValveClosed/2
    CheckValve/2 CheckValve/3 Filter/2 Separator/3 HydPump/2 HydPump/3 HydMotor/2
    BidirectionalPump/1 HydPumpAndMotor
0,0 .25,0: Capacitor/0 ACCapacitor/0 SmallTransformerCoil/0 Reference CircularReference
    ReferencePoint ReferenceSmall IECConnector/0 IECConnector/1 FlowMeter/0
0,0 0,.25: IECConnector/3 IECConnector/4 IECConnector90 FlowMeter/1
0,0 -.5,0: CylinderWest CylinderWest2Ports
0,0 0,-.5: CylinderNorth CylinderNorth2Ports
0,0: CylinderEast1PortSpringAssist Accumulator/0 Accumulator/2
0,0 0,.75: ReliefValveClosed/0 ReliefValveClosed/2 ReliefValveOpen/0
0,0 .75,0: ReliefValveClosed/1 ReliefValveClosed/3 ReliefValveOpen/3 Receiver
0,0 0,1: PressRelief PressReliefAdj
0,0 0,.75 .25,.75: 3WayHorz/0
0,0 0,.75 -.25,.75: 3WayHorzNC/1
0,0 -.75,0 -.75,.25: 3WayVert/0
0,0 .75,0 .75,-.25: 3WayVertNC/1
0,0 .25,0 0,.75 .25,.75: 2Pos4Way1 3Pos4Way1
0,0 0,.25 -.75,0 -.75,.25: 2Pos4WayVert1 3Pos4WayVert1 4Way2PosSolVert 4Way3PosSolVert1
    4Way3PosSolVert2
1,-.25 1,.25: ElecMotorAndHydPump/0
0,.75 .5,.75: ElecMotorAndHydPump/1
)";

struct Row {
    std::string head, rest;
};
std::vector<Row> rowsOf(std::string_view table, std::string_view separator = ": ") {
    std::vector<std::string> lines;
    std::istringstream in{std::string(table)};
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with(' '))
            lines.back() += line;
        else if (!line.empty() && line[0] != '#')
            lines.push_back(line);
    }
    std::vector<Row> rows;
    for (const std::string& line : lines)
        if (const auto end = line.find(separator); end != line.npos)
            rows.push_back({line.substr(0, end), line.substr(end + separator.size())});
    return rows;
}

struct Point {
    Single a, b;
};
Point pointOf(const std::string& text) {
    return {std::stof(text), std::stof(text.substr(text.find(',') + 1))};
}

// (a, b) as the text says: "b,-a".
Point turnedBy(const std::string& turn, Single a, Single b) {
    const auto term = [&](std::string_view text) {
        const Single value = text.back() == 'a' ? a : b;
        return text[0] == '-' ? -value : value;
    };
    const auto comma = turn.find(',');
    return {term(turn.substr(0, comma)), term(turn.substr(comma + 1))};
}

TEST(ListedSymbols, AreDrawnStrokeByStroke) {
    for (const auto& [name, primitives] : rowsOf(Drawings))
        EXPECT_EQ(textOf(drawing(name)), textOf(parsed(primitives))) << name;
    for (const auto& [name, turn] : rowsOf(Drawings, " = ")) {
        const auto word = words(turn);
        const Point move = word.size() > 2 ? pointOf(word[2]) : Point{};
        std::vector<Primitive> expected = drawing(name.substr(0, name.find('/')));
        for (Primitive& p : expected) {
            const Point from = turnedBy(word[0], p.a1, p.b1), to = turnedBy(word[0], p.a2, p.b2);
            p.a1 = from.a + move.a, p.b1 = from.b + move.b;
            p.a2 = to.a + move.a, p.b2 = to.b + move.b;
        }
        EXPECT_EQ(textOf(drawing(name)), textOf(expected)) << name;
    }
}

TEST(ListedSymbols, HaveTheirPrefixAndItsPlace) {
    std::map<std::string, std::string> prefixes;
    for (const auto& [prefix, rest] : rowsOf(Labels)) {
        std::string name;
        for (const std::string& word : words(rest)) {
            if (word.find(',') == word.npos) {
                prefixes[name = word] = prefix;
                continue;
            }
            const Symbol& symbol = symbolNamed(name);
            EXPECT_FLOAT_EQ(symbol.labelA, pointOf(word).a) << name;
            EXPECT_FLOAT_EQ(symbol.labelB, pointOf(word).b) << name;
            EXPECT_EQ(symbol.labelAbsolute, word.back() == 'i') << name;
        }
    }
    for (const Symbol& symbol : allSymbols()) {
        EXPECT_EQ(symbol.prefix, prefixes[std::string(symbol.name.substr(6))]) << symbol.name;
        EXPECT_EQ(symbol.nameWithoutLabel,
                  symbol.name == "InsertIECSolenoid" ? "InsertIECRelayCoil" : "");
    }
}

TEST(ListedSymbols, HaveTheirOrientationsAndNoOther) {
    std::map<std::string, std::string> expected;
    for (const auto& [orientations, names] : rowsOf(Orientations))
        for (const std::string& name : words(names))
            expected[name] = orientations;
    for (const Symbol& symbol : allSymbols()) {
        std::string actual;
        for (const Block& block : symbol.blocks)
            if (block.orientation != AnyOrientation) actual += std::to_string(block.orientation);
        EXPECT_EQ(actual, expected[std::string(symbol.name.substr(6))]) << symbol.name;
        EXPECT_TRUE(!actual.empty() || symbol.blocks.size() == 1) << symbol.name;
    }
}

TEST(ListedSymbols, MeetTheWiresAtTheirTerminals) {
    for (const auto& [points, names] : rowsOf(Terminals))
        for (const std::string& name : words(names))
            for (const std::string& one :
                 name.find('/') == name.npos ? drawingsOf(symbolNamed(name)) : std::vector{name})
                for (const std::string& point : words(points)) {
                    const auto [a, b] = pointOf(point);
                    EXPECT_TRUE(meets(drawing(one), a, b)) << one << " at " << point;
                }
}

TEST(EveryDrawing, HasNoStrokeThatIsEmptyOrDrawnTwice) {
    for (const Symbol& symbol : allSymbols())
        for (const std::string& name : drawingsOf(symbol)) {
            const std::vector<Primitive> all = drawing(name);
            std::set<std::string> seen;
            for (const Primitive& p : all)
                EXPECT_TRUE(seen.insert(undirected(p)).second) << name << " twice: " << textOf(p);
            const std::vector<Primitive> strokes = strokesOf(all);
            for (std::size_t i = 0; i < strokes.size(); ++i) {
                if (name == "Battery" && i == 6) continue;  // the listed one has no length
                EXPECT_GT(lengthOf(strokes[i]), 0.001) << name << ": " << textOf(strokes[i]);
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_FALSE(overlap(strokes[i], strokes[j]))
                        << name << ": " << textOf(strokes[i]) << ", " << textOf(strokes[j]);
            }
        }
}

// Whether a primitive runs through the box about (a, b).
bool crosses(const Primitive& p, Single a, Single b, Single halfWidth, Single halfHeight) {
    const bool arc = p.kind == PrimitiveKind::Arc, round = arc || p.kind == PrimitiveKind::Circle;
    const Single sweep = arc ? std::fmod(p.end - p.start + 720, 360.0f) : 360;
    for (Single t = 0; t <= 1; t += 1.0f / 64) {
        const Single angle = (p.start + sweep * t) * static_cast<Single>(Pi / 180);
        const Single x = round ? p.a1 + p.r * std::cos(angle) : p.a1 + (p.a2 - p.a1) * t;
        const Single y = round ? p.b1 - p.r * std::sin(angle) : p.b1 + (p.b2 - p.b1) * t;
        if (std::abs(x - a) < halfWidth && std::abs(y - b) < halfHeight) return true;
    }
    return false;
}

TEST(IECDrawings, LeaveRoomForTheirLabel) {
    for (const Symbol& symbol : modSymbolsIEC()) {
        const Single halfWidth = 0.04f * static_cast<Single>(symbol.prefix.size());
        for (const std::string& name : drawingsOf(symbol))
            for (const Primitive& p : drawing(name))
                EXPECT_FALSE(crosses(p, symbol.labelA, symbol.labelB, halfWidth, 0.065f))
                    << name << ": " << textOf(p);
    }
}

TEST(EveryDrawing, LooksLikeNoOtherButItsKnownTwin) {
    std::map<std::multiset<std::string>, std::string> looks;
    std::set<std::string> twins;
    for (const Symbol& symbol : allSymbols())
        for (const std::string& name : drawingsOf(symbol)) {
            std::multiset<std::string> look;
            for (const Primitive& p : drawing(name))
                look.insert(undirected(p));
            const auto [twin, added] = looks.emplace(look, name);
            if (!added) twins.insert(twin->second + " " + name);
        }
    EXPECT_EQ(twins, (std::set<std::string>{"SpecialCoil/2 CoilDiodeRight/0", "IECPSNC IECPSVert/0",
                                            "IECPSVert/1 IECPSNO", "ResistorHorz Resistor2/0",
                                            "Filter/0 Filter/1", "Filter/2 Filter/3"}));
}

}  // namespace
}  // namespace ladrix
