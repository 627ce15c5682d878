// The kinds of control that forms are made of, as plain state. A view shows them and calls the
// form's handlers; it decides nothing. Texts are captions as the user reads them ("&" marks the
// access key).
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Surface.h"
#include "platform/Types.h"

namespace ladrix {

enum : Short { LeftButton = 1, RightButton = 2 };  // of the pointer

struct Control {
    bool Visible = true;
    bool Enabled = true;
    std::string Caption;
    std::string ToolTipText;
    Long BackColor = ButtonFace;

    friend bool operator==(const Control&, const Control&) = default;
};

inline Control captioned(std::string caption) {
    Control control;
    control.Caption = std::move(caption);
    return control;
}
inline Control colored(Long color) {
    Control control;
    control.BackColor = color;
    return control;
}
inline Control hidden() {
    Control control;
    control.Visible = false;
    return control;
}

struct TextBox {
    bool Visible = true;
    bool Enabled = true;
    std::string Text;
    // The handler asks that all text be marked; the view does so whenever the number has grown.
    int SelectAllRequests = 0;

    friend bool operator==(const TextBox&, const TextBox&) = default;
};

struct ComboBox {
    bool Visible = true;
    bool Enabled = true;
    std::vector<std::string> List;
    std::string Text;

    friend bool operator==(const ComboBox&, const ComboBox&) = default;
};

struct ListBox {
    bool Visible = true;
    bool Enabled = true;
    std::vector<std::string> List;
    int ListIndex = -1;

    friend bool operator==(const ListBox&, const ListBox&) = default;
};

struct CheckBox {
    bool Visible = true;
    bool Enabled = true;
    bool Value = false;

    friend bool operator==(const CheckBox&, const CheckBox&) = default;
};

// Values are hundredths of an inch of the page.
struct ScrollBar {
    bool Visible = false;
    int Value = 0, Max = 0, SmallChange = 1, LargeChange = 1;

    friend bool operator==(const ScrollBar&, const ScrollBar&) = default;
};

// A line or rectangle laid over the canvas, inches of the page.
struct Overlay {
    bool Visible = false;
    Single Left = 0, Top = 0, Width = 0, Height = 0;

    friend bool operator==(const Overlay&, const Overlay&) = default;
};

// The on-screen object of one label. Left and Top are inches of the page, the font's size is the
// fitted one for the present zoom.
struct LabelControl {
    std::string Caption;
    Single Left = 0, Top = 0;
    Long ForeColor = Black;
    FontSpec Font;
    bool Visible = false;
};

}  // namespace ladrix
