// Paper as the core sees it: the printers that there are, and the page of the current one.
//
// A document goes StartDoc, properties, primitives and NewPage in any number, EndDoc. Properties
// may be set and read at any time; a value that the printer refuses raises Failure 380 and leaves
// the former one. A step that fails raises a Failure with the system's reason.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Surface.h"

namespace ladrix {

constexpr Short PortraitPaper = 1, LandscapePaper = 2;
// User scale: the printable area is ScaleWidth by ScaleHeight units. Twips: 1440 to the inch.
constexpr Short UserScale = 0, TwipScale = 1;
constexpr Long SourceCopy = 0x00CC0020;  // raster modes: the picture covers,
constexpr Long SourceAnd = 0x008800C6;   // or white lets through what is below

// Where a document is to go and what it is called. `path` is for printers that write a file: folder
// and name without an extension.
struct PrintDocument {
    std::string title, path;
};

// Coordinates are in the scale's units from the upper left corner of the printable area. A
// DrawWidth is in dots of 1/192 inch, so that 2 prints as 1 shows on the canvas. Fonts keep their
// size in points whatever the scale.
class Printer : public Surface {
  public:
    // Settles what must be known before a page is drawn; it may ask. False if the user gives up:
    // nothing else is called then.
    virtual bool StartDoc(const PrintDocument& document) = 0;
    virtual std::string DeviceName() const = 0;

    virtual Short Orientation() const = 0;
    virtual void SetOrientation(Short orientation) = 0;
    // The classic codes: 1 Letter, 3 Tabloid, 4 Ledger, 5 Legal, 7 Executive, 8 A3, 9 A4, 12 B4,
    // 13 B5, 14 Folio, 15 Quarto, 16 10 by 14 inches, 24 C size sheet.
    virtual Short PaperSize() const = 0;
    virtual void SetPaperSize(Short code) = 0;

    // Setting a width or height makes it the user scale, setting the mode to twips measures anew.
    virtual Short ScaleMode() const = 0;
    virtual void SetScaleMode(Short mode) = 0;
    virtual Single ScaleWidth() const = 0;
    virtual void SetScaleWidth(Single width) = 0;
    virtual Single ScaleHeight() const = 0;
    virtual void SetScaleHeight(Single height) = 0;

    // What was set, or what the printer makes of it.
    virtual FontSpec Font() const = 0;
    virtual void SetFont(const FontSpec& font) = 0;
    void SetFontName(std::string_view name);
    void SetFontSize(Single points);

    // Of the text in the present font, in units of the scale.
    virtual Single TextWidth(std::string_view text) = 0;
    virtual Single TextHeight(std::string_view text) = 0;

    virtual void PSet(Single x, Single y, Long color) = 0;  // one dot
    // One line of text with its upper left corner at CurrentX, CurrentY, in ForeColor; leaves them
    // at 0 and a line further down.
    virtual void Print(std::string_view text) = 0;
    virtual void PaintPicture(const Picture& picture, Single x, Single y, Single width,
                              Single height, Long rasterMode) = 0;

    virtual void NewPage() = 0;
    // Prints what has been drawn, nothing if that is no page, and tells where it went if that is
    // not paper: "Saved as ...". "" otherwise.
    virtual std::string EndDoc() = 0;
    // The document under way is given up: EndDoc only ends it.
    virtual void Abandon() = 0;

    std::string_view Name() const override { return "Printer"; }

    Long ForeColor = Black;
    Single CurrentX = 0, CurrentY = 0;
};

inline void Printer::SetFontName(std::string_view name) {
    FontSpec font = Font();
    font.name = name;
    SetFont(font);
}

inline void Printer::SetFontSize(Single points) {
    FontSpec font = Font();
    font.size = points;
    SetFont(font);
}

// The list of printers and the current one. There is always at least one.
class Printers {
  public:
    virtual ~Printers() = default;

    // Begins to read the list anew and returns at once; `changed` is called from the event loop if
    // the list has become another.
    virtual void refresh() = 0;
    std::function<void()> changed;

    // The names known so far, each a DeviceName.
    virtual std::vector<std::string> list() const = 0;

    // The printer that everything is printed on; the same object for the whole run.
    virtual Printer& current() = 0;
    // Makes the printer of this name the current one. False, with the current one as it was, if
    // there is none.
    virtual bool choose(std::string_view name) = 0;
};

}  // namespace ladrix
