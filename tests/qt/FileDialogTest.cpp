// The browser's real dialog, driven through its widgets by keys and clicks.
#include "qt/FileDialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>
#include <functional>

#include "canvas/file/DrawingCommands.h"
#include "platform/Encoding.h"
#include "qt/DescriptionDialog.h"
#include "qt/Driving.h"
#include "qt/LogDialog.h"
#include "qt/PreviewSheet.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using test::named;
using test::press;
using test::settle;
using test::type;
using testing::ElementsAre;
using testing::IsEmpty;

QStringList shownNames(QWidget& dialog) {
    const QAbstractItemModel& model = *named<QTreeView>(dialog, "FileList1").model();
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names << model.index(row, 0).data().toString();
    return names;
}

class FileDialogTest : public testing::Test {
  protected:
    FileDialogTest() {
        fake.folder.makeFolder("drawings");
        program.paths.DrawingsPath = fake.folder / "drawings/";
        program.paths.DataFilesPath = fake.folder.path();
        program.editor.drawing.TempFolder = fake.folder / "program/";
    }

    void write(const std::string& name, std::string_view description) {
        fake.folder.write("drawings/" + name,
                          "///File Description///\r\n" + std::string(description) +
                              "\r\n///End File Description///\r\n11x17Landscape\r\n\r\n"
                              "InsertSavedLine\xFF"
                              "1\xFF"
                              "5.5\xFF"
                              "16\xFF"
                              "5.5\xFF"
                              "0\xFF"
                              "0\r\n\r\n"
                              "///Picture Files///\r\n");
    }

    template <class Dialog>
    void drive(const std::function<void(Dialog&)>& steps) {
        test::drive<Dialog>(program, steps);
    }
    void open(const std::function<void(FileDialog&)>& steps) {
        program.editor.drawing.SaveInProgress = false;
        drive(steps);
    }
    void save(const std::function<void(FileDialog&)>& steps) {
        program.editor.drawing.SaveInProgress = true;
        drive(steps);
    }

    test::FakePlatform fake;
    Program program{fake.platform};
};

