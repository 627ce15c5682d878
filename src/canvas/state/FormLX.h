// frmLX, the main window, as state: its controls under their own names. Handlers change it, the
// view shows it. Geometry that the layout of the view settles by itself is left out.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "canvas/state/Controls.h"
#include "canvas/state/MenuEntries.h"
#include "symbols/Palettes.h"

namespace ladrix {

// One button of the palette. The view makes its image from the symbol; Pressed shows the cyan one.
struct PaletteButton {
    std::string Tag;         // the tool's text and tip
    std::string DeviceName;  // of the tool pressed last; "" before
    bool Visible = false;
    bool Pressed = false;
    bool HasOrientations = false;
    Short OrientationCount = 1;
    Short ButtonOrientation = 0;
    // A user symbol's button alone: its two images and its place in the user's columns, twips.
    std::shared_ptr<const Picture> UpPicture, CyanPicture;
    Single Left = 0, Top = 0;
};

struct FlyOut {
    bool Visible = false;
    Short Index = -1;  // the button beside which it stands
    Short Count = 0;   // 2 or 4 variants

    friend bool operator==(const FlyOut&, const FlyOut&) = default;
};

enum class MousePointer { Default, Cross, ZoomIn, ZoomOut, SizeWidth, Hand };
enum class Focus { Canvas, TextEdit, CircleEnd, None };

// The part that every pointer move may change.
struct PointerState {
    MousePointer Pointer = MousePointer::Default;
    Overlay LineV, LineH;               // the cross-hair
    Overlay shpSelect, shpSelectLight;  // the band; the light one on a black background
    Overlay picGrip;

    friend bool operator==(const PointerState&, const PointerState&) = default;
};

struct FormLX {
    std::string Caption;
    MenuStates menu;

    Control picTop;  // the strip; the simulation's panel takes its place
    Control lblMessage, lblCoords, lblSelected, lblUndoCount, lblTime;
    Control cmdReset = captioned("Reset");
    Control cmdSnap, cmdSnapHigher, cmdSnapLower;
    Control cmdZoomIn, cmdZoomOut;
    std::array<Control, 2> cmdDrawWidth;  // 0 thick, 1 thin
    Control cmdColors, picSelectedColor = colored(Black), picColors = hidden();
    std::vector<Long> lblColor;  // the cells of the colour panel
    ComboBox cmbScale;
    Control cmdScaleOK, lblScale;

    Control picRadius = hidden();
    bool RadiusPanelWide = false;  // with the angle fields
    TextBox txtRadius, txtCircleStart, txtCircleEnd;
    Control cmdCircle;
    std::array<Control, 3> lblCircle;  // radius, start, end
    Control picText = hidden();
    TextBox txtEdit;

    std::vector<PaletteButton> cmdSym;  // 0 to 999
    unsigned PaletteVersion = 0;        // raised by every change of cmdSym
    FlyOut picMoreSym;

    PointerState pointer;
    std::vector<LabelControl> lbl;  // one per label
    unsigned LabelVersion = 0;      // raised by every change of lbl
    unsigned PictureVersion = 0;    // raised when a picture's mark has changed
    ScrollBar HScroll1, VScroll1;
    // Inner size of picFrame, the widest that the window has room for, and the width that a person
    // has dragged it to; 0: as wide as there is room. Twips.
    Single FrameWidth = 8.5f * TwipsPerInch, FrameHeight = 6.75f * TwipsPerInch;
    Single FrameRoom = 0, StretchedWidth = 0;
    MousePointer picFramePointer = MousePointer::Default;
    Focus FocusRequest = Focus::None;  // the view gives the focus and puts it back to None
};

}  // namespace ladrix
