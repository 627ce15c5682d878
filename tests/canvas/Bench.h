// The bench of the canvas tests: a complete editor on the fake platform, driven as a person would.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "canvas/Editor.h"
#include "support/FakePlatform.h"

namespace ladrix::test {

struct Bench {
    // The NEMA palette, a letter page at 100 percent and labels not attached, so that one click
    // records one device.
    Bench();

    FakePlatform machine;
    Editor editor{machine.platform};
    Drawing& drawing = editor.drawing;
    RecordingCanvas& canvas = machine.picLX;
    int snapshots = 0;  // undo snapshots asked for

    // Plays steps divided by ";":
    //   tool TEXT       a press on the palette button of this text
    //   move X Y        without a button; "drag X Y" with the left one held
    //   press X Y       left button at X Y; "right X Y" the right one
    //   release         of the button
    //   click X Y       move, press and release
    //   double X Y      the first press of a double-click, then the double-click
    //   key CODE SHIFT  the form's key, then the canvas's
    void play(std::string_view script);

    // The records in order, fields joined by "|".
    std::vector<std::string> devices() const;
    std::vector<std::string> labels() const;
    std::string message() const { return editor.form.lblMessage.Caption; }
    std::string coordinates() const { return editor.form.lblCoords.Caption; }

    Short buttonOf(std::string_view tag) const;
    PaletteButton& button(std::string_view tag);

    // Fills the device table up to `count` with the cheapest of rows.
    void fillDevices(Short count);

    // A file in the user's documents, in which the drawing lies too.
    std::string document(std::string_view name) const;
    // One that a person saved lately, with the page key and these records.
    void writeDocument(const std::string& name, std::string_view devices,
                       std::string_view labels = "", std::string_view key = "8.5x11Portrait") const;

  private:
    void step(const std::string& text);
};

// "InsertGround|1|1" with the byte 255 for each "|" and a line end.
std::string line(std::string_view record);

}  // namespace ladrix::test
