#include "output/LayoutForm.h"

#include <algorithm>

#include "canvas/view/View.h"
#include "document/PageLayout.h"

namespace ladrix {

namespace {

constexpr Single CaptionGap = 1.0f / 48;  // of the preview's square, below the page

struct KeyParts {
    Short size = 0, orientation = 0;
};

std::optional<KeyParts> partsOf(const LayoutForm& form, std::string_view key) {
    for (std::size_t size = 0; size < form.optSize.size(); ++size)
        for (std::size_t orientation = 0; orientation < form.optOrient.size(); ++orientation)
            if (key == form.optSize[size].Tag + form.optOrient[orientation].Tag)
                return KeyParts{static_cast<Short>(size), static_cast<Short>(orientation)};
    return std::nullopt;
}

void joinTags(LayoutForm& form) {
    form.LayoutChoice = form.optSize[static_cast<std::size_t>(form.LayoutSizeIndex)].Tag +
                        form.optOrient[static_cast<std::size_t>(form.LayoutOrientationIndex)].Tag;
    PreviewPageLayout(form, form.LayoutChoice);
}

}  // namespace

void frmLayout_Load(LayoutForm& form, const Editor& editor) {
    form = {};
    form.Visible = true;
    for (std::size_t i = 0; i < form.optSize.size(); ++i)
        form.optSize[i] = {std::string(pagePrefixes()[i].caption),
                           std::string(pagePrefixes()[i].prefix)};
    form.optOrient = {{{"Portrait", "Portrait"}, {"Landscape", "Landscape"}}};
    PreviewPageLayout(form, editor.drawing.PageLayoutKey);
    optSize_Click(form, form.LayoutSizeIndex);
}

void PreviewPageLayout(LayoutForm& form, std::string_view key) {
    if (!key.empty()) form.LayoutChoice = key;
    const std::optional<KeyParts> parts = partsOf(form, form.LayoutChoice);
    if (!parts) return;
    form.LayoutSizeIndex = parts->size;
    form.LayoutOrientationIndex = parts->orientation;
    const PagePrefix& page = pagePrefixes()[static_cast<std::size_t>(parts->size)];
    const Single unit = page.previewUnit;
    form.picPreview.ScaleWidth = form.picPreview.ScaleHeight = unit;
    Single width = page.previewWidth, height = page.previewHeight;
    if (parts->orientation == 1) std::swap(width, height);
    form.shpStyle = {true, unit / 2 - width / 2, unit / 2 - height / 2, width, height};
    form.lblSize.Left = unit / 2;
    form.lblSize.Top = form.shpStyle.Top + height + unit * CaptionGap;
}

void optOrient_Click(LayoutForm& form, Short index) {
    form.LayoutOrientationIndex = index;
    joinTags(form);
}

void optSize_Click(LayoutForm& form, Short index) {
    form.LayoutSizeIndex = index;
    form.lblSize.Caption = form.optSize[static_cast<std::size_t>(index)].Caption;
    joinTags(form);
}

void frmLayout_cmdOK_Click(LayoutForm& form, Editor& editor) {
    editor.drawing.PageLayoutKey = form.LayoutChoice;
    ApplyPageLayout(editor);
    ResetZoom(editor);
    form.Visible = false;
}

void frmLayout_cmdExit_Click(LayoutForm& form) {
    form.Visible = false;
}

}  // namespace ladrix
