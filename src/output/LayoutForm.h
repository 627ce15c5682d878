// frmLayout, the choice of the page, as state: twelve sizes, two orientations and a preview of the
// page's shape.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "canvas/state/Controls.h"
#include "canvas/state/Editor.h"

namespace ladrix {

struct OptionButton {
    std::string Caption;
    std::string Tag;  // its part of the page key
};

struct LayoutForm {
    bool Visible = false;
    std::string Caption = "Document Layout";
    std::array<OptionButton, 12> optSize;
    std::array<OptionButton, 2> optOrient;  // portrait, landscape
    std::string LayoutChoice;               // the page key shown
    Short LayoutSizeIndex = 0, LayoutOrientationIndex = 0;

    // The preview: a square 24 inches or 450 millimetres wide, the page in its middle, in that
    // unit.
    struct {
        Single ScaleWidth = 24, ScaleHeight = 24;
    } picPreview;
    Overlay shpStyle;
    struct {
        std::string Caption;
        Single Left = 0, Top = 0;  // the middle of its upper edge
    } lblSize;
};

void frmLayout_Load(LayoutForm& form, const Editor& editor);

// The preview of a key; one that is not in the table changes nothing but LayoutChoice.
void PreviewPageLayout(LayoutForm& form, std::string_view key);

void optOrient_Click(LayoutForm& form, Short index);
void optSize_Click(LayoutForm& form, Short index);
void frmLayout_cmdOK_Click(LayoutForm& form, Editor& editor);
void frmLayout_cmdExit_Click(LayoutForm& form);

}  // namespace ladrix
