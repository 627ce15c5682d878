// The drawings of the fluid power library, held by topic in the files named after it, for the
// module's table. An array's length is the number of its drawings.
#pragma once

#include "symbols/Symbol.h"

namespace ladrix::fluidpower {

// Cylinders.
extern const Block CylinderEast[1], CylinderWest[1], CylinderNorth[1], CylinderSouth[1];
extern const Block CylinderEastSpringReturn[1], CylinderWestSpringReturn[1],
    CylinderNorthSpringReturn[1], CylinderSouthSpringReturn[1];
extern const Block CylinderEastSpringAdvance[1], CylinderWestSpringAdvance[1],
    CylinderNorthSpringAdvance[1], CylinderSouthSpringAdvance[1];
extern const Block CylinderEast2Ports[1], CylinderWest2Ports[1], CylinderNorth2Ports[1],
    CylinderSouth2Ports[1], CylinderEast1PortSpringAssist[1];

// Envelopes and valves.
extern const Block SingleEnvelope[1], DoubleEnvelope[2], TripleEnvelope[2];
extern const Block Env4PL[2], Env4PC[4], Env4PC2[4], Env4PR[2];
extern const Block TwoWayValveOpen[2], TwoWayValveClosed[4];
extern const Block ThreeWayHorz[2], ThreeWayHorzNC[2], ThreeWayVert[2], ThreeWayVertNC[2];
extern const Block TwoPosFourWay[1], TwoPosFourWayVert[1], FourWayTwoPosSolVert[1];
extern const Block ThreePosFourWay[1], ThreePosFourWayVert[1], FourWayThreePosSolVert1[1],
    FourWayThreePosSolVert2[1];
extern const Block ReliefValveClosed[4], ReliefValveOpen[4], PressRelief[1], PressReliefAdj[1];
extern const Block CheckValve[4];

// Actuators of valves.
extern const Block SolL[2], SolR[2], DetentL[2], DetentR[2], Spring[4];
extern const Block ManuallyActuated[4], PushButtonActuated[4], RollerActuated[4],
    HandLeverActuated[4], HandLeverActuated2[4];

// Pumps and motors.
extern const Block ElectricMotor[1], Compressor[1], HydPump[4], BidirectionalPump[2],
    VarDispPump[1], HydMotor[4], HydPumpAndMotor[1], ElecMotorAndHydPump[2];

// Lines, storage, conditioning and gauges.
extern const Block LineRestrictionHorz[1], LineRestrictionVert[1], FlowRestrictorHorz[1],
    FlowRestrictorVert[1], Venturi[4];
extern const Block Filter[4], Separator[4], Cooler[1], Heater[1];
extern const Block Receiver[1], Accumulator[4], ToTank[2];
extern const Block PressureGauge[1], TemperatureGauge[1], FlowMeter[2];

// Arrows.
extern const Block Arrow[4], SolidArrow[4], SmallDiagonalArrow[4], ValveBodyArrow[4],
    HorzValveBodyDiagonalArrow[4], VertValveBodyDiagonalArrow[4];
extern const Block DirectionalArrowsLeft[4], DirectionalArrowsRight[4];
extern const Block RotationalArrow[4], RotationalArrowCWCCW[2];

}  // namespace ladrix::fluidpower
