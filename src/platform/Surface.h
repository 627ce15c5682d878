// What a symbol routine draws on: the canvas, a printer, a palette button, a preview, a PDF, SVG or
// bitmap page. A routine is handed a surface and never keeps it.
//
// Units are inches (a palette picture: a square of 1 by 1 units), Y downwards. Angles are radians,
// 0 is east, counter-clockwise. The properties are plain values that the surface reads at the
// moment of each call. A surface that cannot draw throws a Failure.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Types.h"

namespace ladrix {

enum class LineForm { Plain, Box, FilledBox };

class Surface {
  public:
    virtual ~Surface() = default;

    // Plain draws the segment, Box the outline of the rectangle with these opposite corners,
    // FilledBox fills it.
    virtual void Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) = 0;

    // A full circle or ellipse, filled with FillColor while FillStyle is 0. `aspect` is height to
    // width, above 0; the radius is measured along the longer axis.
    virtual void Circle(Single x, Single y, Single radius, Long color, Single aspect) = 0;

    // The arc from `start` to `end`, counter-clockwise; equal angles give the full turn.
    virtual void Arc(Single x, Single y, Single radius, Long color, double start, double end,
                     Single aspect) = 0;

    virtual std::string_view Name() const = 0;

    // What can be seen, in the surface's units. Something wholly outside need not be drawn.
    virtual Extent visible() const { return Extent::everything(); }

    Short FillStyle = 1;  // 0 solid, 1 transparent
    Long FillColor = Black;
    Short DrawWidth = 1;  // pixels of 1/96 inch
    Short DrawStyle = 0;  // 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot
};

// A font as the tables name it. Size in points.
struct FontSpec {
    std::string name;
    Single size = 8;
    bool bold = false;
    bool italic = false;

    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

// A loaded picture file; owned by whoever loaded it. Its pixel size, at least 1 by 1.
class Picture {
  public:
    virtual ~Picture() = default;
    virtual int pixelWidth() const = 0;
    virtual int pixelHeight() const = 0;
};

// A surface that also takes text and pictures: canvas, printer and exported pages.
class Page : public Surface {
  public:
    // One line of text with its upper left corner at (x, y); the size is in points of the paper.
    virtual void Text(Single x, Single y, const FontSpec& font, std::string_view text,
                      Long color) = 0;
    virtual void PaintPicture(const Picture& picture, Single x, Single y, Single width,
                              Single height) = 0;
};

// A picture that is drawn in the program: an icon, a preview. It has units of its own, which the
// surface's coordinates are in, and is the maker's alone.
class PictureBox : public Page {
  public:
    // The units: what stands at the upper left corner, and how many fill the width and the height.
    // As made: 0, 0 and the pixels.
    virtual void SetScale(Single left, Single top, Single width, Single height) = 0;
    // Everything becomes BackColor.
    virtual void Cls() = 0;
    // A copy of what has been drawn so far.
    virtual std::shared_ptr<const Picture> Image() = 0;

    Long BackColor = White, ForeColor = Black;
};

// The canvas picLX: a view on the page with two layers. While AutoRedraw is on, drawing is
// persistent; while it is off, drawing goes to the temporary layer above, and Cls wipes only that.
class Canvas : public Page {
  public:
    virtual void Cls() = 0;

    // Runs `paint` so that what it draws, Cls included, changes nothing but this place of the page,
    // with room for a pen around it: its pixels become those of a whole painting by the same calls.
    // visible() is the place meanwhile. Outside the view nothing is run.
    virtual void repaint(const Extent& place, const std::function<void()>& paint) = 0;

    // The view, in inches of the page: its upper left corner and its size.
    virtual void SetScale(Single left, Single top, Single zoom) = 0;

    // The whole page at the present zoom, `width` by `height` inches, as the bytes of a Windows
    // bitmap. `paint` draws it on this canvas, whose view is the page meanwhile. Throws a Failure
    // if it would have over 100 million pixels.
    virtual std::string Image(Single width, Single height, const std::function<void()>& paint) = 0;

    bool AutoRedraw = true;
    Long BackColor = White;
};

}  // namespace ladrix
