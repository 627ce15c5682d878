// Every key that means something, pressed in the real window: each command's shortcuts, the form's
// own keys, and which of them a field that is typed in keeps to itself.
#include <QLineEdit>

#include "Journey.h"
#include "app/CommandTable.h"
#include "canvas/tools/Tools.h"
#include "qt/QtText.h"

namespace ladrix::test {
namespace {

struct KeyboardTest : testing::Test {
    static void press(const QKeySequence& keys) {
        const QKeyCombination pressed = keys[0];
        Journey::key(pressed.key(), pressed.keyboardModifiers());
    }
    // From here on the entries with shortcuts do nothing but tell that they were chosen.
    void listenToAll() {
        for (const Command& row : commandTable()) {
            if (row.shortcut.empty()) continue;
            auto& entry = journey.find<QAction>(std::string(row.name).c_str());
            entry.disconnect();
            entry.setEnabled(true);
            QObject::connect(&entry, &QAction::triggered, &entry,
                             [this, name = std::string(row.name)] { chosen.push_back(name); });
        }
    }

    Home home;
    Journey journey{home};
    Editor& editor = journey.editor();
    std::vector<std::string> chosen;
};

TEST_F(KeyboardTest, EveryShortcutOfTheTableChoosesItsEntryAndNoOther) {
    listenToAll();
    int shortcuts = 0;
    for (const Command& row : commandTable()) {
        if (row.shortcut.empty()) continue;
        for (const QKeySequence& keys : QKeySequence::listFromString(toQString(row.shortcut))) {
            ++shortcuts;
            journey.page().setFocus();
            chosen.clear();
            press(keys);
            EXPECT_EQ(chosen, std::vector{std::string(row.name)}) << keys.toString().toStdString();
        }
    }
    EXPECT_GE(shortcuts, 12);
    for (const Qt::Key unassigned : {Qt::Key_X, Qt::Key_V}) {
        chosen.clear();
        Journey::key(unassigned, Qt::ControlModifier);
        EXPECT_TRUE(chosen.empty()) << unassigned;
    }
}

TEST_F(KeyboardTest, TheFormsOwnKeysAct) {
    const std::pair<const char*, Long> colors[] = {
        {"Ctrl+Alt+R", Red},    {"Ctrl+B", Black},
        {"Ctrl+Alt+G", 0xFF00}, {"Ctrl+Alt+Y", 0xFFFF},
        {"Ctrl+Alt+C", Cyan},   {"Ctrl+Alt+M", Magenta},
        {"Ctrl+Alt+U", Blue},   {"Ctrl+Alt+V", RGB(128, 0, 128)},
        {"Ctrl+Alt+B", Black}};
    for (const auto& [keys, color] : colors) {
        press(QKeySequence(keys));
        EXPECT_EQ(editor.CurrentColor, color) << keys;
    }
    const auto lowest = [this] { return editor.PageHeight - editor.VisibleHeight - 0.01f; };
    const std::pair<const char*, std::function<bool()>> views[] = {
        {"Ctrl+Left", [this] { return editor.SnapStep == 0.125f; }},
        {"Ctrl+Right", [this] { return editor.SnapStep == 0.25f; }},
        {"Ctrl+=", [this] { return editor.ZoomStepCount == 1; }},
        {"Ctrl+Shift++", [this] { return editor.ZoomStepCount == 2; }},
        {"Ctrl+-", [this] { return editor.ZoomStepCount == 1; }},
        {"PgDown", [this] { return editor.ScaleTop > 1; }},
        {"PgUp", [this] { return editor.ScaleTop == 0; }},
        {"Ctrl+End", [&] { return editor.ScaleTop > lowest(); }},
        {"Ctrl+Home", [this] { return editor.ScaleTop == 0; }},
    };
    for (const auto& [keys, acted] : views) {
        press(QKeySequence(keys));
        EXPECT_TRUE(acted()) << keys;
    }
    journey.press("Line");
    const Short line = editor.gesture.CurrentTool;
    for (const auto& [key, way] :
         {std::pair{Qt::Key_Down, 4}, {Qt::Key_Right, 5}, {Qt::Key_Up, 1}, {Qt::Key_Left, 0}}) {
        Journey::key(key);
        EXPECT_EQ(editor.gesture.CurrentTool, line + way);
    }
    Journey::key(Qt::Key_Escape);
    EXPECT_EQ(editor.gesture.CurrentTool, -1);

    journey.press("Ground");
    journey.clickPage(4, 2);
    Journey::key(Qt::Key_Escape);
    Journey::key(Qt::Key_A, Qt::ControlModifier);
    Journey::key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(editor.drawing.devices.DeviceX.at(0), 4.25f);
    Journey::key(Qt::Key_Delete);
    EXPECT_EQ(editor.drawing.devices.DeviceCount, 0);
    Journey::key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.drawing.devices.DeviceX.at(0), 4.25f);
}

TEST_F(KeyboardTest, AFieldKeepsTheKeysThatEditItsText) {
    struct Field {
        const char *tool, *name, *typed;
    };
    for (const Field& f : {Field{"Text", "txtEdit", "CR12"},
                           {"Small Circle", "txtRadius", "0.25"},
                           {"Arc Up", "txtCircleEnd", "45.5"},
                           {"Lamp", "cmbScale", "1.5"}}) {
        SCOPED_TRACE(f.name);
        journey.press(f.tool);
        if (std::string_view(f.tool) == "Text") journey.moveOnPage(3, 3);
        auto& widget = journey.find(f.name);
        auto* inside = widget.findChild<QLineEdit*>();
        auto& field = inside ? *inside : static_cast<QLineEdit&>(widget);
        widget.setFocus();
        listenToAll();
        field.selectAll();
        Journey::type(f.typed);
        const QString typed = toQString(f.typed);
        const Short tool = editor.gesture.CurrentTool;
        Journey::key(Qt::Key_Home);
        Journey::key(Qt::Key_Delete);
        EXPECT_EQ(field.text(), typed.mid(1));
        Journey::key(Qt::Key_Z, Qt::ControlModifier);
        Journey::key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(field.text(), typed.mid(1)) << "back and forth";
        Journey::key(Qt::Key_Right);
        Journey::key(Qt::Key_Left, Qt::ControlModifier);
        EXPECT_EQ(field.cursorPosition(), 0);
        Journey::key(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(field.selectedText(), typed.mid(1));
        for (const Qt::Key key : {Qt::Key_C, Qt::Key_Y, Qt::Key_X})
            Journey::key(key, Qt::ControlModifier);
        EXPECT_EQ(field.text(), "");
        EXPECT_EQ(editor.gesture.CurrentTool, tool) << "the arrows have not walked the palette";
        EXPECT_EQ(editor.SnapStep, 0.25f);
        EXPECT_TRUE(chosen.empty()) << chosen.front();
        Journey::key(Qt::Key_Escape);
        EXPECT_EQ(editor.gesture.CurrentTool, -1) << "ESC is the form's everywhere";
    }
}

}  // namespace
}  // namespace ladrix::test
