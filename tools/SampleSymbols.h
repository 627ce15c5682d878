// The symbols of the shipped sample library, one description each: what is drawn, in inches from
// the insertion point, which is the outer end of the first terminal.
//
//   box X1 Y1 X2 Y2        line X1 Y1 X2 Y2        circle X Y R       dot X Y R
//   arc X Y R START END    degrees, counter-clockwise from 3 o'clock
//   text X Y SIZE WORDS    centred; "*" in front of the words: bold; "_" is a blank
//   west X Y STEP NAMES    terminals that stick out a quarter of an inch to the left of X, one
//   below
//                          the other, names inside; "." leaves a place free. Likewise east X Y
//                          STEP, north Y X STEP and south Y X STEP.
//   lamps X Y DX DY COUNT  small circles
//   screws X Y STEP COUNT  terminals of a strip, a conductor above and below each
//   poles X Y STEP COUNT   contacts of a switch, conductors above and below
#pragma once

#include <string_view>

namespace ladrix::tools {

struct SampleSymbol {
    std::string_view name, description;
};

constexpr SampleSymbol SampleSymbols[] = {
    {"PLC CPU",
     "box .25 -.75 2.25 2.25; text 1.25 -.55 9 *PLC_CPU; west .25 0 .25 L+ M PE; "
     "box 1.25 -.25 2 .25; line 1.5 .25 1.5 .125; line 1.5 .125 1.75 .125; line 1.75 .125 1.75 "
     ".25; "
     "text 1.625 -.08 7 X1; box 1.25 .5 2 1; line 1.5 1 1.5 .875; line 1.5 .875 1.75 .875; "
     "line 1.75 .875 1.75 1; text 1.625 .67 7 X2; text .7 1.25 7 RUN; text .7 1.5 7 STOP; "
     "text .7 1.75 7 ERR; lamps 1 1.25 0 .25 3; text 1.25 2.08 6 ETHERNET"},
    {"PLC Digital Input 8 Point",
     "box .25 -.75 1.75 2.25; line .25 -.25 1.75 -.25; text 1 -.58 8 *DI_8; text 1 -.38 6 24_VDC; "
     "west .25 0 .25 I0 I1 I2 I3 I4 I5 I6 I7 COM; lamps 1.5 0 0 .25 8"},
    {"PLC Digital Input 16 Point",
     "box .25 -.75 2.25 2.25; line .25 -.25 2.25 -.25; text 1.25 -.58 8 *DI_16; "
     "text 1.25 -.38 6 24_VDC; west .25 0 .25 I0 I1 I2 I3 I4 I5 I6 I7 1M; "
     "east 2.25 0 .25 I8 I9 I10 I11 I12 I13 I14 I15 2M; line 1.25 -.25 1.25 2.25; "
     "lamps 1.125 0 0 .25 8; lamps 1.375 0 0 .25 8"},
    {"PLC Digital Output 8 Point",
     "box .25 -.75 1.75 2.25; line .25 -.25 1.75 -.25; text 1 -.58 8 *DQ_8; "
     "text 1 -.38 6 24_VDC_0.5_A; west .25 0 .25 L+ M; "
     "east 1.75 0 .25 Q0 Q1 Q2 Q3 Q4 Q5 Q6 Q7; lamps 1.25 0 0 .25 8"},
    {"PLC Relay Output 4 Point",
     "box .25 -.75 2 2; line .25 -.25 2 -.25; text 1.125 -.58 8 *RELAY_4; text 1.125 -.38 6 2_A; "
     "west .25 0 .5 1L 2L 3L 4L; east 2 0 .5 Q0 Q1 Q2 Q3; "
     "line .75 0 1 0; line 1 0 1.25 -.125; line 1.25 0 1.5 0; "
     "line .75 .5 1 .5; line 1 .5 1.25 .375; line 1.25 .5 1.5 .5; "
     "line .75 1 1 1; line 1 1 1.25 .875; line 1.25 1 1.5 1; "
     "line .75 1.5 1 1.5; line 1 1.5 1.25 1.375; line 1.25 1.5 1.5 1.5"},
    {"PLC Analog Input 4 Channel",
     "box .25 -.75 1.75 2.25; line .25 -.25 1.75 -.25; text 1 -.58 8 *AI_4; text 1 -.38 6 4-20_mA; "
     "west .25 0 .25 1+ 1- 2+ 2- 3+ 3- 4+ 4- SH; box 1 .5 1.5 1; line 1 1 1.5 .5; text 1.12 .6 7 "
     "A; "
     "text 1.38 .9 7 D"},
    {"PLC Analog Output 4 Channel",
     "box .25 -.75 1.75 2.25; line .25 -.25 1.75 -.25; text 1 -.58 8 *AQ_4; text 1 -.38 6 0-10_V; "
     "east 1.75 0 .25 1+ 1- 2+ 2- 3+ 3- 4+ 4- SH; west .25 0 .25 L+ M; "
     "box .5 .75 1 1.25; line .5 1.25 1 .75; text .62 .85 7 D; text .88 1.15 7 A"},
    {"PLC Thermocouple Input 2 Channel",
     "box .25 -.75 1.75 1; line .25 -.25 1.75 -.25; text 1 -.58 8 *TC_2; text 1 -.38 6 TYPE_K; "
     "west .25 0 .25 1+ 1- 2+ 2-; line 1.5 -.05 1.1 .125; line 1.5 .3 1.1 .125; dot 1.1 .125 .035; "
     "line 1.5 .45 1.1 .625; line 1.5 .8 1.1 .625; dot 1.1 .625 .035"},
    {"Variable Frequency Drive",
     "north .25 0 .5 L1 L2 L3 PE; box -.5 .25 2 2.25; south 2.25 0 .5 U V W PE; "
     "box .375 .75 1.125 1.75; line .375 1.75 1.125 .75; text .6 .95 9 *~; text .9 1.55 9 *~; "
     "west -.5 .75 .25 RUN REV SPD COM; east 2 .75 .25 RA RC AO; text .75 .6 8 *VFD"},
    {"Soft Starter",
     "north .25 0 .5 L1 L2 L3; box -.5 .25 1.5 1.75; south 1.75 0 .5 T1 T2 T3; "
     "box .125 .75 .875 1.25; line .25 .875 .5 1; line .25 1.125 .5 1; line .25 .875 .25 1.125; "
     "line .5 .875 .5 1.125; line .75 .875 .5 1; line .75 1.125 .5 1; line .75 .875 .75 1.125; "
     "west -.5 .75 .25 RUN COM; east 1.5 .75 .25 TOR COM; text .5 .62 6 SOFT_STARTER"},
    {"Motor Three Phase",
     "circle .5 .75 .5; line 0 0 0 .25; line 0 .25 .2 .35; line .5 0 .5 .25; line 1 0 1 .25; "
     "line 1 .25 .8 .35; text .5 .67 12 *M; text .5 .9 8 3_~; text -.1 .1 6 U; text .4 .1 6 V; "
     "text .9 .1 6 W"},
    {"Motor Three Phase with Ground",
     "circle .5 .75 .5; line 0 0 0 .25; line 0 .25 .2 .35; line .5 0 .5 .25; line 1 0 1 .25; "
     "line 1 .25 .8 .35; text .5 .67 12 *M; text .5 .9 8 3_~; text -.1 .1 6 U; text .4 .1 6 V; "
     "text .9 .1 6 W; line 1 .75 1.5 .75; line 1.5 .75 1.5 1; line 1.375 1 1.625 1; "
     "line 1.42 1.05 1.58 1.05; line 1.465 1.1 1.535 1.1; text 1.25 .67 6 PE"},
    {"Motor Three Phase 6 Lead",
     "circle .5 .75 .5; line 0 0 0 .25; line 0 .25 .2 .35; line .5 0 .5 .25; line 1 0 1 .25; "
     "line 1 .25 .8 .35; line 0 1.5 0 1.25; line 0 1.25 .2 1.15; line .5 1.25 .5 1.5; "
     "line 1 1.5 1 1.25; line 1 1.25 .8 1.15; text .5 .67 12 *M; text .5 .9 8 3_~; "
     "text -.13 .1 6 U1; text .37 .1 6 V1; text .87 .1 6 W1; text -.15 1.4 6 W2; "
     "text .37 1.4 6 U2; text .87 1.4 6 V2"},
    {"Motor Three Phase with Brake",
     "circle .5 .75 .5; line 0 0 0 .25; line 0 .25 .2 .35; line .5 0 .5 .25; line 1 0 1 .25; "
     "line 1 .25 .8 .35; text .5 .67 12 *M; text .5 .9 8 3_~; text -.1 .1 6 U; text .4 .1 6 V; "
     "text .9 .1 6 W; line 1 .75 1.25 .75; line 1.25 .5 1.25 1; box 1.3125 .5 1.625 1; "
     "line 1.625 .5 2 .5; line 1.625 1 2 1; text 1.81 .42 6 B1; text 1.81 .92 6 B2"},
    {"Motor Single Phase",
     "circle .25 .75 .5; line 0 0 0 .317; line .5 0 .5 .317; text .25 .67 12 *M; text .25 .9 8 "
     "1_~; "
     "text -.1 .1 6 L; text .6 .1 6 N"},
    {"Motor Stepper",
     "circle .75 .375 .5; line 0 0 .42 0; line 0 .25 .266 .25; line 0 .5 .266 .5; line 0 .75 .42 "
     ".75; "
     "text .75 .28 12 *M; text .75 .52 6 STEP; text .12 -.08 6 A+; text .12 .17 6 A-; "
     "text .12 .42 6 B+; text .12 .67 6 B-"},
    {"Servo Drive",
     "north .25 0 .5 L1 L2 L3; box -.5 .25 1.5 2.25; south 2.25 0 .5 U V W; text .5 .65 8 *SERVO; "
     "west -.5 .75 .25 STO1 STO2 EN COM; east 1.5 .75 .25 A+ A- B+ B-; box .25 1 .75 1.5; "
     "line .25 1.5 .75 1; text .375 1.13 8 =; text .62 1.37 9 ~; text .5 1.75 6 ENCODER_X5"},
    {"Servo Motor with Encoder",
     "circle .5 .75 .5; line 0 0 0 .25; line 0 .25 .2 .35; line .5 0 .5 .25; line 1 0 1 .25; "
     "line 1 .25 .8 .35; text .5 .67 12 *M; text .5 .9 8 3_~; text -.1 .1 6 U; text .4 .1 6 V; "
     "text .9 .1 6 W; line 1 .75 1.25 .75; circle 1.5 .75 .25; text 1.5 .75 9 *G; "
     "line 1.75 .75 2 .75; line 1.69 .91 2 1; line 1.69 .59 2 .5"},
    {"Encoder Incremental",
     "box .25 -.25 1.25 1.5; west .25 0 .25 A B Z +V 0V SH; circle .95 .625 .2; dot .95 .625 .03; "
     "arc .95 .625 .12 30 330; text .75 -.14 6 ENCODER"},
    {"Contactor Three Pole",
     "poles 0 0 .5 3; box -.7 .125 -.3 .375; line -.3 .25 .95 .25; line -.5 0 -.5 .125; "
     "line -.5 .375 -.5 .5; text -.64 .04 6 A1; text -.64 .46 6 A2"},
    {"Overload Relay Three Pole",
     "box -.25 .25 1.25 .75; line 0 0 0 .4; line 0 .4 .125 .4; line .125 .4 .125 .6; "
     "line .125 .6 0 .6; line 0 .6 0 1; line .5 0 .5 .4; line .5 .4 .625 .4; line .625 .4 .625 .6; "
     "line .625 .6 .5 .6; line .5 .6 .5 1; line 1 0 1 .4; line 1 .4 1.125 .4; "
     "line 1.125 .4 1.125 .6; line 1.125 .6 1 .6; line 1 .6 1 1"},
    {"Motor Circuit Breaker Three Pole",
     "poles 0 0 .5 3; line -.06 -.06 .06 .06; line -.06 .06 .06 -.06; line .44 -.06 .56 .06; "
     "line .44 .06 .56 -.06; line .94 -.06 1.06 .06; line .94 .06 1.06 -.06; "
     "box -.25 .5 1.25 1; line 0 .5 0 .65; line 0 .65 .125 .65; line .125 .65 .125 .85; "
     "line .125 .85 0 .85; line 0 .85 0 1.25; line .5 .5 .5 .65; line .5 .65 .625 .65; "
     "line .625 .65 .625 .85; line .625 .85 .5 .85; line .5 .85 .5 1.25; line 1 .5 1 .65; "
     "line 1 .65 1.125 .65; line 1.125 .65 1.125 .85; line 1.125 .85 1 .85; line 1 .85 1 1.25"},
    {"Terminal Strip 4 Point", "screws 0 0 .25 4"},
    {"Terminal Strip 8 Point", "screws 0 0 .25 8"},
    {"Terminal Strip 12 Point", "screws 0 0 .25 12"},
    {"Power Supply 24 VDC",
     "north .25 0 .25 L N PE; box -.25 .25 .75 1.25; south 1.25 0 .5 + -; box 0 .5 .5 1; "
     "line 0 1 .5 .5; text .12 .63 9 *~; text .38 .87 8 *="},
    {"Power Supply Three Phase 24 VDC",
     "north .25 0 .25 L1 L2 L3 PE; box -.25 .25 1 1.25; south 1.25 0 .25 + + - -; "
     "box .125 .5 .625 1; line .125 1 .625 .5; text .25 .63 9 *~; text .5 .87 8 *="},
    {"Power Supply UPS Module",
     "west .25 0 .25 IN+ IN-; east 1.75 0 .25 OUT+ OUT-; box .25 -.5 1.75 1.25; "
     "text 1 -.36 7 *DC_UPS; line .85 .7 .85 1.1; line .95 .8 .95 1; line 1.05 .7 1.05 1.1; "
     "line 1.15 .8 1.15 1; line .6 .9 .85 .9; line 1.15 .9 1.4 .9; text 1 .58 6 BATTERY"},
    {"Safety Relay",
     "north .25 0 .25 A1 A2 S11 S12 S21 S22 S33 S34; box -.25 .25 2 2; "
     "south 2 0 .25 13 14 23 24 33 34 41 42; text .875 .58 8 *SAFETY_RELAY; "
     "line 0 1.8 0 1.4; line 0 1.4 .2 1.2; line .25 1.8 .25 1.4; "
     "line .5 1.8 .5 1.4; line .5 1.4 .7 1.2; line .75 1.8 .75 1.4; "
     "line 1 1.8 1 1.4; line 1 1.4 1.2 1.2; line 1.25 1.8 1.25 1.4; "
     "line 1.5 1.8 1.5 1.4; line 1.5 1.4 1.8 1.33; line 1.75 1.8 1.75 1.34; "
     "text .2 .9 6 PWR; text .8 .9 6 CH1; text 1.4 .9 6 CH2; lamps .4 .9 .6 0 3"},
    {"Emergency Stop Two Channel",
     "line 0 0 .2 0; line .45 0 .75 0; line .2 0 .5 -.1; line .45 0 .45 -.14; "
     "line 0 .5 .2 .5; line .45 .5 .75 .5; line .2 .5 .5 .4; line .45 .5 .45 .36; "
     "line .35 .45 .35 .3; line .35 .2 .35 .05; line .35 -.05 .35 -.35; line .15 -.35 .55 -.35; "
     "arc .35 -.35 .2 0 180; text .05 -.09 6 11; text .68 -.09 6 12; text .05 .41 6 21; "
     "text .68 .41 6 22"},
    {"Safety Light Curtain",
     "box .25 -.25 .75 1.75; box 1.75 -.25 2.25 1.75; west .25 0 .25 + - TEST; "
     "east 2.25 0 .25 + - OSD1 OSD2; line .85 .25 1.65 .25; line 1.55 .2 1.65 .25; "
     "line 1.55 .3 1.65 .25; line .85 .75 1.65 .75; line 1.55 .7 1.65 .75; line 1.55 .8 1.65 .75; "
     "line .85 1.25 1.65 1.25; line 1.55 1.2 1.65 1.25; line 1.55 1.3 1.65 1.25; "
     "text .5 1.62 6 TX; text 2 1.62 6 RX"},
    {"HMI Panel",
     "box .25 -.5 2.5 1.5; box 1 -.25 2.25 1; west .25 0 .25 + - PE; text 1.625 .375 10 *HMI; "
     "lamps 1.125 1.25 .25 0 5"},
    {"Ethernet Switch 5 Port",
     "box .25 -.75 1.75 1.25; west .25 0 .25 + - PE; east 1.75 0 .25 P1 P2 P3 P4 P5; "
     "text 1 -.56 7 *SWITCH; text 1 -.36 6 ETHERNET; lamps 1.25 0 0 .25 5"},
    {"Proximity Sensor PNP",
     "box .25 -.25 1.25 .75; east 1.25 0 .25 + OUT -; line .5 .25 .65 .05; line .65 .05 .8 .25; "
     "line .8 .25 .65 .45; line .65 .45 .5 .25; line .55 .25 .75 .25; text .55 -.15 6 PNP; "
     "text .55 .64 6 NO"},
    {"Photoelectric Sensor",
     "box .25 -.25 1.25 .75; east 1.25 0 .25 + OUT -; line .45 .45 .7 .2; line .6 .2 .7 .2; "
     "line .7 .2 .7 .3; line .55 .55 .8 .3; line .7 .3 .8 .3; line .8 .3 .8 .4; text .55 -.05 6 "
     "PHOTO"},
    {"Transmitter 4-20 mA",
     "west .25 0 .25 + -; box .25 -.25 1 .5; circle 1.25 .125 .25; text .67 -.12 6 4-20_mA; "
     "line 1.5 .125 1.75 .125; text 1.25 .125 9 *P"},
    {"Solid State Relay",
     "west .25 0 .5 + -; box .25 -.25 1.5 .75; east 1.5 0 .5 L T; line .7 .1 .7 .4; "
     "line .6 .15 .8 .15; line .6 .15 .7 .35; line .8 .15 .7 .35; line .6 .35 .8 .35; "
     "line .84 .2 .94 .25; line .84 .3 .94 .35; line 1.05 .15 1.25 .15; line 1.05 .35 1.25 .35; "
     "line 1.05 .15 1.15 .35; line 1.25 .15 1.15 .35; text .87 .64 6 SSR"},
    {"Signal Tower Three Color",
     "box 0 .25 .5 .75; box 0 .75 .5 1.25; box 0 1.25 .5 1.75; arc .25 .25 .25 0 180; "
     "box .125 1.75 .375 2; text .25 .5 6 RED; text .25 1 6 AMB; text .25 1.5 6 GRN; "
     "line .5 .5 .75 .5; line .5 1 .75 1; line .5 1.5 .75 1.5; line .25 2 .25 2.25"},
};

}  // namespace ladrix::tools
