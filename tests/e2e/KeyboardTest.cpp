// Every key that means something, pressed in the real window: each command's shortcuts, the form's
// own keys, and which of them a field that is typed in keeps to itself.
#include <QLineEdit>

#include "Journey.h"
#include "app/CommandTable.h"
#include "canvas/Tools.h"
#include "qt/QtText.h"

namespace ladrix::test {
namespace {

struct KeyboardTest : testing::Test {
    static void press(const QKeySequence& keys) {
        const QKeyCombination pressed = keys[0];
        Journey::key(pressed.key(), pressed.keyboardModifiers());
    }
    // From here on the entry does nothing but tell that it was chosen.
    void listenTo(const Command& row) {
        auto& entry = journey.find<QAction>(std::string(row.name).c_str());
        entry.disconnect();
        entry.setEnabled(true);
        QObject::connect(&entry, &QAction::triggered, &entry,
                         [this, name = std::string(row.name)] { chosen.push_back(name); });
    }
    void listenToAll() {
        for (const Command& row : commandTable())
            if (!row.shortcut.empty()) listenTo(row);
    }
    // Two grounds, selected.
    void selectGrounds() {
        journey.press("Ground");
        journey.clickPage(2, 2);
        journey.clickPage(4, 2);
        Journey::key(Qt::Key_Escape);
        Journey::key(Qt::Key_A, Qt::ControlModifier);
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
    struct Case {
        QKeySequence keys;
        std::function<bool()> acted;
    };
    const auto colored = [this](Long color) {
        return [this, color] { return editor.CurrentColor == color; };
    };
    const Case cases[] = {
        {QKeySequence("Ctrl+Alt+R"), colored(Red)},
        {QKeySequence("Ctrl+B"), colored(Black)},
        {QKeySequence("Ctrl+Alt+G"), colored(0xFF00)},
        {QKeySequence("Ctrl+Alt+Y"), colored(0xFFFF)},
        {QKeySequence("Ctrl+Alt+C"), colored(Cyan)},
        {QKeySequence("Ctrl+Alt+M"), colored(Magenta)},
        {QKeySequence("Ctrl+Alt+U"), colored(Blue)},
        {QKeySequence("Ctrl+Alt+V"), colored(RGB(128, 0, 128))},
        {QKeySequence("Ctrl+Alt+B"), colored(Black)},
        {QKeySequence("Ctrl+Left"), [this] { return editor.SnapStep == 0.125f; }},
        {QKeySequence("Ctrl+Right"), [this] { return editor.SnapStep == 0.25f; }},
        {QKeySequence("Ctrl+="), [this] { return editor.ZoomStepCount == 1; }},
        {QKeySequence("Ctrl+Shift++"), [this] { return editor.ZoomStepCount == 2; }},
        {QKeySequence("Ctrl+-"), [this] { return editor.ZoomStepCount == 1; }},
        {QKeySequence("PgDown"), [this] { return editor.ScaleTop > 1; }},
        {QKeySequence("PgUp"), [this] { return editor.ScaleTop == 0; }},
        {QKeySequence("Ctrl+End"),
         [this] { return editor.ScaleTop > editor.PageHeight - editor.VisibleHeight - 0.01f; }},
        {QKeySequence("Ctrl+Home"), [this] { return editor.ScaleTop == 0; }},
    };
    for (const Case& c : cases) {
        press(c.keys);
        EXPECT_TRUE(c.acted()) << c.keys.toString().toStdString();
    }
    journey.press("Line");
    const Short line = editor.CurrentTool;
    for (const auto& [key, way] :
         {std::pair{Qt::Key_Down, 4}, {Qt::Key_Right, 5}, {Qt::Key_Up, 1}, {Qt::Key_Left, 0}}) {
        Journey::key(key);
        EXPECT_EQ(editor.CurrentTool, line + way);
    }
    Journey::key(Qt::Key_Escape);
    EXPECT_EQ(editor.CurrentTool, -1);

    selectGrounds();
    Journey::key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(editor.drawing.devices.DeviceX[1], 4.25f);
    Journey::key(Qt::Key_Delete);
    EXPECT_EQ(editor.drawing.devices.DeviceCount, 0);
    Journey::key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.drawing.devices.DeviceX.at(1), 4.25f);
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
        const Short tool = editor.CurrentTool;
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
        EXPECT_EQ(editor.CurrentTool, tool) << "the arrows have not walked the palette";
        EXPECT_EQ(editor.SnapStep, 0.25f);
        EXPECT_TRUE(chosen.empty()) << chosen.front();
        Journey::key(Qt::Key_Escape);
        EXPECT_EQ(editor.CurrentTool, -1) << "ESC is the form's everywhere";
    }
}

}  // namespace
}  // namespace ladrix::test
