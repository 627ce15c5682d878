// The main window, driven through its widgets by pointer and keys; what is checked is what a person
// would see and what the program then holds.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QStyle>
#include <QThread>
#include <QToolButton>
#include <QWheelEvent>

#include "ProgramOnQt.h"
#include "canvas/DrawingCommands.h"
#include "canvas/Keys.h"
#include "canvas/View.h"
#include "qt/KeyCodes.h"
#include "qt/MainWindow.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {
namespace {

constexpr Short LineButton = 3, SmallCircleButton = 8, ContactButton = 23;

void settle() {
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

void sendMouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
               Qt::MouseButtons held) {
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
    settle();
}

void move(QWidget& widget, QPointF at, Qt::MouseButtons held = Qt::NoButton) {
    sendMouse(widget, QEvent::MouseMove, at, Qt::NoButton, held);
}

void click(QWidget& widget, QPointF at, Qt::MouseButton button = Qt::LeftButton) {
    sendMouse(widget, QEvent::MouseButtonPress, at, button, button);
    sendMouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
}

void press(QWidget& widget, int key, const QString& text = {},
           Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(&widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(&widget, &up);
    settle();
}

class WindowTest : public test::ProgramOnQt {
  protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(startAnew());
        window = std::make_unique<MainWindow>(*program, canvas);
        open(1240, 900);
    }

    void open(int width, int height) {
        window->resize(width, height);
        window->show();
        window->activateWindow();
        QApplication::setActiveWindow(window.get());
        waitForRest(width);
        ASSERT_EQ(window->size(), QSize(width, height));
    }

    // A window manager takes its time, and may give a window its size in more than one step: the
    // frame is at rest when several looks in a row find it the same.
    void waitForRest(int width) {
        QElapsedTimer clock;
        clock.start();
        Single height = 0;
        for (int same = 0; same < 5 && clock.elapsed() < 5000;) {
            QThread::msleep(10);
            settle();
            const bool still =
                find("picBottom").width() == width && editor().form.FrameHeight == height;
            same = still ? same + 1 : 0;
            height = editor().form.FrameHeight;
        }
    }

    template <class Widget = QWidget>
    Widget& find(const char* name) {
        auto* widget = window->findChild<Widget*>(name);
        if (!widget) throw std::logic_error(std::string("no widget ") + name);
        return *widget;
    }

    QString textOf(const char* name) { return find(name).property("text").toString(); }

    Editor& editor() { return program->editor; }
    QWidget& picLX() { return window->canvas(); }
    QPointF at(double x, double y) {
        return window->canvas().pixelOf(static_cast<Single>(x), static_cast<Single>(y));
    }

    void choose(Short button) {
        const QRect cell = window->palette().buttonRect(button);
        ASSERT_FALSE(cell.isEmpty());
        click(window->palette(), cell.topLeft() + QPoint(2, 2));
    }

    void clickPage(double x, double y) {
        move(picLX(), at(x, y));
        click(picLX(), at(x, y));
    }

    QColor shownAt(double x, double y) {
        return window->canvas().grab().toImage().pixelColor(at(x, y).toPoint());
    }

    std::unique_ptr<MainWindow> window;
};

TEST_F(WindowTest, HasEveryControlByItsName) {
    for (const char* name :
         {"picLX",        "picFrame",      "HScroll1",       "VScroll1",       "picTop",
          "picBottom",    "picTools",      "picMoreSym",     "picMoreSymbols", "cmdSym",
          "cmdPrev",      "cmdNext",       "picColors",      "cmdColors",      "picSelectedColor",
          "cmbScale",     "picScale",      "cmdScaleOK",     "lblScale",       "cmdSnap",
          "cmdSnapLower", "cmdSnapHigher", "cmdZoomIn",      "cmdZoomOut",     "cmdCircle",
          "picRadius",    "txtRadius",     "txtCircleStart", "txtCircleEnd",   "lblCircle0",
          "lblCircle1",   "lblCircle2",    "cmdDrawWidth0",  "cmdDrawWidth1",  "cmdReset",
          "lblMessage",   "lblCoords",     "lblSelected",    "lblUndoCount",   "lblTime",
          "txtEdit",      "picText"})
        EXPECT_TRUE(window->findChild<QWidget*>(name)) << name;
    EXPECT_EQ(window->windowTitle(), toQString(editor().form.Caption));
    EXPECT_EQ(textOf("cmdSnap"), "Snap: 0.25");
}

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
    EXPECT_FALSE(editor().BandArmed) << "the canvas has seen no press";

