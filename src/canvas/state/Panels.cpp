#include "canvas/state/Panels.h"

namespace ladrix {

void showPanel(Editor& editor, Panel panel) {
    editor.form.picText.Visible = panel == Panel::Text;
    editor.form.picRadius.Visible = panel == Panel::Radius;
}

void layOutRadiusPanel(Editor& editor, RadiusPanel fields) {
    const bool angles = fields == RadiusPanel::WithAngles;
    editor.form.RadiusPanelWide = angles;
    editor.form.lblCircle[1].Visible = editor.form.lblCircle[2].Visible = angles;
    editor.form.txtCircleStart.Enabled = editor.form.txtCircleEnd.Enabled = angles;
}

void pressButton(Editor& editor, Short index) {
    editor.form.cmdSym.at(static_cast<std::size_t>(index)).Pressed = true;
    ++editor.form.PaletteVersion;
}

void releaseButton(Editor& editor, Short index) {
    if (index < 0) return;
    editor.form.cmdSym.at(static_cast<std::size_t>(index)).Pressed = false;
    ++editor.form.PaletteVersion;
}

}  // namespace ladrix
