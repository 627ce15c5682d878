// The fluid power library: its symbols by name. What they look like is held by topic in the files
// beside this one. Labels stand above the motor of a motor and pump set.
#include "symbols/modSymbolsOldHyd.h"
#include "symbols/Libraries.h"

namespace ladrix {

namespace {

using namespace fluidpower;

constexpr Symbol Symbols[] = {
    {"InsertLineRestrictionHorz", LineRestrictionHorz, {}},
    {"InsertFlowRestrictorHorz", FlowRestrictorHorz, {}},
    {"InsertArrow", Arrow, {}},
    {"InsertSingleEnvelope", SingleEnvelope, {}},
    {"InsertDoubleEnvelope", DoubleEnvelope, {}},
    {"InsertSolL", SolL, {}},
    {"InsertDetentL", DetentL, {}},
    {"InsertElectricMotor", ElectricMotor, {}},
    {"InsertCompressor", Compressor, {}},
    {"InsertCylinderEast", CylinderEast, {}},
    {"InsertCylinderEastSpringReturn", CylinderEastSpringReturn, {}},
    {"InsertManuallyActuated", ManuallyActuated, {}},
    {"Insert2WayValveOpen", TwoWayValveOpen, {}},
    {"InsertPressureGauge", PressureGauge, {}},
    {"InsertToTank", ToTank, {}},
    {"InsertLineRestrictionVert", LineRestrictionVert, {}},
    {"InsertFlowRestrictorVert", FlowRestrictorVert, {}},
    {"InsertSolidArrow", SolidArrow, {}},
    {"InsertFilter", Filter, {}},
    {"InsertSeparator", Separator, {}},
    {"InsertTripleEnvelope", TripleEnvelope, {}},
    {"InsertDirectionalArrowsLeft", DirectionalArrowsLeft, {}},
    {"InsertDirectionalArrowsRight", DirectionalArrowsRight, {}},
    {"InsertEnv4PC", Env4PC, {}},
    {"InsertEnv4PC2", Env4PC2, {}},
    {"InsertEnv4PL", Env4PL, {}},
    {"InsertEnv4PR", Env4PR, {}},
    {"InsertSolR", SolR, {}},
    {"InsertDetentR", DetentR, {}},
    {"InsertReceiver", Receiver, {}},
    {"InsertSpring", Spring, {}},
    {"Insert4Way2PosSolVert", FourWayTwoPosSolVert, {}},
    {"Insert4Way3PosSolVert1", FourWayThreePosSolVert1, {}},
    {"Insert4Way3PosSolVert2", FourWayThreePosSolVert2, {}},
    {"Insert3Pos4Way1", ThreePosFourWay, {}},
    {"Insert2Pos4Way1", TwoPosFourWay, {}},
    {"Insert2Pos4WayVert1", TwoPosFourWayVert, {}},
    {"Insert3Pos4WayVert1", ThreePosFourWayVert, {}},
    {"InsertPressReliefAdj", PressReliefAdj, {}},
    {"InsertPressRelief", PressRelief, {}},
    {"InsertFlowMeter", FlowMeter, {}},
    {"InsertVarDispPump", VarDispPump, {}},
    {"InsertVenturi", Venturi, {}},
    {"InsertHydPump", HydPump, {}},
    {"InsertBidirectionalPump", BidirectionalPump, {}},
    {"InsertHydMotor", HydMotor, {}},
    {"InsertHydPumpAndMotor", HydPumpAndMotor, "M", 0.75f, -0.125f},
    {"InsertElecMotorAndHydPump", ElecMotorAndHydPump, "M", 0.25f, -0.375f},
    {"InsertCheckValve", CheckValve, {}},
    {"InsertAccumulator", Accumulator, {}},
    {"Insert3WayHorz", ThreeWayHorz, {}},
    {"Insert3WayHorzNC", ThreeWayHorzNC, {}},
    {"Insert3WayVert", ThreeWayVert, {}},
    {"Insert3WayVertNC", ThreeWayVertNC, {}},
    {"InsertCylinderEast1PortSpringAssist", CylinderEast1PortSpringAssist, {}},
    {"InsertCylinderEast2Ports", CylinderEast2Ports, {}},
    {"InsertCylinderWest2Ports", CylinderWest2Ports, {}},
    {"InsertCylinderNorth2Ports", CylinderNorth2Ports, {}},
    {"InsertCylinderSouth2Ports", CylinderSouth2Ports, {}},
    {"InsertCylinderWest", CylinderWest, {}},
    {"InsertCylinderNorth", CylinderNorth, {}},
    {"InsertCylinderSouth", CylinderSouth, {}},
    {"InsertCylinderWestSpringReturn", CylinderWestSpringReturn, {}},
    {"InsertCylinderNorthSpringReturn", CylinderNorthSpringReturn, {}},
    {"InsertCylinderSouthSpringReturn", CylinderSouthSpringReturn, {}},
    {"InsertCylinderEastSpringAdvance", CylinderEastSpringAdvance, {}},
    {"InsertCylinderWestSpringAdvance", CylinderWestSpringAdvance, {}},
    {"InsertCylinderNorthSpringAdvance", CylinderNorthSpringAdvance, {}},
    {"InsertCylinderSouthSpringAdvance", CylinderSouthSpringAdvance, {}},
    {"InsertRollerActuated", RollerActuated, {}},
    {"InsertPushButtonActuated", PushButtonActuated, {}},
    {"InsertHandLeverActuated", HandLeverActuated, {}},
    {"InsertHandLeverActuated2", HandLeverActuated2, {}},
    {"InsertValveBodyArrow", ValveBodyArrow, {}},
    {"InsertRotationalArrowCWCCW", RotationalArrowCWCCW, {}},
    {"InsertRotationalArrow", RotationalArrow, {}},
    {"InsertVertValveBodyDiagonalArrow", VertValveBodyDiagonalArrow, {}},
    {"InsertHorzValveBodyDiagonalArrow", HorzValveBodyDiagonalArrow, {}},
    {"InsertSmallDiagonalArrow", SmallDiagonalArrow, {}},
    {"InsertReliefValveClosed", ReliefValveClosed, {}},
    {"InsertReliefValveOpen", ReliefValveOpen, {}},
    {"Insert2WayValveClosed", TwoWayValveClosed, {}},
    {"InsertHeater", Heater, {}},
    {"InsertCooler", Cooler, {}},
    {"InsertTemperatureGauge", TemperatureGauge, {}},
};

}  // namespace

std::span<const Symbol> modSymbolsOldHyd() {
    return Symbols;
}

}  // namespace ladrix