    move(picLX(), at(2.5, 2.5));
    const QColor page = shownAt(3.4, 3.4);
    sendMouse(picLX(), QEvent::MouseButtonPress, at(2.5, 2.5), Qt::LeftButton, Qt::LeftButton);
    move(picLX(), at(3.5, 3.5), Qt::LeftButton);
    EXPECT_NE(shownAt(3.4, 3.4), page) << "the band";
    sendMouse(picLX(), QEvent::MouseButtonRelease, at(3.5, 3.5), Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(shownAt(3.4, 3.4), page);
    EXPECT_EQ(textOf("lblSelected"), "2 items selected");

    EXPECT_TRUE(mnuEditDelete.isEnabled());
    mnuEditDelete.trigger();
    settle();
    ASSERT_EQ(editor().drawing.devices.DeviceCount, 1);
    EXPECT_EQ(editor().drawing.devices.DeviceX[0], 6);
    EXPECT_FALSE(mnuEditDelete.isEnabled());
    find<QAction>("mnuEditUndo").trigger();
    settle();
    EXPECT_EQ(editor().drawing.devices.DeviceCount, 3);
}

TEST_F(WindowTest, APictureIsClickedAndDragged) {
    editor().drawing.PictureTable = {{2, 2, 1, 1, "a.png", "", false}};
    editor().drawing.PictureCount = 1;
    editor().img = {nullptr};
    click(picLX(), at(2.5, 2.5));
    EXPECT_EQ(textOf("lblSelected"), "1 item selected");
    EXPECT_EQ(shownAt(2, 2.5), QColor(Qt::magenta)) << "its mark";
    sendMouse(picLX(), QEvent::MouseButtonPress, at(2.5, 2.5), Qt::LeftButton, Qt::LeftButton);
    move(picLX(), at(4.5, 3), Qt::LeftButton);
    sendMouse(picLX(), QEvent::MouseButtonRelease, at(4.5, 3), Qt::LeftButton, Qt::NoButton);
    EXPECT_NEAR(editor().drawing.PictureTable[0].Left, 4, 0.01);
    EXPECT_NEAR(editor().drawing.PictureTable[0].Top, 2.5, 0.01);
    EXPECT_EQ(textOf("lblSelected"), "");
}

// The entries of one menu, as the command table has them.
std::vector<const Command*> rowsOf(Menu menu) {
    std::vector<const Command*> rows;
    for (const Command& row : commandTable())
        if (row.menu == menu && row.entry != menu) rows.push_back(&row);
    return rows;
}

TEST_F(WindowTest, MenusFollowTheCommandTable) {
    std::size_t menus = 0;
    for (const Command& top : commandTable()) {
        const auto rows = rowsOf(top.entry);
        if (rows.empty()) continue;
        ++menus;
        const auto* menu = window->findChild<QMenu*>(toQString(top.name));
        ASSERT_TRUE(menu) << top.name;
        EXPECT_EQ(menu->title(), toQString(top.caption));
        std::size_t i = 0;
        for (const QAction* entry : menu->actions()) {
            if (entry->isSeparator()) {
                EXPECT_TRUE(rows[i]->separatorBefore) << rows[i]->name;
                continue;
            }
            ASSERT_LT(i, rows.size()) << top.name;
            const Command& row = *rows[i++];
            EXPECT_EQ(entry->objectName(), toQString(row.name));
            EXPECT_EQ(entry->text(), toQString(row.caption));
            const bool shown = editor().form.menu[row.entry].Visible;
            EXPECT_EQ(entry->isVisible(), shown) << row.name;
            EXPECT_EQ(entry->isEnabled(), shown && isEnabled(*program, row)) << row.name;
            EXPECT_EQ(QKeySequence::listToString(entry->shortcuts()), toQString(row.shortcut))
                << row.name;
            EXPECT_EQ(entry->isChecked(), editor().form.menu[row.entry].Checked) << row.name;
        }
        EXPECT_EQ(i, rows.size()) << top.name;
    }
    EXPECT_GE(menus, 10u);
}

TEST_F(WindowTest, MenuEntriesShowWhatHandlersMadeOfThem) {
    auto* admin = window->findChild<QMenu*>("mnuAdmin")->menuAction();
    EXPECT_FALSE(admin->isVisible());
    machine.dialogs.inputAnswers = {"gravlock"};
    window->findChild<QAction*>("mnuHelpAdmin")->trigger();
    EXPECT_TRUE(admin->isVisible());

    auto* attach = window->findChild<QAction*>("mnuOptionAttachLabels");
    attach->trigger();
    EXPECT_FALSE(attach->isChecked());
    EXPECT_FALSE(editor().drawing.AttachLabels);

    // The mode in force stays checked, though the toolkit flips the mark at each choice.
    auto* normal = window->findChild<QAction*>("mnuModeNormal");
    normal->trigger();
    EXPECT_TRUE(normal->isChecked());
}

TEST_F(WindowTest, PlacesASymbolWithItsLabel) {
    choose(ContactButton);
    const std::string tag = editor().form.cmdSym[ContactButton].Tag;
    EXPECT_TRUE(textOf("lblMessage").startsWith(toQString(tag) + " Selected"));
    clickPage(2, 3);
    const DeviceTable& devices = editor().drawing.devices;
    ASSERT_EQ(devices.DeviceCount, 1);
    EXPECT_EQ(devices.DeviceX[0], 2);
    EXPECT_EQ(devices.DeviceY[0], 3);
    ASSERT_EQ(editor().form.lbl.size(), 1u);

    auto& txtEdit = find<QLineEdit>("txtEdit");
    ASSERT_TRUE(txtEdit.isVisible());
    EXPECT_TRUE(txtEdit.hasFocus());
    press(txtEdit, Qt::Key_7, "7");
    EXPECT_EQ(editor().form.lbl[0].Caption, "CR7") << "typed on behind the prefix";
    EXPECT_EQ(editor().drawing.labels.LabelText[0], "CR7");
    press(txtEdit, Qt::Key_Return, "\r");
    EXPECT_FALSE(txtEdit.isVisible());
    EXPECT_TRUE(picLX().hasFocus());
}

TEST_F(WindowTest, AGhostLeavesThePersistentLayerAlone) {
    choose(ContactButton);
    move(picLX(), at(2, 2));
    const QImage before = canvas.persistentLayer().copy();
    for (int i = 0; i < 20; ++i)
        move(picLX(), at(2 + i * 0.11, 2 + i * 0.07));
    EXPECT_EQ(canvas.persistentLayer(), before);
    move(picLX(), at(3, 3));
    const QImage withGhost = window->canvas().grab().toImage();
    EXPECT_NE(withGhost.copy(before.rect()), before);
    press(picLX(), Qt::Key_Escape);
    EXPECT_EQ(window->canvas().grab().toImage().convertToFormat(before.format()), before);

    choose(ContactButton);
    clickPage(3, 3);
    EXPECT_NE(canvas.persistentLayer(), before);
    move(picLX(), at(5, 5));
    EXPECT_TRUE(editor().form.pointer.LineV.Visible);
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

TEST_F(WindowTest, ADoubleClickEndsALineWithoutASecondPress) {
    choose(LineButton);
    clickPage(1, 1);
    clickPage(3, 1);
    EXPECT_EQ(editor().drawing.devices.DeviceCount, 1);
    sendMouse(picLX(), QEvent::MouseButtonDblClick, at(3, 1), Qt::LeftButton, Qt::LeftButton);
    sendMouse(picLX(), QEvent::MouseButtonRelease, at(3, 1), Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(editor().drawing.devices.DeviceCount, 1);
    EXPECT_EQ(editor().CurrentTool, LineButton);
    EXPECT_EQ(editor().LineStartX, NoPoint);
}

TEST_F(WindowTest, EscapeResetsFromWhereverTheFocusIs) {
    const auto armed = [&](Short button) {
        choose(button);
        EXPECT_EQ(editor().CurrentTool, button);
    };
    armed(LineButton);
    press(picLX(), Qt::Key_Escape);
    EXPECT_EQ(editor().CurrentTool, -1);

    armed(SmallCircleButton);
    auto& txtRadius = find<QLineEdit>("txtRadius");
    ASSERT_TRUE(txtRadius.isVisible());
    txtRadius.setFocus();
    press(txtRadius, Qt::Key_Escape, "\x1b");
    EXPECT_EQ(editor().CurrentTool, -1);
    EXPECT_FALSE(txtRadius.isVisible());

    armed(LineButton);
    click(find("cmdReset"), QPointF(10, 10));
    EXPECT_EQ(editor().CurrentTool, -1);
    EXPECT_TRUE(textOf("lblMessage").startsWith("Drawing Reset and Ready."));
}

TEST_F(WindowTest, KeysReachTheFormAndThenTheCanvas) {
    choose(ContactButton);
    press(picLX(), Qt::Key_Right);
    EXPECT_EQ(editor().CurrentTool, ContactButton + 1);
    press(picLX(), Qt::Key_Left, {}, Qt::ControlModifier);
    EXPECT_EQ(textOf("cmdSnap"), "Snap: 0.125");
    press(picLX(), Qt::Key_R, {}, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(editor().CurrentColor, Red);
    EXPECT_EQ(find("picSelectedColor").palette().color(QPalette::Button), QColor(Qt::red));
    // In a text field the arrows are the field's.
    choose(SmallCircleButton);
    auto& txtEdit = find<QLineEdit>("txtEdit");
    editor().TextBoxFocused = true;
    press(txtEdit, Qt::Key_Right);
    EXPECT_EQ(editor().CurrentTool, SmallCircleButton);
}

TEST_F(WindowTest, FieldsLetNothingInThatTheirTextCannotHold) {
    auto& txtEdit = find<QLineEdit>("txtEdit");
    txtEdit.setText({});
    txtEdit.insert(QString::fromUtf8("A\tB\xC3\xBF\xCE\xA9\xF0\x9F\x98\x80 \xC3\xA9\xE2\x82\xAC"));
    EXPECT_EQ(txtEdit.text(), QString::fromUtf8("AB \xC3\xA9\xE2\x82\xAC"));
    choose(SmallCircleButton);
    auto& txtRadius = find<QLineEdit>("txtRadius");
    txtRadius.selectAll();
    for (const QChar key : QString("-0x.2e5"))
        press(txtRadius, 0, key);
    EXPECT_EQ(txtRadius.text(), "0.25");
    EXPECT_EQ(editor().CircleRadius, 0.25f);
    auto& cmbScale = find<QComboBox>("cmbScale");
    EXPECT_EQ(cmbScale.count(), 12);
    cmbScale.lineEdit()->selectAll();
    for (const QChar key : QString("1.a1"))
        press(*cmbScale.lineEdit(), 0, key);
    click(find("cmdScaleOK"), QPointF(5, 5));
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
    EXPECT_EQ(editor().CurrentTool, index);
    // The corner mark opens it too, without choosing the tool anew.
    press(picLX(), Qt::Key_Escape);
    click(window->palette(), cell.bottomRight() - QPoint(3, 3));
    EXPECT_TRUE(flyOut.isVisible());
    EXPECT_EQ(editor().CurrentTool, -1);
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
    click(find("cmdColors"), QPointF(5, 5));
    auto& picColors = find("picColors");
    ASSERT_TRUE(picColors.isVisible());
    click(picColors, QPointF(12 + 28, 12));  // the second cell
    EXPECT_FALSE(picColors.isVisible());
    EXPECT_EQ(editor().CurrentColor, editor().form.lblColor[1]);
    click(find("cmdColors"), QPointF(5, 5));
    picColors.close();  // as a press elsewhere does
    EXPECT_FALSE(editor().form.picColors.Visible);
}

TEST_F(WindowTest, BlackIsWhiteOnABlackPage) {
    choose(LineButton);
    clickPage(1, 2);
    clickPage(3, 2);
    press(picLX(), Qt::Key_Escape);
    EXPECT_EQ(shownAt(2, 2), QColor(Qt::black));
    window->findChild<QAction*>("mnuOptBlackBackground")->trigger();
    settle();
    EXPECT_EQ(shownAt(2, 2), QColor(Qt::white));
    EXPECT_EQ(shownAt(2, 2.5), QColor(Qt::black));
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
    ASSERT_EQ(editor().drawing.devices.DeviceCount, 1);
    EXPECT_EQ(editor().drawing.devices.DeviceY[0], 5);
    // At the end the page's lower edge stands off from the frame.
    bar.setValue(bar.maximum());
    EXPECT_NEAR(at(0, 11).y(), picLX().height() - QtCanvas::Margin, 2);
}

TEST_F(WindowTest, TheWheelScrollsTheOtherWayWithShiftAndZoomsWithCtrl) {
    open(900, 620);
    window->findChild<QAction*>("mnuLayoutLargeLandscape")->trigger();
    settle();
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
    EXPECT_EQ(editor().CurrentTool, ContactButton);
}

TEST_F(WindowTest, TheMiddleButtonDragsThePageAndTheSideButtonsDoNothing) {
    open(900, 620);
    window->findChild<QAction*>("mnuLayoutLargeLandscape")->trigger();
    settle();
    ScrollTo(editor(), 2, 3);
    const QPointF from = at(5, 5);
    choose(ContactButton);
    move(picLX(), from);
    sendMouse(picLX(), QEvent::MouseButtonPress, from, Qt::MiddleButton, Qt::MiddleButton);
    EXPECT_EQ(picLX().cursor().shape(), Qt::ClosedHandCursor);
    for (const QPointF way : {QPointF(10, 10), QPointF(48, 96)})
        move(picLX(), from + way, Qt::MiddleButton);
    EXPECT_NEAR(editor().ScaleLeft, 1.5, 1e-4);
    EXPECT_NEAR(editor().ScaleTop, 2, 1e-4);
    EXPECT_EQ(find<QScrollBar>("HScroll1").value(), 150);
    click(picLX(), from + QPointF(48, 96));
    sendMouse(picLX(), QEvent::MouseButtonRelease, from, Qt::MiddleButton, Qt::NoButton);
    EXPECT_EQ(editor().drawing.devices.DeviceCount, 0);
    EXPECT_EQ(picLX().cursor().shape(), Qt::BitmapCursor) << "the tool's again";
    move(picLX(), from);
    EXPECT_NEAR(editor().ScaleLeft, 1.5, 1e-4) << "the page is let go";
    clickPage(4, 4);
    for (const auto button : {Qt::BackButton, Qt::ForwardButton})
        click(picLX(), at(4.5, 4), button);
    EXPECT_EQ(editor().drawing.devices.DeviceCount, 1);
}

TEST_F(WindowTest, ZoomAndSnapButtonsActAndTellTheirState) {
    const auto face = [&](const char* name) {
        return find(name).palette().color(QPalette::Button);
    };
    click(find("cmdZoomIn"), QPointF(5, 5));
    EXPECT_EQ(face("cmdZoomIn"), QColor(0, 255, 255));
    const QCursor before = picLX().cursor();
    move(picLX(), at(2, 2));
    EXPECT_EQ(picLX().cursor().shape(), Qt::BitmapCursor);
    clickPage(2, 2);
    EXPECT_FLOAT_EQ(editor().ZoomFactor, 1.25f);
    click(find("cmdZoomOut"), QPointF(5, 5));
    EXPECT_NE(face("cmdZoomIn"), QColor(0, 255, 255));
    clickPage(2, 2);
    EXPECT_EQ(editor().ZoomFactor, 1);
    press(picLX(), Qt::Key_Escape);
    EXPECT_EQ(picLX().cursor().shape(), before.shape());
    press(picLX(), Qt::Key_Plus, "+", Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FLOAT_EQ(editor().ZoomFactor, 1.25f);

    click(find("cmdSnapHigher"), QPointF(5, 5));
    EXPECT_EQ(textOf("cmdSnap"), "Snap: 0.5");
    machine.dialogs.inputAnswers = {"0,1"};
    click(find("cmdSnap"), QPointF(5, 5));
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
    window->findChild<QAction*>("mnuEditStretch")->trigger();
    settle();
    ASSERT_TRUE(handle.isVisible());
    EXPECT_FALSE(find("VScroll1").isVisible());
    EXPECT_EQ(picLX().width(), width - handle.width());
    const QPointF grip(10, 100);
    move(handle, grip);
    EXPECT_EQ(handle.cursor().shape(), Qt::SizeHorCursor);
    sendMouse(handle, QEvent::MouseButtonPress, grip, Qt::LeftButton, Qt::LeftButton);
    for (int i = 0; i < 4; ++i)  // the handle comes along
        move(handle, grip - QPointF(60, 0), Qt::LeftButton);
    sendMouse(handle, QEvent::MouseButtonRelease, grip, Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(picLX().width(), width - handle.width() - 240);
    EXPECT_EQ(handle.x(), picLX().width());
    EXPECT_NEAR(editor().VisibleWidth, (picLX().width() - 2 * QtCanvas::Margin) / 96.0, 1e-4);
    window->findChild<QAction*>("mnuEditStretch")->trigger();
    settle();
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
    click(find("cmdNext"), QPointF(5, 5));
    EXPECT_FALSE(window->palette().buttonRect(last).isEmpty());
    EXPECT_TRUE(window->palette().rect().contains(window->palette().buttonRect(last)));
}

TEST_F(WindowTest, ClosesOnlyWhenNothingIsLost) {
    choose(ContactButton);
    clickPage(2, 2);
    machine.dialogs.answers = {Answer::Cancel};
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(program->Ending);
    machine.dialogs.answers = {Answer::No};
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(program->Ending);
}

TEST(ClassicKeys, AreToldByCodeAndShiftState) {
    const auto code = [](int key) {
        return classicKeyCode(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
    };
    EXPECT_EQ(code(Qt::Key_Escape), key::Escape);
    EXPECT_EQ(code(Qt::Key_Enter), key::Enter);
    EXPECT_EQ(code(Qt::Key_PageDown), key::PageDown);
    EXPECT_EQ(code(Qt::Key_Equal), key::Plus);
    EXPECT_EQ(code(Qt::Key_Plus), key::Plus);
    EXPECT_EQ(code(Qt::Key_V), 'V');
    EXPECT_EQ(code(Qt::Key_Shift), 0);
    EXPECT_EQ(classicShift(Qt::ControlModifier | Qt::AltModifier), ControlAlt);
    EXPECT_EQ(classicShift(Qt::ShiftModifier), ShiftKey);
}

}  // namespace
}  // namespace ladrix
