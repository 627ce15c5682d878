#include "output/PreviewForm.h"

#include <algorithm>

#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr std::string_view WholePage = "Whole Page";

}  // namespace

void frmPreview_Load(PreviewForm& form) {
    form = {};
    form.Visible = true;
    form.cmbZoom.List = {std::string(WholePage), "50 %", "75 %", "100 %", "150 %", "200 %"};
    form.cmbZoom.Text = WholePage;
}

void cmbZoom_Click(PreviewForm& form, std::string_view choice) {
    const auto& list = form.cmbZoom.List;
    if (std::find(list.begin(), list.end(), choice) != list.end()) form.cmbZoom.Text = choice;
}

void frmPreview_cmdClose_Click(PreviewForm& form) {
    form.Visible = false;
}

int previewPercent(const PreviewForm& form) {
    const std::string_view text = form.cmbZoom.Text;
    if (text == WholePage) return 0;
    return toShort(text.substr(0, text.find(' ')));
}

}  // namespace ladrix
