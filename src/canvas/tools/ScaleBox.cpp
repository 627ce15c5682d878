#include "canvas/tools/ScaleBox.h"

#include "platform/Numbers.h"

namespace ladrix {

namespace {

void applyScaleText(Editor& editor) {
    const auto typed = typedNumber(editor.form.cmbScale.Text);
    if (typed && *typed > 0) editor.SymbolScaleX = editor.SymbolScaleY = *typed;
    if (!typed || *typed <= 0)
        editor.form.cmbScale.Text =
            singleText(editor.SymbolScaleX, editor.platform.locale.decimalMark);
}

}  // namespace

void FillScaleList(Editor& editor) {
    static constexpr Single Scales[] = {0.25f, 0.5f, 0.75f, 1, 1.25f, 1.5f,
                                        1.75f, 2,    2.5f,  3, 4,     5};
    ComboBox& box = editor.form.cmbScale;
    const auto twoDecimals = [&](Single value) {
        const int hundredths = static_cast<int>(value * 100 + 0.5f);
        std::string text = std::to_string(hundredths / 100);
        text += editor.platform.locale.decimalMark;
        text += static_cast<char>('0' + hundredths / 10 % 10);
        text += static_cast<char>('0' + hundredths % 10);
        return text;
    };
    box.List.clear();
    for (const Single scale : Scales)
        box.List.push_back(twoDecimals(scale));
    box.Text = twoDecimals(1);
}

void cmbScale_Click(Editor& editor) {
    applyScaleText(editor);
    editor.form.FocusRequest = Focus::Canvas;
}

void cmdScaleOK_Click(Editor& editor) {
    applyScaleText(editor);
}

}  // namespace ladrix
