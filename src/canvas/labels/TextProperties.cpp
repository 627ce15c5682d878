#include "canvas/labels/TextProperties.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/Keys.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/labels/Labels.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

// The last label that is selected; -1 for none.
Short shownLabel(const Editor& editor) {
    const auto& marks = editor.drawing.labels.LabelSelected;
    for (Short i = editor.drawing.labels.LabelCount; i-- > 0;)
        if (marks[static_cast<std::size_t>(i)] != 0) return i;
    return -1;
}

bool fitsRecord(const std::string& family) {
    return !family.empty() && std::none_of(family.begin(), family.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 32 || byte == 255;
    });
}

void fillFonts(TextProperties& form, const Editor& editor) {
    form.cmbFonts.List = editor.platform.fonts->families();
    std::erase_if(form.cmbFonts.List, [](const std::string& name) { return !fitsRecord(name); });
}

void loadAllFontSizes(TextProperties& form) {
    form.cmbFontSize.List = {"8", "9", "10", "12", "14", "16", "18", "20", "24"};
}

void chooseFont(TextProperties& form, const std::string& name) {
    auto& list = form.cmbFonts.List;
    if (std::find(list.begin(), list.end(), name) == list.end()) list.insert(list.begin(), name);
    form.cmbFonts.Text = name;
}

// Told once in a box, and beside the field as long as it stands there.
std::optional<Single> sizeInForm(TextProperties& form, const Editor& editor) {
    const std::string& text = form.cmbFontSize.Text;
    const auto size = typedNumber(text);
    form.lblNote.Caption.clear();
    if (size && *size >= SmallestFontSize && *size <= LargestFontSize) return size;
    form.lblNote.Caption = "The size must be a number of points from 1 to 400.";
    editor.platform.ReportError("Text Properties, Size " + text,
                                {size ? failure::InvalidProperty : failure::TypeMismatch,
                                 "\"" + text + "\" is no font size. " + form.lblNote.Caption});
    return std::nullopt;
}

bool bold(const TextProperties& form) {
    return form.chkFontStyle[0].Value;
}

bool italic(const TextProperties& form) {
    return form.chkFontStyle[1].Value;
}

void applyTo(LabelTable& labels, const TextProperties& form, Single size) {
    for (std::size_t i = 0; i < static_cast<std::size_t>(labels.LabelCount); ++i) {
        if (labels.LabelSelected[i] == 0) continue;
        labels.LabelFontName[i] = form.cmbFonts.Text;
        labels.LabelFontSize[i] = size;
        labels.LabelBold[i] = bold(form);
        labels.LabelItalic[i] = italic(form);
    }
}

}  // namespace

void mnuEditTextProps_Click(TextProperties& form, Editor& editor) {
    const Short shown = shownLabel(editor);
    if (shown < 0) return;
    keepLabelEdit(editor);
    form = {};
    frmTextProps_Load(form, editor);
    const Label label = editor.drawing.labels.row(shown);
    chooseFont(form, label.fontName);
    form.cmbFontSize.Text = singleText(label.fontSize, editor.platform.locale.decimalMark);
    form.chkFontStyle[0].Value = label.bold;
    form.chkFontStyle[1].Value = label.italic;
    form.txtCaption.Visible = editor.SelectedLabelCount == 1;
    if (form.txtCaption.Visible) {
        form.txtCaption.Text = label.text;
        ++form.txtCaption.SelectAllRequests;
    }
    form.Visible = true;
    editor.platform.dialogs->show(Form::frmTextProps);
}

void frmTextProps_Load(TextProperties& form, const Editor& editor) {
    fillFonts(form, editor);
    loadAllFontSizes(form);
}

void LoadFontSizes(TextProperties& form) {
    form.cmbFontSize.List = {"8", "9", "10", "12", "14", "18", "20", "24"};
}

void cmbFonts_Click(TextProperties& form, const Editor& editor) {
    const FontSpec font{form.cmbFonts.Text, 24, false, false};
    Fonts& fonts = *editor.platform.fonts;
    if (fonts.textWidth(font, "iiii") == fonts.textWidth(font, "WWWW")) return LoadFontSizes(form);
    loadAllFontSizes(form);
}

void txtCaption_Change(TextProperties& form, std::string text) {
    form.txtCaption.Text = std::move(text);
    form.lblNote.Caption.clear();
}

void cmbFontSize_Change(TextProperties& form, std::string text) {
    form.cmbFontSize.Text = std::move(text);
    form.lblNote.Caption.clear();
}

void txtCaption_Refused(TextProperties& form) {
    form.lblNote.Caption = RefusedTextNote;
}

void SaveAndExit(TextProperties& form, Editor& editor) {
    if (editor.SelectedLabelCount == 0) return frmTextProps_Cancel(form);
    const auto size = sizeInForm(form, editor);
    if (!size) return;
    LabelTable& labels = editor.drawing.labels;
    if (editor.SelectedLabelCount == 1)
        labels.LabelText[static_cast<std::size_t>(shownLabel(editor))] = form.txtCaption.Text;
    applyTo(labels, form, *size);
    RebuildLabelString(editor.drawing, editor.platform);
    editor.drawing.DrawingChanged = true;
    // Reset takes the snapshot, with moves by keys that wait for it.
    editor.SnapshotPending = true;
    ResetEditor(editor);
    form.Visible = false;
}

void cmdOKTextProps_Click(TextProperties& form, Editor& editor) {
    SaveAndExit(form, editor);
}

void txtCaption_KeyDown(TextProperties& form, Editor& editor, Short keyCode) {
    if (keyCode == key::Enter) SaveAndExit(form, editor);
}

void cmdSet_Click(TextProperties& form, Editor& editor) {
    const auto size = sizeInForm(form, editor);
    if (!size) return;
    Drawing& drawing = editor.drawing;
    drawing.DefaultFontName = form.cmbFonts.Text;
    drawing.DefaultFontSize = static_cast<Short>(std::nearbyint(*size));
    drawing.DefaultFontBold = bold(form);
    drawing.DefaultFontItalic = italic(form);
}

void frmTextProps_Cancel(TextProperties& form) {
    form.Visible = false;
}

}  // namespace ladrix