TEST_F(FileDialogTest, ADrawingIsFoundSeenAndOpenedByKeysAlone) {
    write("Motor 2.els", "Second");
    write("Motor 10.els", "Tenth");
    open([&](FileDialog& dialog) {
        EXPECT_THAT(shownNames(dialog), ElementsAre("Motor 2.els", "Motor 10.els"));
        EXPECT_FALSE(named<QPushButton>(dialog, "cmdOpenOK").isEnabled());
        EXPECT_EQ(program.frmFile.Selected, -1) << "nothing is previewed unasked";
        type("motor 1");
        EXPECT_EQ(dialog.windowTitle(), "Open... Motor 10.els");
        EXPECT_EQ(named<QPlainTextEdit>(dialog, "txtDescription").toPlainText(), "Tenth");
        press(Qt::Key_Up);
        EXPECT_EQ(named<QPlainTextEdit>(dialog, "txtDescription").toPlainText(), "Second");
        press(Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(program.editor.drawing.CurrentFileName, "Motor 2.els");
    EXPECT_EQ(program.editor.drawing.devices.DeviceCount, 1);
}

TEST_F(FileDialogTest, ThePreviewShowsThePageInItsShapeWithItsLines) {
    write("a.els", "");
    open([&](FileDialog& dialog) {
        press(Qt::Key_Down);
        const QImage image = named<QWidget>(dialog, "picPreview").grab().toImage();
        // The page is what is white; the line goes across its middle.
        QRect page;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == Qt::white) page |= QRect(x, y, 1, 1);
        EXPECT_NEAR(page.width() * 11.0 / 17, page.height(), 3);
        int dark = 0;
        for (int y = page.top(); y <= page.bottom(); ++y)
            dark += image.pixelColor(page.center().x(), y).lightness() < 160;
        EXPECT_GE(dark, 1);
        EXPECT_LE(dark, 3) << "a single thin line";
    });
}

TEST_F(FileDialogTest, EnterEntersAFolderOnceAndBackspaceLeavesItMarked) {
    fake.folder.makeFolder("drawings/b/c");
    fake.folder.makeFolder("drawings/a");
    open([&](FileDialog& dialog) {
        type("b");
        press(Qt::Key_Return);
        EXPECT_THAT(shownNames(dialog), ElementsAre("c"));
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        EXPECT_THAT(shownNames(dialog), IsEmpty());
        press(Qt::Key_Backspace);
        press(Qt::Key_Backspace);
        EXPECT_THAT(shownNames(dialog), ElementsAre("a", "b"));
        EXPECT_EQ(program.frmFile.Selected, 1);
        press(Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
}

TEST_F(FileDialogTest, EnterOnAFolderDoesNotSaveToo) {
    fake.folder.makeFolder("drawings/sub");
    save([&](FileDialog& dialog) {
        type("mine");
        named<QTreeView>(dialog, "FileList1").setFocus();
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        EXPECT_EQ(program.frmFile.BrowserFolder, fake.folder / "drawings/sub/");
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_THAT(fake.folder.entries("drawings/sub"), IsEmpty());
}

TEST_F(FileDialogTest, ThePathCanBeClickedAndTyped) {
    fake.folder.makeFolder("drawings/deep/deeper");
    write("x & y.els", "Typed");
    open([&](FileDialog& dialog) {
        QWidget& path = named<QWidget>(dialog, "Dir1");
        QLineEdit& text = named<QLineEdit>(path, "txtPath");
        const auto go = [&](const QString& typed) {
            press(Qt::Key_L, {}, Qt::ControlModifier);
            text.setText(typed);
            press(Qt::Key_Return);
        };
        go("deep/deeper");
        EXPECT_EQ(program.frmFile.BrowserFolder, fake.folder / "drawings/deep/deeper/");
        QAbstractButton* above = nullptr;
        for (auto* const button : path.findChildren<QAbstractButton*>())
            if (button->accessibleName() == "drawings") above = button;
        ASSERT_TRUE(above);
        above->click();
        settle();
        EXPECT_EQ(program.frmFile.BrowserFolder, fake.folder / "drawings/");
        go("x & y.els");
        EXPECT_EQ(dialog.windowTitle(), "Open... x & y.els");
        for (int i = 0; i < 2; ++i) {
            go("nowhere");
            ASSERT_TRUE(dialog.isVisible()) << "Enter does not reach what is marked";
            EXPECT_EQ(named<QWidget>(dialog, "lblNote").property("text").toString(),
                      "nowhere: No such folder");
        }
        QTreeView& list = named<QTreeView>(dialog, "FileList1");
        list.setFocus();
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(&list, &held);
        ASSERT_TRUE(dialog.isVisible()) << "nor does Enter while it is held down";
        press(Qt::Key_Up);
        EXPECT_EQ(named<QWidget>(dialog, "lblNote").property("text").toString(), "");
    });
}

TEST_F(FileDialogTest, ABadFileShowsItsBoxAndAnotherCanBeChosenByAClick) {
    write("bad.els", "");
    write("good.els", "Good");
    fake.files.fail(test::Operation::Read, {failure::DeviceIO, "Input/output error"}, "bad");
    open([&](FileDialog& dialog) {
        QTreeView& list = named<QTreeView>(dialog, "FileList1");
        const auto click = [&](int row) {
            test::click(*list.viewport(), list.visualRect(list.model()->index(row, 0)).center());
        };
        click(0);
        ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
        EXPECT_EQ(fake.dialogs.boxes[0].title, "Bad File Structure");
        click(1);
        EXPECT_EQ(fake.dialogs.boxes.size(), 1u);
        EXPECT_EQ(named<QPlainTextEdit>(dialog, "txtDescription").toPlainText(), "Good");
        named<QPushButton>(dialog, "cmdOpenOK").click();
    });
    EXPECT_EQ(program.editor.drawing.CurrentFileName, "good.els");
}

TEST_F(FileDialogTest, SavingTypesOverTheNameAndKeepsItsExtension) {
    program.editor.drawing.CurrentFolder = program.paths.DrawingsPath;
    program.editor.drawing.CurrentFileName = "Old.els";
    save([&](FileDialog& dialog) {
        QLineEdit& name = named<QLineEdit>(dialog, "txtSaveAs");
        EXPECT_EQ(QApplication::focusWidget(), &name);
        EXPECT_EQ(name.selectedText(), "Old");
        EXPECT_FALSE(named<QWidget>(dialog, "framPreview").isVisible());
        type(QStringLiteral("N\u00e4chste \u03a9"));
        named<QRadioButton>(dialog, "optFileType1").click();
        settle();
        EXPECT_EQ(name.text(), QStringLiteral("N\u00e4chste \u03a9.tpl"));
        name.setFocus();
        press(Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(toUtf8(program.editor.drawing.CurrentFileName),
              "N\xC3\xA4"
              "chste \xCE\xA9.tpl");
    EXPECT_TRUE(std::filesystem::exists(fake.folder.native("drawings") /
                                        std::filesystem::path(u8"N\u00e4chste \u03a9.tpl")));
}

TEST_F(FileDialogTest, OneDefaultButtonAndTheSizeIsRemembered) {
    const auto defaults = [](QWidget& dialog) {
        QStringList names;
        for (const auto* const button : dialog.findChildren<QPushButton*>())
            if (button->isDefault() && button->isVisible()) names << button->objectName();
        return names;
    };
    open([&](FileDialog& dialog) {
        EXPECT_THAT(defaults(dialog), ElementsAre("cmdOpenOK"));
        dialog.resize(777, 555);
        settle();
    });
    save([&](FileDialog& dialog) {
        EXPECT_THAT(defaults(dialog), ElementsAre("cmdSaveAs"));
        EXPECT_EQ(dialog.size(), QSize(777, 555));
    });
}

TEST_F(FileDialogTest, NothingIsCutOffInLargeType) {
    const QFont former = QApplication::font();
    QFont large = former;
    large.setPointSizeF(2 * former.pointSizeF());
    QApplication::setFont(large);
    const auto check = [](FileDialog& dialog) {
        for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
            const bool hasText = qobject_cast<const QLabel*>(widget) ||
                                 qobject_cast<const QPushButton*>(widget) ||
                                 qobject_cast<const QRadioButton*>(widget);
            if (!hasText) continue;
            if (!widget->isVisible()) continue;
            EXPECT_GE(widget->width(), widget->sizeHint().width())
                << widget->objectName().toStdString();
            EXPECT_GE(widget->height(), widget->sizeHint().height())
                << widget->objectName().toStdString();
        }
        EXPECT_LE(dialog.height(), dialog.screen()->availableSize().height());
    };
    open(check);
    save(check);
    QApplication::setFont(former);
}

TEST_F(FileDialogTest, TheSheetMakesThePreviewsInSightAndAClickChooses) {
    for (int i = 1; i <= 1000; ++i)
        write("d" + std::to_string(i) + ".els", std::to_string(i));
    fake.folder.write("drawings/a damaged.els",
                      "8.5x11Portrait\r\n\r\nInsertLamp\xFFtwo\xFF"
                      "2\r\n\r\n");
    open([&](FileDialog& dialog) {
        named<QPushButton>(dialog, "cmdPreviewAll").click();
        PreviewSheet& sheet = named<PreviewSheet>(dialog, "previewSheet");
        EXPECT_EQ(QApplication::focusWidget(), &sheet);
        const auto state = [&](int row) { return sheet.tile(row).state; };
        using State = PreviewSheet::Tile::State;
        for (int i = 0; i < 400 && state(1) == State::Awaited; ++i)
            settle();
        EXPECT_EQ(state(0), State::Damaged);
        EXPECT_EQ(state(1), State::Ready);
        EXPECT_LT(fake.files.count(test::Operation::Read), 60) << "only what is in sight";
        EXPECT_EQ(program.frmFile.Selected, -1);

        sheet.scrollToBottom();
        for (int i = 0; i < 400 && state(1000) == State::Awaited; ++i)
            settle();
        EXPECT_EQ(state(1000), State::Ready);
        EXPECT_FALSE(sheet.tile(1000).page.isNull());
        EXPECT_LT(fake.files.count(test::Operation::Read), 120);
        type("d77");
        EXPECT_EQ(dialog.windowTitle(), "Open... d77.els");
        EXPECT_EQ(program.editor.drawing.devices.DeviceCount, 1);
        press(Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(program.editor.drawing.CurrentFileName, "d77.els");
}

TEST_F(FileDialogTest, AListThatHasChangedBehindABoxIsPaintedAsItWas) {
    for (const char* name : {"a.els", "b.els", "c.els"})
        write(name, "");
    open([&](FileDialog& dialog) {
        named<QPushButton>(dialog, "cmdPreviewAll").click();
        PreviewSheet& sheet = named<PreviewSheet>(dialog, "previewSheet");
        settle();
        program.frmFile.entries.resize(1);
        sheet.viewport()->repaint();
        EXPECT_EQ(sheet.model()->rowCount(), 3);
        EXPECT_EQ(sheet.tile(2).state, PreviewSheet::Tile::State::Awaited);
    });
}

TEST_F(FileDialogTest, EachModeShowsItsOwnControlsAndPutsTheModeBack) {
    const struct {
        BrowserMode mode;
        QString caption;
        bool name, preview, description;
        int types;
    } cases[] = {
        {BrowserMode::Library, "Opening User Library From...", false, true, false, 0},
        {BrowserMode::Program, "Opening File From...", false, false, false, 0},
        {BrowserMode::Picture, "Inserting Picture From...", false, true, false, 0},
        {BrowserMode::SavePreferences, "Saving User Preferences", true, false, false, 0},
        {BrowserMode::SaveExport, "Exporting Drawing as...", true, false, false, 3},
        {BrowserMode::Folder, "Adding a Favorite Folder", true, false, false, 0},
        {BrowserMode::Drawing, "Opening File From...", false, true, true, 0},
    };
    for (const auto& [mode, caption, name, preview, description, types] : cases) {
        program.frmFile.FileBrowserMode = mode;
        open([&](FileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), caption);
            EXPECT_EQ(named<QLineEdit>(dialog, "txtSaveAs").isVisible(), name)
                << qPrintable(caption);
            EXPECT_EQ(named<QWidget>(dialog, "framPreview").isVisible(), preview);
            EXPECT_EQ(named<QWidget>(dialog, "txtDescription").isVisible(), description);
            int shown = 0;
            for (const auto* const option : dialog.findChildren<QRadioButton*>())
                shown += option->isVisible();
            EXPECT_EQ(shown, types) << qPrintable(caption);
            // Every access key once.
            QStringList keys;
            for (const auto* const button : dialog.findChildren<QAbstractButton*>())
                if (button->isVisible() && !button->shortcut().isEmpty())
                    keys << button->shortcut().toString();
            EXPECT_EQ(keys.removeDuplicates(), 0) << qPrintable(caption);
        });
        EXPECT_EQ(program.frmFile.FileBrowserMode, BrowserMode::Drawing);
        EXPECT_FALSE(program.frmFile.Chosen);
    }
}

TEST_F(FileDialogTest, StrangeNamesStayOnOneLineAndLeadToTheirFiles) {
    write("R&D.els", "");
    write("two\x0Alines.els", "Split");
    open([&](FileDialog& dialog) {
        const QAbstractItemModel& list = *named<QTreeView>(dialog, "FileList1").model();
        EXPECT_EQ(list.index(0, 0).data(Qt::ToolTipRole), "R&D.els");
        EXPECT_FALSE(shownNames(dialog).back().contains('\n'));
        press(Qt::Key_End);
        EXPECT_EQ(named<QPlainTextEdit>(dialog, "txtDescription").toPlainText(), "Split");
    });
}

TEST_F(FileDialogTest, TheDescriptionTakesWhatAFileCanHold) {
    fake.dialogs.duringForm = [&](Form) {
        drive<DescriptionDialog>([&](DescriptionDialog& dialog) {
            QPlainTextEdit& box = named<QPlainTextEdit>(dialog, "txtDescription");
            EXPECT_EQ(box.toPlainText(), "One\nTwo");
            type(QStringLiteral(" \u03a9\u00fc"));
            press(Qt::Key_Return, "\n");
            type("3");
            EXPECT_EQ(box.toPlainText(), QStringLiteral("One\nTwo \u00fc\n3"));
            named<QPushButton>(dialog, "cmdSave").click();
            EXPECT_FALSE(dialog.isVisible());
        });
    };
    program.editor.drawing.FileDescription = "One\r\nTwo";
    mnuEditFileDescription_Click(program.editor);
    EXPECT_EQ(program.editor.drawing.FileDescription, "One\r\nTwo \xFC\r\n3");
    EXPECT_TRUE(program.editor.drawing.DrawingChanged);
}

TEST_F(FileDialogTest, TheLogIsShownAtItsSizeAndCannotBeEdited) {
    program.frmLog.Visible = true;
    program.frmLog.Caption = "Error Log";
    program.frmLog.txtLog = "first\r\nlast\r\n";
    drive<LogDialog>([&](LogDialog& dialog) {
        EXPECT_EQ(dialog.size(), QSize(800, 640));
        EXPECT_EQ(dialog.windowTitle(), "Error Log");
        QPlainTextEdit& log = named<QPlainTextEdit>(dialog, "txtLog");
        log.setFocus();
        type("x");
        EXPECT_EQ(log.toPlainText(), "first\nlast\n");
        press(Qt::Key_Escape);
        EXPECT_FALSE(program.frmLog.Visible);
    });
}

}  // namespace
}  // namespace ladrix
