// The help window as a person uses it: keys, the list, the text, and beside a dialog.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>

#include "ProgramOnQt.h"
#include "app/HelpContexts.h"
#include "help/HelpCommands.h"
#include "help/HelpFile.h"
#include "qt/HelpText.h"
#include "qt/LocalHelp.h"

namespace ladrix {
namespace {

using test::press;
using test::settle;

void click(QListWidget& list, int row) {
    const QPointF at = list.visualItemRect(list.item(row)).center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool held = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, at, list.viewport()->mapToGlobal(at), Qt::LeftButton,
                          held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list.viewport(), &event);
    }
    settle();
}

class HelpWindowTest : public test::ProgramOnQt {
  protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(startAnew());
        const std::vector<HelpTopic> topics = {
            {"1.1 Welcome to Ladrix", "HEADING\r\nSome text.\r\n\r\nCtrl+N\tNew"},
            {"2.7 Text", "A text that says text."},
            {"5.2 The File Browser", "Files."}};
        machine.folder.write("program/Help_Topics.htx", helpFileText(topics));
        local = std::make_unique<LocalHelp>(*program, nullptr);
        openHelp(*program, "frmLX");
        local->openWindow();
        settle();
    }

    HelpWindow& window() {
        for (QWidget* widget : QApplication::allWidgets())
            if (auto* found = qobject_cast<HelpWindow*>(widget)) return *found;
        throw std::logic_error("no help window");
    }
    template <class Widget>
    Widget& find(const char* name) {
        return test::named<Widget>(window(), name);
    }
    HelpText& text() { return find<HelpText>("txtHelp"); }
    void run(const char* entry) {
        find<QAction>(entry).trigger();
        settle();
    }
    HelpForm& help() { return program->frmHelp; }

    std::unique_ptr<LocalHelp> local;
};

TEST_F(HelpWindowTest, ShowsTheTopicsTitleAndPlainText) {
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(find<QListWidget>("lstHelp").count(), 3);
    EXPECT_EQ(find<QLabel>("lblTitle").text(), "1.1 Welcome to Ladrix");
    EXPECT_EQ(text().toPlainText(), "HEADING\nSome text.\n\nCtrl+N\tNew");
    EXPECT_FALSE(help().HelpEdited) << "showing a text is no edit";
    press(find<QListWidget>("lstHelp"), Qt::Key_Down);
    EXPECT_EQ(find<QLabel>("lblTitle").text(), "2.7 Text");
    EXPECT_EQ(text().toPlainText(), "A text that says text.");
}

TEST_F(HelpWindowTest, TheSearchMarksThePhraseAndF3GoesOn) {
    auto& field = find<QLineEdit>("txtSearch");
    test::type(field, "TEXT");
    press(field, Qt::Key_Return);
    EXPECT_EQ(text().textCursor().selectedText(), "text");
    EXPECT_EQ(text().textCursor().selectionStart(), 13) << "behind a heading's line end";
    EXPECT_TRUE(find<QPushButton>("cmdSearch1").isEnabled());
    run("mnuEditFindAgain");
    EXPECT_EQ(find<QLabel>("lblTitle").text(), "2.7 Text");
    EXPECT_EQ(text().textCursor().selectionStart(), 2);
    run("mnuEditFindAgain");
    EXPECT_EQ(text().textCursor().selectionStart(), 17);
    run("mnuEditFindAgain");
    EXPECT_EQ(machine.dialogs.boxes.back().text, "End of Search");
    EXPECT_FALSE(find<QAction>("mnuEditFindAgain").isEnabled());
}

TEST_F(HelpWindowTest, TypingEditsAndARefusedCharacterNeverEnters) {
    QTextCursor cursor = text().textCursor();
    cursor.setPosition(7);
    text().setTextCursor(cursor);
    press(text(), Qt::Key_X, "x");
    press(text(), 0, QString(QChar(0xFE)));
    press(text(), Qt::Key_Y, "y");
    EXPECT_EQ(help().txtHelp.Text, "HEADINGxy\r\nSome text.\r\n\r\nCtrl+N\tNew");
    EXPECT_EQ(text().toPlainText(), "HEADINGxy\nSome text.\n\nCtrl+N\tNew");
    EXPECT_EQ(machine.dialogs.boxes.size(), 1u);
    // Cancel keeps the list's row and the text.
    auto& list = find<QListWidget>("lstHelp");
    click(list, 2);
    EXPECT_EQ(machine.dialogs.boxes.size(), 2u);
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_TRUE(list.item(0)->isSelected() && !list.item(2)->isSelected());
    press(window(), Qt::Key_Escape);
    EXPECT_TRUE(window().isVisible());
    machine.dialogs.answers = {Answer::No};
    press(window(), Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(help().Visible);
}

TEST_F(HelpWindowTest, F1InADialogOpensItsTopicInAWindowThatCanBeUsed) {
    QDialog dialog;
    dialog.setObjectName("frmFile");
    auto* field = new QLineEdit(&dialog);
    QTimer::singleShot(0, &dialog, [&] {
        press(*field, Qt::Key_F1);
        EXPECT_EQ(currentTitle(help()), "5.2 The File Browser");
        local->openWindow();
        settle();
        EXPECT_EQ(window().parentWidget(), &dialog) << "the dialog would block it otherwise";
        dialog.reject();
    });
    dialog.exec();
    settle();
    EXPECT_EQ(window().parentWidget(), nullptr);
    EXPECT_TRUE(window().isVisible()) << "it stays when the dialog has gone";
}

}  // namespace
}  // namespace ladrix
