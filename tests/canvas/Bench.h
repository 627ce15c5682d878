// The bench of the canvas tests: a complete editor on the fake platform, driven as a person would.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "canvas/state/Editor.h"
#include "support/FakePlatform.h"

namespace ladrix::test {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// A record each.
inline constexpr const char* Ground = "InsertGround|1|1|0||1|1|0|False";
inline constexpr const char* Lamp = "InsertLamp|2|2|0||1|1|0|False";

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
    bool enabled(Menu entry) const { return editor.form.menu[entry].Enabled; }
    bool checked(Menu entry) const { return editor.form.menu[entry].Checked; }

    // The texts of the message boxes shown, and the numbers of the failures reported.
    std::vector<std::string> boxes() const;
    std::vector<int> reports() const;

    Short buttonOf(std::string_view tag) const;
    PaletteButton& button(std::string_view tag);

    // The tables from records, shown; then the canvas counts from nothing.
    void load(std::string_view devices, std::string_view labels = "");
    void addPicture(const PictureRow& row);
    // Fills the device table up to `count` with the cheapest of rows.
    void fillDevices(Short count);

    // A file in the user's documents, in which the drawing lies too.
    std::string document(std::string_view name) const;
    std::string file(std::string_view name) const { return machine.folder.read(document(name)); }
    void open(const std::string& name);
    void save(const std::string& name);
    // One that a person saved lately, with the page key and these records.
    void writeDocument(const std::string& name, std::string_view devices,
                       std::string_view labels = "", std::string_view key = "8.5x11Portrait") const;

  private:
    void step(const std::string& text);
};

struct BenchTest : testing::Test, Bench {};

// "InsertGround|1|1" with the byte 255 for each "|" and a line end.
std::string line(std::string_view record);

}  // namespace ladrix::test
