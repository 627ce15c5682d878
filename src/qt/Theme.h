// The look of the program: one light palette on the Fusion style, flat controls, one accent colour.
#pragma once

#include <QColor>
#include <QCursor>
#include <QIcon>

#include "platform/Types.h"

class QApplication;
class QPainter;
class QRect;

namespace ladrix::theme {

inline const QColor Chrome{0xF4, 0xF5, 0xF7};     // bars and panels
inline const QColor Face{0xFB, 0xFB, 0xFC};       // buttons and cells
inline const QColor FaceHover{0xE8, 0xEC, 0xF2};  // under the pointer
inline const QColor FaceDown{0xD9, 0xDF, 0xE8};   // while held
inline const QColor Edge{0xC9, 0xCE, 0xD6};       // outlines of fields and buttons
inline const QColor Hairline{0xDD, 0xE0, 0xE5};   // between regions
inline const QColor Text{0x1F, 0x24, 0x2B};
inline const QColor TextQuiet{0x5B, 0x64, 0x70};
inline const QColor TextDisabled{0xA3, 0xAA, 0xB4};
inline const QColor Accent{0x2B, 0x6C, 0xD4};
inline const QColor Desk{0xDF, 0xE2, 0xE7};  // behind the page
inline const QColor PageEdge{0xBD, 0xC3, 0xCC};

constexpr int Unit = 4;    // logical pixels; spacings are multiples of it
constexpr int Radius = 4;  // of corners
constexpr int ControlHeight = 28;

// Style and palette. Called once, before any window.
void apply(QApplication& application);

// A shipped icon by its name, crisp at the screen's pixel ratio, paler where disabled.
QIcon icon(const char* name);
QIcon applicationIcon();

// A shipped cursor picture; the hot spot in logical pixels.
QCursor cursor(const char* name, int hotX, int hotY);

// A colour of the core; the button face is the theme's.
QColor color(Long value);

// The soft shadow that a page casts on the desk.
void paintPageShadow(QPainter& painter, const QRect& page);

}  // namespace ladrix::theme
