// Labels in a person's hand: typed, clicked, dragged, and changed by their menu and dialog.
#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QWindow>

#include "Journey.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct LabelsTest : testing::Test {
    LabelTable& labels() { return journey.editor().drawing.labels; }
    int selected() { return journey.editor().SelectedLabelCount; }

    void placeText(const QString& text, double x, double y) {
        journey.press("Text");
        journey.moveOnPage(x, y);
        Journey::type(text);
        journey.clickPage(x, y);
        Journey::key(Qt::Key_Escape);
    }
    // On the middle of a label.
    QPoint on(std::size_t i) {
        const LabelControl& label = journey.editor().form.lbl.at(i);
        FontSpec font = label.Font;
        font.size /= journey.editor().ZoomFactor;
        Fonts& fonts = *journey.program().platform.fonts;
        return journey.at(label.Left + fonts.textWidth(font, label.Caption) / 2,
                          label.Top + fonts.textHeight(font) / 2);
    }
    void click(std::size_t i) { Journey::click(journey.page(), on(i)); }
    void drag(QPoint from, QPoint to) {
        QWidget& page = journey.page();
        QWindow* const window = journey.window().windowHandle();
        const auto there = [&](QPoint point) { return page.mapTo(&journey.window(), point); };
        Journey::move(page, from);
        QTest::mousePress(window, Qt::LeftButton, {}, there(from));
        Journey::move(page, (from + to) / 2);
        Journey::move(page, to);
        QTest::mouseRelease(window, Qt::LeftButton, {}, there(to));
    }
    QMenu& openMenu() {
        auto& menu = journey.find<QMenu>("mnuEditText");
        if (!waitFor([&] { return menu.isVisible(); })) throw std::logic_error("no menu");
        return menu;
    }
    void chooseFrom(QMenu& menu, const char* entry) {
        Journey::click(menu, menu.actionGeometry(&journey.find<QAction>(entry)).center());
    }
    // Whether the label stands in the selection colour, magenta.
    bool looksSelected(std::size_t i) {
        const QImage picture = journey.picture();
        const QPoint middle = on(i);
        for (int x = middle.x() - 12; x <= middle.x() + 12; ++x)
            for (int y = middle.y() - 8; y <= middle.y() + 8; ++y) {
                const QColor seen = picture.pixelColor(x, y);
                if (seen.red() > 200 && seen.blue() > 200 && seen.green() < 150) return true;
            }
        return false;
    }

    Home home;
    Journey journey{home};
};

TEST_F(LabelsTest, ADeviceIsNamedByTypingAndEnter) {
    journey.press("Normally Open Contact");
    journey.clickPage(3, 3);
    ASSERT_TRUE(journey.find("txtEdit").hasFocus());
    EXPECT_TRUE(looksSelected(0));
    Journey::type("1");
    EXPECT_EQ(labels().LabelText.at(0), "CR") << "until it is kept";
    Journey::key(Qt::Key_Return);
    EXPECT_EQ(labels().LabelText.at(0), "CR1") << "typed behind the prefix";
    EXPECT_FALSE(journey.find("txtEdit").isVisible());
    EXPECT_TRUE(journey.page().hasFocus());
    EXPECT_FALSE(looksSelected(0));
    // What the drawing cannot hold is said, not swallowed.
    journey.press("Text");
    journey.moveOnPage(5, 5);
    auto& txtEdit = journey.find<QLineEdit>("txtEdit");
    txtEdit.clear();
    txtEdit.insert(QString::fromUtf8("\xCE\xA9"));
    EXPECT_TRUE(waitFor([&] { return journey.message().starts_with("A drawing can hold"); }));
}

TEST_F(LabelsTest, AreClickedAndDragged) {
    placeText("M1", 2, 2);
    placeText("M2", 3, 4);
    click(0);
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(journey.textOf("lblSelected"), "1 item selected");
    EXPECT_TRUE(looksSelected(0));
    EXPECT_EQ(journey.page().cursor().shape(), Qt::SizeAllCursor);
    click(0);
    EXPECT_EQ(selected(), 0);
    EXPECT_EQ(journey.page().cursor().shape(), Qt::PointingHandCursor);

    std::string before;
    for (const char* zoom : {"", "in", "in", "out"}) {
        if (*zoom != 0)
            Journey::key(*zoom == 'i' ? Qt::Key_Plus : Qt::Key_Minus, Qt::ControlModifier);
        click(0);
        click(1);
        before = journey.editor().drawing.LabelString;
        const auto left = labels().LabelX, top = labels().LabelY;
        const QPoint way(60, 36);
        const auto inches = [&](int pixels) {
            return static_cast<Single>(pixels) / 96 / journey.editor().ZoomFactor;
        };
        drag(on(1), on(1) + way);
        for (std::size_t i = 0; i < 2; ++i) {
            EXPECT_NEAR(labels().LabelX[i], left[i] + inches(way.x()), 1e-4) << zoom;
            EXPECT_NEAR(labels().LabelY[i], top[i] + inches(way.y()), 1e-4) << zoom;
        }
        EXPECT_EQ(selected(), 0);
    }
    Journey::key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(journey.editor().drawing.LabelString, before) << "both in one step";
}

