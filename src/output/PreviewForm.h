// frmPreview, the page as it will print, as state. The picture itself is printPage on a page of the
// screen.
#pragma once

#include <string>
#include <string_view>

#include "canvas/state/Controls.h"

namespace ladrix {

struct PreviewForm {
    bool Visible = false;
    std::string Caption = "Print Preview";
    ComboBox cmbZoom;
};

void frmPreview_Load(PreviewForm& form);
void cmbZoom_Click(PreviewForm& form, std::string_view choice);
void frmPreview_cmdClose_Click(PreviewForm& form);

// Percent of the paper's own size; 0: the whole page in the room that there is.
int previewPercent(const PreviewForm& form);

}  // namespace ladrix
