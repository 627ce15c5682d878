// The symbols of all libraries by name, and their drawings as short text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "symbols/Libraries.h"
#include "symbols/Shapes.h"

namespace ladrix {

std::vector<Symbol> allSymbols();

// Names stand without "Insert". Both throw std::out_of_range for what there is not.
const Symbol& symbolNamed(std::string_view name);
std::vector<Primitive> drawing(std::string_view name);  // "Capacitor/2"; else the first drawing

// One name for each drawing: "Capacitor/0", or "Battery" where one serves all orientations.
std::vector<std::string> drawingsOf(const Symbol& symbol);

std::vector<std::string> words(std::string_view text);

// "L 0,0 .5,0 .5,1" is lines end to end; "B 0,0 1,1" a box, "F" a filled one, "C a,b r" a circle,
// "A a,b r start end" an arc, "On" and "Off" the solid fill. A figure with "i" is in inches.
std::vector<Primitive> parsed(std::string_view text);

// A line each, exact to a hundred-thousandth; inches are marked.
std::string textOf(const Primitive& primitive);
std::vector<std::string> textOf(const std::vector<Primitive>& drawing);
std::string undirected(const Primitive& primitive);  // a line's text from its lesser end

// Straight strokes, a box's four sides among them.
std::vector<Primitive> strokesOf(const std::vector<Primitive>& drawing);
double lengthOf(const Primitive& stroke);
bool overlap(const Primitive& stroke, const Primitive& other);

// Whether a line ends, or an outline or curve passes, at (a, b): where a wire would meet it.
bool meets(const std::vector<Primitive>& drawing, Single a, Single b);

}  // namespace ladrix
