#include "canvas/view/Snap.h"

#include <cmath>

#include "canvas/gestures/Gesture.h"
#include "canvas/view/Painting.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr Single DefaultSnap = 0.25f;  // inches

// A pitch that a Single cannot hold leaves the present one.
void takeStep(Editor& editor, Single step) {
    if (!(step > 0) || !std::isfinite(step)) return;
    editor.SnapStep = step;
    showSnapStep(editor);
}

void applySnap(Editor& editor, Single step) {
    takeStep(editor, step);
    if (editor.GridFollowsSnap) ResetEditor(editor);
    editor.form.FocusRequest = Focus::Canvas;
}

void applySnapByKey(Editor& editor, Single step) {
    takeStep(editor, step);
    if (editor.GridFollowsSnap) paintDrawing(editor);
}

}  // namespace

void cmdSnap_Click(Editor& editor) {
    const std::string present = singleText(editor.SnapStep, editor.platform.locale.decimalMark);
    const auto typed =
        editor.platform.dialogs->input("Enter Snap Below", "Adjusting Snap", present);
    if (!typed || typed->empty()) return;
    const auto step = typedNumber(*typed);
    if (!step || *step < 0) return editor.platform.tell("Expected a numeric value.");
    applySnap(editor, *step == 0 ? DefaultSnap : *step);
}

void mnuOptionSnap_Click(Editor& editor) {
    cmdSnap_Click(editor);
}

void cmdSnap_MouseDown(Editor& editor, Short button) {
    if (button == RightButton) applySnap(editor, DefaultSnap);
}

void cmdSnapHigher_Click(Editor& editor) {
    applySnap(editor, editor.SnapStep * 2);
}

void cmdSnapLower_Click(Editor& editor) {
    applySnap(editor, editor.SnapStep / 2);
}

void snapHigherByKey(Editor& editor) {
    applySnapByKey(editor, editor.SnapStep * 2);
}

void snapLowerByKey(Editor& editor) {
    applySnapByKey(editor, editor.SnapStep / 2);
}

void showSnapStep(Editor& editor) {
    editor.form.cmdSnap.Caption =
        "Snap: " + singleText(editor.SnapStep, editor.platform.locale.decimalMark);
}

void mnuOptionGrid_Click(Editor& editor) {
    editor.GridOn = !editor.GridOn;
    editor.form.menu[Menu::mnuOptionGrid].Checked = editor.GridOn;
    paintDrawing(editor);
}

void mnuOptMatchGridToSnap_Click(Editor& editor) {
    editor.GridFollowsSnap = !editor.GridFollowsSnap;
    editor.form.menu[Menu::mnuOptMatchGridToSnap].Checked = editor.GridFollowsSnap;
    if (editor.GridFollowsSnap)
        ResetEditor(editor);
    else
        paintDrawing(editor);
}

}  // namespace ladrix