TEST_F(LabelsTest, TheRightButtonAndADoubleClickOpenTheMenuOfTheText) {
    placeText("M1", 2, 2);
    Journey::click(journey.page(), on(0), Qt::RightButton);
    EXPECT_EQ(selected(), 1);
    EXPECT_FALSE(journey.find<QAction>("mnuEditTextAlignLeft").isEnabled()) << "a single one";
    chooseFrom(openMenu(), "mnuEditTextCaption");
    ASSERT_TRUE(waitFor([&] { return journey.find("txtEdit").hasFocus(); }));
    Journey::type("PUMP");
    Journey::key(Qt::Key_Return);
    EXPECT_EQ(labels().LabelText.at(0), "PUMP");
    EXPECT_EQ(selected(), 0);
    EXPECT_TRUE(journey.page().hasFocus());

    Journey::doubleClick(journey.page(), on(0));
    EXPECT_EQ(selected(), 1);
    openMenu().close();
    EXPECT_EQ(selected(), 1) << "the menu was only looked at";
}

TEST_F(LabelsTest, TheDialogSetsTextAndFontOfOneAndTheFontOfMany) {
    const auto sizeBox = [](QWidget& dialog) -> QComboBox& {
        return Journey::named<QComboBox>(dialog, "cmbFontSize");
    };
    const auto openOn = [&](std::size_t label, const Journey::Step& step) {
        journey.expectDialog(step);
        Journey::click(journey.page(), on(label), Qt::RightButton);
        chooseFrom(openMenu(), "mnuEditTextProps");
        // The keyboard comes back to the window a moment after the dialog has gone.
        ASSERT_TRUE(waitFor([&] {
            return journey.dialogsLeft() == 0 && selected() == 0 &&
                   journey.window().isActiveWindow();
        }));
    };
    placeText("M1", 2, 2);
    openOn(0, [&](QWidget& dialog) {
        auto& txtCaption = Journey::named<QLineEdit>(dialog, "txtCaption");
        EXPECT_TRUE(txtCaption.hasFocus());
        EXPECT_EQ(txtCaption.selectedText(), "M1");
        EXPECT_EQ(Journey::named<QComboBox>(dialog, "cmbFonts").currentText(), "Arial");
        Journey::type("M2");
        sizeBox(dialog).setEditText("1e30");
        journey.expectBox("from 1 to 400", QMessageBox::Ok);
        Journey::click(Journey::named(dialog, "cmdOKTextProps"));
        EXPECT_THAT(Journey::named<QLabel>(dialog, "lblNote").text().toStdString(),
                    HasSubstr("from 1 to 400"));
        EXPECT_EQ(labels().LabelText.at(0), "M1");
        sizeBox(dialog).setEditText("13,5");
        EXPECT_FALSE(Journey::named(dialog, "lblNote").isVisible());
        Journey::named<QCheckBox>(dialog, "chkFontStyle0").click();
        Journey::click(Journey::named(dialog, "cmdSet"));
        EXPECT_TRUE(dialog.isVisible());
        txtCaption.setFocus();
        Journey::key(Qt::Key_Return);
    });
    EXPECT_EQ(labels().LabelText.at(0), "M2");
    EXPECT_EQ(labels().LabelFontSize.at(0), 13.5f);
    EXPECT_TRUE(labels().LabelBold.at(0));
    placeText("M3", 4, 4);
    EXPECT_EQ(labels().LabelFontSize.at(1), 14) << "what was set, in the editor's own steps";
    click(0);
    openOn(1, [&](QWidget& dialog) {
        EXPECT_FALSE(Journey::named(dialog, "txtCaption").isVisible());
        sizeBox(dialog).setEditText("20");
        Journey::click(Journey::named(dialog, "cmdOKTextProps"));
    });
    EXPECT_THAT(labels().LabelFontSize, ElementsAre(20, 20));
    EXPECT_THAT(labels().LabelText, ElementsAre("M2", "M3"));
}

}  // namespace
}  // namespace ladrix::test
