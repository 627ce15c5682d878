// The main window, driven through its widgets by pointer and keys; what is checked is what a person
// would see and what the program then holds.
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>
#include <map>

#include "ProgramOnQt.h"
#include "canvas/view/Painting.h"
#include "canvas/view/View.h"
#include "canvas/view/Zoom.h"
#include "qt/QtText.h"

namespace ladrix {
namespace {

constexpr Short LineButton = 3, SmallCircleButton = 8, ContactButton = 23;

using test::click;
using test::hold;
using test::move;
using test::press;
using test::release;
using test::settle;
using test::type;

class WindowTest : public test::WindowOnQt {};

TEST_F(WindowTest, SelectsByGripAndBandDeletesAndTakesItBack) {
    editor().drawing.AttachLabels = false;
    choose(ContactButton);
    clickPage(2, 2);
    clickPage(3, 3);
    clickPage(6, 3);
    press(picLX(), Qt::Key_Escape);
    auto& mnuEditDelete = find<QAction>("mnuEditDelete");
    EXPECT_FALSE(mnuEditDelete.isEnabled());

    move(picLX(), at(2.02, 2));
    EXPECT_EQ(shownAt(2, 2), QColor(Qt::white)) << "the grip stands on the insertion point";
    click(picLX(), at(2.02, 2));
    EXPECT_EQ(textOf("lblSelected"), "1 item selected");
    EXPECT_FALSE(editor().gesture.BandArmed) << "the canvas has seen no press";

    move(picLX(), at(2.5, 2.5));
    const QColor page = shownAt(3.4, 3.4);
    hold(picLX(), at(2.5, 2.5));
    move(picLX(), at(3.5, 3.5), Qt::LeftButton);
    EXPECT_NE(shownAt(3.4, 3.4), page) << "the band";
    release(picLX(), at(3.5, 3.5));
    EXPECT_EQ(shownAt(3.4, 3.4), page);
    EXPECT_EQ(textOf("lblSelected"), "2 items selected");

    EXPECT_TRUE(mnuEditDelete.isEnabled());
    mnuEditDelete.trigger();
    settle();
    ASSERT_EQ(devices().DeviceCount, 1);
    EXPECT_EQ(devices().DeviceX[0], 6);
    EXPECT_FALSE(mnuEditDelete.isEnabled());
    trigger("mnuEditUndo");
    EXPECT_EQ(devices().DeviceCount, 3);
}

TEST_F(WindowTest, APictureIsClickedAndDragged) {
    editor().drawing.PictureTable = {{2, 2, 1, 1, "a.png", "", false}};
    editor().drawing.PictureCount = 1;
    editor().img = {nullptr};
    click(picLX(), at(2.5, 2.5));
    EXPECT_EQ(textOf("lblSelected"), "1 item selected");
    EXPECT_EQ(shownAt(2, 2.5), QColor(Qt::magenta)) << "its mark";
    hold(picLX(), at(2.5, 2.5));
    move(picLX(), at(4.5, 3), Qt::LeftButton);
    release(picLX(), at(4.5, 3));
    EXPECT_NEAR(editor().drawing.PictureTable[0].Left, 4, 0.01);
    EXPECT_NEAR(editor().drawing.PictureTable[0].Top, 2.5, 0.01);
    EXPECT_EQ(textOf("lblSelected"), "");
}

// "name|caption|shortcut" and how it shows, for each entry of a menu.
QString shownEntry(const QAction& entry) {
    return entry.objectName() + '|' + entry.text() + '|' +
           QKeySequence::listToString(entry.shortcuts()) + (entry.isVisible() ? "" : " hidden") +
           (entry.isEnabled() ? "" : " off") + (entry.isChecked() ? " checked" : "");
}

TEST_F(WindowTest, MenusFollowTheCommandTable) {
    std::map<Menu, QStringList> expected;
    for (const Command& row : commandTable()) {
        if (row.menu == row.entry) continue;
        const auto& state = editor().form.menu[row.entry];
        if (row.separatorBefore) expected[row.menu] << "-";
        expected[row.menu] << toQString(row.name) + '|' + toQString(row.caption) + '|' +
                                  toQString(row.shortcut) + (state.Visible ? "" : " hidden") +
                                  (state.Visible && isEnabled(*program, row) ? "" : " off") +
                                  (state.Checked ? " checked" : "");
    }
    EXPECT_GE(expected.size(), 10u);
    for (const Command& top : commandTable()) {
        if (!expected.contains(top.entry)) continue;
        const auto& menu = find<QMenu>(std::string(top.name).c_str());
        EXPECT_EQ(menu.title(), toQString(top.caption));
        QStringList shown;
        for (const QAction* entry : menu.actions())
            shown << (entry->isSeparator() ? "-" : shownEntry(*entry));
        EXPECT_EQ(shown, expected[top.entry]) << shown.join("\n").toStdString();
    }
}

TEST_F(WindowTest, MenuEntriesShowWhatHandlersMadeOfThem) {
    auto* admin = find<QMenu>("mnuAdmin").menuAction();
    EXPECT_FALSE(admin->isVisible());
    machine.dialogs.inputAnswers = {"gravlock"};
    trigger("mnuHelpAdmin");
    EXPECT_TRUE(admin->isVisible());

    trigger("mnuOptionAttachLabels");
    EXPECT_FALSE(find<QAction>("mnuOptionAttachLabels").isChecked());
    EXPECT_FALSE(editor().drawing.AttachLabels);

    // The mode in force stays checked, though the toolkit flips the mark at each choice.
    trigger("mnuModeNormal");
    EXPECT_TRUE(find<QAction>("mnuModeNormal").isChecked());
}

TEST_F(WindowTest, RepaintsOnlyWhatAMoveChanges) {
    choose(ContactButton);
    move(picLX(), at(2.1, 2.1));
    settle();
    canvas.takeDamage();
    canvas.AutoRedraw = false;
    canvas.Cls();
    canvas.Line(1, 1, 2, 1, Red, LineForm::Plain);
    canvas.AutoRedraw = true;
    const QRect damage = canvas.takeDamage().boundingRect();
    EXPECT_TRUE(damage.contains(at(1, 1).toPoint()));
    EXPECT_TRUE(damage.contains(at(2.1, 2.1).toPoint())) << "the former ghost";
    EXPECT_LT(damage.height(), 300);
    EXPECT_TRUE(canvas.takeDamage().isEmpty());
}

TEST_F(WindowTest, FieldsLetNothingInThatTheirTextCannotHold) {
    auto& txtEdit = find<QLineEdit>("txtEdit");
    txtEdit.setText({});
    txtEdit.insert(QString::fromUtf8("A\tB\xC3\xBF\xCE\xA9\xF0\x9F\x98\x80 \xC3\xA9\xE2\x82\xAC"));
    EXPECT_EQ(txtEdit.text(), QString::fromUtf8("AB \xC3\xA9\xE2\x82\xAC"));
    choose(SmallCircleButton);
    auto& txtRadius = find<QLineEdit>("txtRadius");
    txtRadius.selectAll();
    type(txtRadius, "-0x.2e5");
    EXPECT_EQ(txtRadius.text(), "0.25");
    EXPECT_EQ(editor().CircleRadius, 0.25f);
    auto& cmbScale = find<QComboBox>("cmbScale");
    EXPECT_EQ(cmbScale.count(), 12);
    cmbScale.lineEdit()->selectAll();
    type(*cmbScale.lineEdit(), "1.a1");
    click(find("cmdScaleOK"));
    EXPECT_EQ(editor().SymbolScaleX, 1.1f);
}

TEST_F(WindowTest, TheFlyOutGivesAButtonItsOrientation) {
    Short index = 0;
    while (editor().form.cmdSym[static_cast<std::size_t>(index)].OrientationCount != 4)
        ++index;
    const QRect cell = window->palette().buttonRect(index);
    move(window->palette(), cell.center());
    auto& flyOut = find("picMoreSym");
    ASSERT_TRUE(flyOut.isVisible());
    EXPECT_EQ(flyOut.mapTo(window.get(), QPoint(0, 0)).x(),
              window->palette().mapTo(window.get(), cell.topRight()).x());
    click(flyOut, QPointF(flyOut.width() / 2.0, flyOut.height() * 5 / 8.0));
    EXPECT_FALSE(flyOut.isVisible());
    EXPECT_EQ(editor().form.cmdSym[static_cast<std::size_t>(index)].ButtonOrientation, 2);
    EXPECT_EQ(editor().gesture.CurrentTool, index);
    // The corner mark opens it too, without choosing the tool anew.
    press(picLX(), Qt::Key_Escape);
    click(window->palette(), cell.bottomRight() - QPoint(3, 3));
    EXPECT_TRUE(flyOut.isVisible());
    EXPECT_EQ(editor().gesture.CurrentTool, -1);
    move(picLX(), at(4, 4));
    EXPECT_FALSE(flyOut.isVisible());
}

TEST_F(WindowTest, APressedButtonIsCyan) {
    const auto ground = [&](Short button) {
        const QPoint corner = window->palette().buttonRect(button).topLeft() + QPoint(2, 2);
        return window->palette().grab().toImage().pixelColor(corner);
    };
    EXPECT_EQ(ground(LineButton), QColor(Qt::white));
    choose(LineButton);
    move(picLX(), at(1, 1));
    EXPECT_EQ(ground(LineButton), QColor(0, 255, 255));
    press(picLX(), Qt::Key_Escape);
    move(window->palette(), window->palette().buttonRect(ContactButton).topLeft());
    EXPECT_EQ(ground(LineButton), QColor(Qt::white));
}

TEST_F(WindowTest, TheColourPanelDropsDownAndGivesItsColour) {
    click(find("cmdColors"));
    auto& picColors = find("picColors");
    ASSERT_TRUE(picColors.isVisible());
    click(picColors, QPointF(12 + 28, 12));  // the second cell
    EXPECT_FALSE(picColors.isVisible());
    EXPECT_EQ(editor().CurrentColor, editor().form.lblColor[1]);
    click(find("cmdColors"));
    picColors.close();  // as a press elsewhere does
    EXPECT_FALSE(editor().form.picColors.Visible);
}

TEST_F(WindowTest, BlackIsWhiteOnABlackPage) {
    choose(LineButton);
    clickPage(1, 2);
    clickPage(3, 2);
    press(picLX(), Qt::Key_Escape);
    EXPECT_EQ(shownAt(2, 2), QColor(Qt::black));
    trigger("mnuOptBlackBackground");
    EXPECT_EQ(shownAt(2, 2), QColor(Qt::white));
    EXPECT_EQ(shownAt(2, 2.5), QColor(Qt::black));
}

TEST_F(WindowTest, AnEmptyLabelShowsATickThatIsNoPartOfTheDrawing) {
    editor().drawing.labels.append({"", 3, 3, White, "Arial", 10, false, false});
    RedrawDrawing(editor());
    // So many inches on the screen beside the label's place.
    const auto inkAt = [&](double x, double y) {
        const double zoom = static_cast<double>(editor().ZoomFactor);
        const QImage shown = picLX().grab().toImage();
        const QPoint pixel = at(3 + x / zoom, 3 + y / zoom).toPoint();
        QColor darkest = Qt::white;
        for (const int dx : {-1, 0, 1})
            if (const QColor found = shown.pixelColor(pixel + QPoint(dx, 0));
                found.green() < darkest.green())
                darkest = found;
        return darkest;
    };
    const auto inked = [&](double x, double y) { return inkAt(x, y) != QColor(Qt::white); };
    editor().GridOn = false;
    for (int zoomed = 0; zoomed < 3; ++zoomed) {
        if (zoomed > 0) ZoomIn(editor());
        EXPECT_TRUE(inked(0.125, 0.125)) << zoomed;
        EXPECT_TRUE(inked(0.03, 0.22)) << zoomed;
        EXPECT_FALSE(inked(0.2, 0.2)) << zoomed;
        EXPECT_FALSE(inked(0.3, -0.05)) << zoomed;
    }
    ResetZoom(editor());
    EXPECT_EQ(canvas.persistentLayer().pixelColor(at(3.125, 3.125).toPoint()), QColor(Qt::white))
        << "on the drawing's layer";
    move(picLX(), at(3.1, 3.2));
    click(picLX(), at(3.1, 3.2));
    EXPECT_EQ(textOf("lblSelected"), "1 item selected");
    const QColor middle = inkAt(0.125, 0.125);
    EXPECT_GT(middle.red(), middle.green() + 60) << "magenta";
}

TEST_F(WindowTest, ScrollingMovesThePageUnderThePointer) {
    open(900, 620);
    auto& bar = find<QScrollBar>("VScroll1");
    ASSERT_TRUE(bar.isVisible());
    const QPointF before = at(2, 5);
    bar.setValue(200);
    EXPECT_EQ(editor().ScaleTop, 2);
    EXPECT_NEAR(before.y() - at(2, 5).y(), 2 * 96, 0.51);
    choose(ContactButton);
    clickPage(2, 5);
    ASSERT_EQ(devices().DeviceCount, 1);
    EXPECT_EQ(devices().DeviceY[0], 5);
    // At the end the page's lower edge stands off from the frame.
    bar.setValue(bar.maximum());
    EXPECT_NEAR(at(0, 11).y(), picLX().height() - QtCanvas::Margin, 2);
}

TEST_F(WindowTest, TheWheelScrollsTheOtherWayWithShiftAndZoomsWithCtrl) {
    open(900, 620);
    trigger("mnuLayoutLargeLandscape");
    choose(ContactButton);
    const QPointF pointer = at(3, 3);
    move(picLX(), pointer);
    const auto turn = [&](int angle, Qt::KeyboardModifiers modifiers) {
        const unsigned redraws = editor().form.LabelVersion;
        QWheelEvent event(pointer, picLX().mapToGlobal(pointer), QPoint(), QPoint(0, angle),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&picLX(), &event);
        settle();
        return editor().form.LabelVersion - redraws;
    };
    EXPECT_EQ(turn(-120, Qt::NoModifier), 1u) << "redraws";
    EXPECT_FLOAT_EQ(editor().ScaleTop, 1);
    EXPECT_EQ(find<QScrollBar>("VScroll1").value(), 100);
    EXPECT_EQ(textOf("lblCoords"), "X = 3, Y = 4") << "the pointer is over another point";
    EXPECT_TRUE(editor().form.pointer.LineV.Visible);
    EXPECT_EQ(turn(-60, Qt::ShiftModifier), 1u);
    EXPECT_FLOAT_EQ(editor().ScaleLeft, 0.5f);
    EXPECT_FLOAT_EQ(editor().ScaleTop, 1);
    EXPECT_EQ(turn(600, Qt::NoModifier), 1u);
    EXPECT_EQ(turn(120, Qt::NoModifier), 0u) << "at the head already";
    const Single x = canvas.inchesX(pointer.x()), y = canvas.inchesY(pointer.y());
    EXPECT_EQ(turn(60, Qt::ControlModifier), 0u) << "half a step";
    EXPECT_EQ(turn(60, Qt::ControlModifier), 1u);
    EXPECT_FLOAT_EQ(editor().ZoomFactor, 1.25f);
    EXPECT_NEAR(at(x, y).x(), pointer.x(), 0.6);
    EXPECT_NEAR(at(x, y).y(), pointer.y(), 0.6);
    EXPECT_EQ(editor().gesture.CurrentTool, ContactButton);
}

TEST_F(WindowTest, TheMiddleButtonDragsThePageAndTheSideButtonsDoNothing) {
    open(900, 620);
    trigger("mnuLayoutLargeLandscape");
    ScrollTo(editor(), 2, 3);
    const QPointF from = at(5, 5);
    choose(ContactButton);
    move(picLX(), from);
    hold(picLX(), from, Qt::MiddleButton);
    EXPECT_EQ(picLX().cursor().shape(), Qt::ClosedHandCursor);
    for (const QPointF way : {QPointF(10, 10), QPointF(48, 96)})
        move(picLX(), from + way, Qt::MiddleButton);
    EXPECT_NEAR(editor().ScaleLeft, 1.5, 1e-4);
    EXPECT_NEAR(editor().ScaleTop, 2, 1e-4);
    EXPECT_EQ(find<QScrollBar>("HScroll1").value(), 150);
    click(picLX(), from + QPointF(48, 96));
    release(picLX(), from, Qt::MiddleButton);
    EXPECT_EQ(devices().DeviceCount, 0);
    EXPECT_EQ(picLX().cursor().shape(), Qt::BitmapCursor) << "the tool's again";
    move(picLX(), from);
    EXPECT_NEAR(editor().ScaleLeft, 1.5, 1e-4) << "the page is let go";
    clickPage(4, 4);
    for (const auto button : {Qt::BackButton, Qt::ForwardButton})
        click(picLX(), at(4.5, 4), button);
    EXPECT_EQ(devices().DeviceCount, 1);
}

TEST_F(WindowTest, ZoomAndSnapButtonsActAndTellTheirState) {
    const auto face = [&](const char* name) {
        return find(name).palette().color(QPalette::Button);
    };
    click(find("cmdZoomIn"));
    EXPECT_EQ(face("cmdZoomIn"), QColor(0, 255, 255));
    const QCursor before = picLX().cursor();
    move(picLX(), at(2, 2));
    EXPECT_EQ(picLX().cursor().shape(), Qt::BitmapCursor);
    clickPage(2, 2);
    EXPECT_FLOAT_EQ(editor().ZoomFactor, 1.25f);
    click(find("cmdZoomOut"));
    EXPECT_NE(face("cmdZoomIn"), QColor(0, 255, 255));
    clickPage(2, 2);
    EXPECT_EQ(editor().ZoomFactor, 1);
    press(picLX(), Qt::Key_Escape);
    EXPECT_EQ(picLX().cursor().shape(), before.shape());
    press(picLX(), Qt::Key_Plus, "+", Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FLOAT_EQ(editor().ZoomFactor, 1.25f);

    click(find("cmdSnapHigher"));
    EXPECT_EQ(textOf("cmdSnap"), "Snap: 0.5");
    machine.dialogs.inputAnswers = {"0,1"};
    click(find("cmdSnap"));
    EXPECT_EQ(textOf("cmdSnap"), "Snap: 0.1");
    QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5),
                           find("cmdSnap").mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&find("cmdSnap"), &menu);
    EXPECT_EQ(textOf("cmdSnap"), "Snap: 0.25");
}

TEST_F(WindowTest, TheViewIsStretchedByItsRightMargin) {
    const int width = picLX().width();
    auto& handle = find("stretchHandle");
    EXPECT_FALSE(handle.isVisible());
    trigger("mnuEditStretch");
    ASSERT_TRUE(handle.isVisible());
    EXPECT_FALSE(find("VScroll1").isVisible());
    EXPECT_EQ(picLX().width(), width - handle.width());
    const QPointF grip(10, 100);
    move(handle, grip);
    EXPECT_EQ(handle.cursor().shape(), Qt::SizeHorCursor);
    hold(handle, grip);
    for (int i = 0; i < 4; ++i)  // the handle comes along
        move(handle, grip - QPointF(60, 0), Qt::LeftButton);
    release(handle, grip);
    EXPECT_EQ(picLX().width(), width - handle.width() - 240);
    EXPECT_EQ(handle.x(), picLX().width());
    EXPECT_NEAR(editor().VisibleWidth, (picLX().width() - 2 * QtCanvas::Margin) / 96.0, 1e-4);
    trigger("mnuEditStretch");
    EXPECT_FALSE(handle.isVisible());
    EXPECT_EQ(picLX().width(), width - handle.width() - 240);
    EXPECT_TRUE(find("VScroll1").isVisible());
}

TEST_F(WindowTest, TheSmallestScreenCutsNothingOff) {
    open(1008, 700);
    editor().form.lblMessage.Caption = std::string(300, 'M');
    window->refresh();
    settle();
    EXPECT_EQ(find("lblMessage").toolTip().size(), 300);
    for (const Short button : {Short{4}, SmallCircleButton}) {  // an arc has the widest panel
        choose(button);
        const QRect strip = find("picTop").rect();
        for (const QWidget* child : find("picTop").findChildren<QWidget*>()) {
            if (!child->isVisible() || child->window() != window.get()) continue;
            const QRect place(child->mapTo(&find("picTop"), QPoint(0, 0)), child->size());
            EXPECT_TRUE(strip.contains(place)) << child->objectName().toStdString();
            EXPECT_GE(child->width(), child->minimumSizeHint().width())
                << child->objectName().toStdString();
        }
    }
    // The rows that do not fit are a page turn away.
    ASSERT_TRUE(find("cmdNext").isVisible());
    const Short last = 91;
    EXPECT_TRUE(window->palette().buttonRect(last).isEmpty());
    click(find("cmdNext"));
    EXPECT_FALSE(window->palette().buttonRect(last).isEmpty());
    EXPECT_TRUE(window->palette().rect().contains(window->palette().buttonRect(last)));
}

}  // namespace
}  // namespace ladrix
