#include "canvas/tools/LineWidth.h"

#include "canvas/history/History.h"
#include "canvas/view/Painting.h"

namespace ladrix {

namespace {

// The width tag of a selected device.
std::string_view widthTagFor(const Editor& editor, std::string_view name) {
    const bool thick =
        editor.ThickLineTool && (name == "InsertSavedLine" || editor.symbols.ThickDevices);
    return thick ? "DrawWidth=2" : "";
}

bool retagSelection(Editor& editor) {
    DeviceTable& devices = editor.drawing.devices;
    bool any = false;
    for (std::size_t i = 0; i < devices.DeviceSelected.size(); ++i) {
        if (devices.DeviceSelected[i] == 0) continue;
        devices.DeviceWidthTag[i] = widthTagFor(editor, devices.DeviceName[i]);
        any = true;
    }
    return any;
}

}  // namespace

void cmdDrawWidth_Click(Editor& editor, Short index) {
    editor.ThickLineTool = index == 0;
    editor.form.cmdDrawWidth[0].BackColor = editor.ThickLineTool ? Cyan : ButtonFace;
    editor.form.cmdDrawWidth[1].BackColor = editor.ThickLineTool ? ButtonFace : Cyan;
    if (!retagSelection(editor)) return;
    paintDrawing(editor);
    recordStep(editor);
}

void mnuOptionThickDevices_Click(Editor& editor) {
    editor.symbols.ThickDevices = !editor.symbols.ThickDevices;
    editor.form.menu[Menu::mnuOptionThickDevices].Checked = editor.symbols.ThickDevices;
    applyThickDevices(editor);
    RedrawDrawing(editor);
}

void applyThickDevices(Editor& editor) {
    editor.platform.picLX->DrawWidth = editor.symbols.ThickDevices ? 2 : 1;
}

}  // namespace ladrix
