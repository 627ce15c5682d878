// What every sheet of the demonstrations has: its frame with the title block, and lists.
#pragma once

#include <initializer_list>
#include <string_view>

#include "Sheet.h"

namespace ladrix::tools {

struct Entry {
    std::string_view designation, text;
};

inline void list(Sheet& sheet, Point corner, Single indent, std::initializer_list<Entry> entries) {
    Single y = corner.y;
    for (const Entry& entry : entries) {
        sheet.from(entry.designation, corner.x, y, Plain);
        sheet.from(entry.text, corner.x + indent, y, Plain);
        y += 0.1875f;
    }
}

// The frame half an inch inside the page and the title block at its foot.
inline void frameAndTitle(Sheet& sheet, Point page, std::string_view title,
                          std::string_view subtitle, std::string_view number) {
    const Single left = 0.5f, right = page.x - 0.5f, bottom = page.y - 0.5f;
    const Single top = bottom - 0.625f, numberLeft = right - 2.25f, sheetLeft = right - 1;
    const Single caption = top + 0.125f, entry = top + 0.4f;
    sheet.frame({left, 0.5f}, {right, bottom});
    sheet.frameLine({left, top}, {right, top});
    sheet.frameLine({numberLeft, top}, {numberLeft, bottom});
    sheet.frameLine({sheetLeft, top}, {sheetLeft, bottom});
    sheet.from(title, left + 0.25f, top + 0.225f, Title);
    sheet.from(subtitle, left + 0.25f, top + 0.45f, Remark);
    sheet.from("DRAWING", numberLeft + 0.125f, caption, Remark);
    sheet.from(number, numberLeft + 0.125f, entry, Heading);
    sheet.from("SHEET", sheetLeft + 0.125f, caption, Remark);
    sheet.from("1 OF 1", sheetLeft + 0.125f, entry, Heading);
}

}  // namespace ladrix::tools
