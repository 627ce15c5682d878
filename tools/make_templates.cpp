// make_templates OUTPUT-FOLDER: makes the three templates. Every line stands on a raster of an
// eighth of an inch, rails and rungs on the snap step of a new drawing.
#include <string>
#include <string_view>

#include "Sheet.h"

namespace ladrix::tools {

namespace {

constexpr TextStyle Caption{6, false, RemarkColor};
constexpr TextStyle Entry{9};

// A field of a title block: what it is for in its corner, what stands there to be changed.
struct Field {
    Point corner, opposite;
    std::string_view caption, entry = {};
    TextStyle style = Entry;
};

void field(Sheet& sheet, const Field& f) {
    sheet.frame(f.corner, f.opposite);
    sheet.from(f.caption, f.corner.x + 0.06f, f.corner.y + 0.08f, Caption);
    if (f.entry.empty()) return;
    const Single middle = (f.corner.y + f.opposite.y) / 2 + 0.045f;
    sheet.from(f.entry, f.corner.x + 0.06f, middle, f.style);
}

// Who did it and when: a line for each, with room for a name and a date.
void signatures(Sheet& sheet, Point corner, Single width, Single rowHeight) {
    const Single name = corner.x + 0.75f, date = corner.x + width - 0.75f;
    const Single bottom = corner.y + 4 * rowHeight;
    sheet.frame(corner, {corner.x + width, bottom});
    sheet.frameLine({name, corner.y}, {name, bottom});
    sheet.frameLine({date, corner.y}, {date, bottom});
    Single y = corner.y + rowHeight / 2;
    sheet.from("NAME", name + 0.06f, y, Caption);
    sheet.from("DATE", date + 0.06f, y, Caption);
    for (const std::string_view text : {"DRAWN", "CHECKED", "APPROVED"}) {
        sheet.frameLine({corner.x, y + rowHeight / 2}, {corner.x + width, y + rowHeight / 2});
        y += rowHeight;
        sheet.from(text, corner.x + 0.06f, y, Caption);
    }
}

// --- A4: a border with room to bind at the left ---------------------------------------------

void drawA4(Sheet& sheet) {
    const Single left = 0.75f, right = 7.875f, top = 0.375f, bottom = 11.25f;
    const Single block = 10, blockLeft = 3.5f;
    sheet.border({left, top}, {right, bottom});
    // Where the middle of each side is, for whoever copies or films the sheet.
    const Single middleX = 4.125f, middleY = 5.75f, mark = 0.125f;
    sheet.frameLine({middleX, top - mark}, {middleX, top + mark});
    sheet.frameLine({middleX, bottom}, {middleX, bottom + mark});
    sheet.frameLine({left - mark, middleY}, {left + mark, middleY});
    sheet.frameLine({right - mark, middleY}, {right + mark, middleY});

    signatures(sheet, {left, block}, blockLeft - left, 0.25f);
    field(sheet, {{left, 11}, {2, bottom}, "SCALE"});
    field(sheet, {{2, 11}, {blockLeft, bottom}, "PROJECT"});
    field(sheet, {{blockLeft, block}, {right, 10.375f}, "COMPANY"});
    field(sheet, {{blockLeft, 10.375f}, {right, 10.875f}, "TITLE", "DRAWING TITLE", Title});
    const Single row = 10.875f;
    field(sheet, {{blockLeft, row}, {5.625f, bottom}, "DRAWING NUMBER", "0001"});
    field(sheet, {{5.625f, row}, {6.25f, bottom}, "REV", "0"});
    field(sheet, {{6.25f, row}, {6.875f, bottom}, "SIZE", "A4"});
    field(sheet, {{6.875f, row}, {right, bottom}, "SHEET", "1 OF 1"});
}

// --- Letter: columns to refer to by their numbers -------------------------------------------

void drawLetter(Sheet& sheet) {
    const Single left = 0.5f, right = 10.5f, top = 0.5f, bottom = 8;
    const Single columnsEnd = 0.75f, block = 7.25f, columnWidth = 1.25f;
    sheet.border({left, top}, {right, bottom});
    sheet.frameLine({left, columnsEnd}, {right, columnsEnd});
    for (int column = 0; column < 8; ++column) {
        const Single x = left + columnWidth * static_cast<Single>(column);
        if (column > 0) sheet.frameLine({x, top}, {x, columnsEnd});
        sheet.centred(std::to_string(column + 1), x + columnWidth / 2, (top + columnsEnd) / 2,
                      Remark);
    }
    signatures(sheet, {left, block}, 2.75f, 0.1875f);
    const Single company = 3.25f, title = 5.25f, number = 8.25f, sheetLeft = 9.625f;
    const Single half = 7.625f;
    field(sheet, {{company, block}, {title, half}, "COMPANY"});
    field(sheet, {{company, half}, {title, bottom}, "PROJECT"});
    field(sheet, {{title, block}, {number, bottom}, "TITLE", "DRAWING TITLE", Title});
    field(sheet, {{number, block}, {sheetLeft, half}, "DRAWING NUMBER", "0001"});
    field(sheet, {{sheetLeft, block}, {right, half}, "SHEET", "1 OF 1"});
    field(sheet, {{number, half}, {sheetLeft, bottom}, "DATE"});
    field(sheet, {{sheetLeft, half}, {right, bottom}, "REV", "0"});
}

// --- Ladder: two rails, the lines between them numbered -------------------------------------

constexpr Single RailLeft = 1.25f, RailRight = 6.5f;
constexpr Single SupplyY = 1.25f, FirstLine = 2.25f, LineStep = 0.5f;
constexpr int LineCount = 14;

void rails(Sheet& sheet) {
    const Single radius = 0.0375f, fuse = 1.375f, fuseEnd = fuse + 0.5f;
    const Single bottom = FirstLine + LineStep * LineCount;
    sheet.circle(RailLeft - radius, SupplyY - radius, radius);
    sheet.circle(RailRight - radius, SupplyY - radius, radius);
    sheet.centred("L1", RailLeft, SupplyY - 0.175f, Plain);
    sheet.centred("N", RailRight, SupplyY - 0.175f, Plain);
    sheet.wire({{RailLeft, SupplyY}, {RailLeft, fuse}});
    sheet.symbol("InsertFuse90", RailLeft, fuse, "FU1");
    sheet.wire({{RailLeft, fuseEnd}, {RailLeft, bottom}});
    sheet.wire({{RailRight, SupplyY}, {RailRight, bottom}});
    sheet.from("1", RailLeft + 0.06f, fuseEnd + 0.125f, WireNumber);
    sheet.from("N", RailRight + 0.06f, fuseEnd + 0.125f, WireNumber);
}

void drawLadder(Sheet& sheet) {
    const Single left = 0.5f, right = 8, bottom = 10.5f, block = 9.75f, number = 5.5f;
    sheet.border({left, 0.5f}, {right, bottom});
    sheet.from("CONTROL CIRCUIT", 2.5f, 0.75f, Heading);
    sheet.from("120 VAC, 60 HZ", 2.5f, 0.9375f, Plain);
    rails(sheet);
    sheet.centred("LINE", 0.875f, FirstLine - 0.375f, Caption);
    sheet.from("FUNCTION", 6.75f, FirstLine - 0.375f, Caption);
    for (int line = 0; line < LineCount; ++line) {
        const Single y = FirstLine + LineStep * static_cast<Single>(line);
        sheet.centred(std::to_string(line + 1), 0.875f, y, Plain);
        sheet.frameLine({1.125f, y}, {RailLeft, y});
    }
    field(sheet, {{left, block}, {number, bottom}, "TITLE", "DRAWING TITLE", Title});
    field(sheet, {{number, block}, {7, 10.125f}, "DRAWING NUMBER", "0001"});
    field(sheet, {{7, block}, {right, 10.125f}, "SHEET", "1 OF 1"});
    field(sheet, {{number, 10.125f}, {7, bottom}, "DRAWN"});
    field(sheet, {{7, 10.125f}, {right, bottom}, "DATE"});
}

// --------------------------------------------------------------------------------------------

constexpr SheetFile Templates[] = {
    {"Template A4 Portrait.tpl", "210x297Portrait",
     "A4 with a border, a margin for binding and a title block.", drawA4},
    {"Template Letter Landscape.tpl", "8.5x11Landscape",
     "Letter size across, with numbered columns and a title block.", drawLetter},
    {"Template Ladder.tpl", "8.5x11Portrait",
     "The two rails of a control circuit with a fuse and fourteen numbered lines.", drawLadder},
};

}  // namespace

}  // namespace ladrix::tools

int main(int argc, char** argv) {
    return ladrix::tools::makeSheets(ladrix::tools::Templates, argc, argv);
}
