#include "Journey.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QWindow>

#include "app/Startup.h"
#include "platform/Encoding.h"
#include "qt/Application.h"
#include "qt/QtText.h"
#include "support/Paths.h"

namespace ladrix::test {

namespace {

constexpr int LongestWait = 10000;  // milliseconds; reached only by a failure
constexpr int Glance = 5;           // milliseconds between two looks for a dialog
constexpr int Patience = 500;       // milliseconds that the window manager is given

QWindow* windowOf(QWidget& widget) {
    QWindow* const window = widget.window()->windowHandle();
    if (!window || !widget.isVisible())
        throw std::logic_error("not on the screen: " + widget.objectName().toStdString());
    return window;
}

QPoint inWindow(QWidget& widget, QPoint point) {
    return widget.mapTo(widget.window(), point);
}

// When dialogs come and go fast the window manager may leave the keys with none: as a person would
// take the window that is on top, so does this.
QWindow* windowWithKeys() {
    if (!QTest::qWaitFor([] { return QApplication::activeWindow() != nullptr; }, Patience)) {
        QWidget* top = QApplication::activeModalWidget();
        for (QWidget* window : QApplication::topLevelWidgets())
            if (!top && window->isVisible() && window->objectName() == "frmLX") top = window;
        if (top) top->activateWindow();
    }
    if (!waitFor([] { return QApplication::activeWindow() != nullptr; }))
        throw std::logic_error("no window is active");
    return windowOf(*QApplication::activeWindow());
}

bool isReady(const QWidget& dialog) {
    return dialog.isVisible() && dialog.windowHandle() && dialog.windowHandle()->isExposed() &&
           dialog.isActiveWindow();
}

}  // namespace

bool waitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, LongestWait);
}

Home::Home() : formerHome_(qgetenv("HOME")) {
    folder_.makeFolder("home/Documents");
    for (const char* name : {"Demo1.els", "Demo2.els", "Template Ladder.tpl"}) {
        folder_.makeFolder("program");
        std::filesystem::copy(ProgramPath(name), folder_.native("program"));
    }
    qputenv("HOME", QByteArray::fromStdString(folder_.native("home").string()));
}

Home::~Home() {
    qputenv("HOME", formerHome_);
}

Journey::Journey(const Home& home) : shell_(machine_.shell, home.programFolder()) {
    machine_.platform.shell = &shell_;
    program_ = std::make_unique<Program>(machine_.platform);
    machine_.picLX.showPageOf(editor());
    if (!startProgram(*program_)) throw std::logic_error("the program did not start");
    window_ = std::make_unique<MainWindow>(*program_, machine_.picLX);
    connectPlatform(machine_, *program_, *window_);
    window_->resize(1240, 900);
    window_->show();
    window_->activateWindow();
    if (!QTest::qWaitForWindowActive(window_.get(), LongestWait))
        throw std::logic_error("the window does not become active");
    // Out of the way: only the test's own pointer counts.
    QCursor::setPos(window_->screen()->geometry().bottomRight());
    watchDialogs();
}

Journey::~Journey() {
    EXPECT_EQ(steps_.size(), 0u) << "a dialog that was waited for did not come";
    window_->hide();
}

std::string Journey::textOf(const char* name) {
    return find(name).property("text").toString().toStdString();
}

void Journey::move(QWidget& widget, QPoint to) {
    QTest::mouseMove(windowOf(widget), inWindow(widget, to));
}

void Journey::click(QWidget& widget, QPoint at, Qt::MouseButton button) {
    move(widget, at);
    QTest::mouseClick(windowOf(widget), button, {}, inWindow(widget, at));
}

void Journey::doubleClick(QWidget& widget, QPoint at) {
    move(widget, at);
    QTest::mouseDClick(windowOf(widget), Qt::LeftButton, {}, inWindow(widget, at));
}

void Journey::key(int key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(windowWithKeys(), static_cast<Qt::Key>(key), modifiers);
}

void Journey::type(const QString& text) {
    for (const QChar letter : text)
        QTest::keyClick(windowWithKeys(), letter.toLatin1());
}

QPoint Journey::at(double x, double y) const {
    return window_->canvas().pixelOf(static_cast<Single>(x), static_cast<Single>(y)).toPoint();
}

void Journey::clickPage(double x, double y) {
    moveOnPage(x, y);
    click(page(), at(x, y));
}

Short Journey::indexOf(const std::string& tag) const {
    const auto& buttons = program_->editor.form.cmdSym;
    for (std::size_t i = 0; i < buttons.size(); ++i)
        if (buttons[i].Visible && buttons[i].Tag == tag) return static_cast<Short>(i);
    throw std::logic_error("no button " + tag);
}

// Near the corner, where the pointer brings up no fly-out.
void Journey::press(const std::string& tag) {
    const QRect cell = window_->palette().buttonRect(indexOf(tag));
    if (cell.isEmpty()) throw std::logic_error("out of sight: " + tag);
    click(window_->palette(), cell.topLeft() + QPoint(3, 3));
}

void Journey::choose(const char* menu, const char* entry) {
    auto& popup = find<QMenu>(menu);
    click(*window_->menuBar(), window_->menuBar()->actionGeometry(popup.menuAction()).center());
    if (!waitFor([&] { return popup.isVisible(); }))
        throw std::logic_error(std::string("does not open: ") + menu);
    click(popup, popup.actionGeometry(&named<QAction>(*window_, entry)).center());
}

void Journey::close() {
    window_->close();
    QCoreApplication::processEvents();
}

// Watched at all times, also while a step acts on a dialog that brings up another.
void Journey::watchDialogs() {
    QTimer::singleShot(Glance, &watch_, [this] {
        auto* const dialog = QApplication::activeModalWidget();
        watchDialogs();
        if (!dialog || attended_.contains(dialog)) return;
        if (isReady(*dialog)) return attend(*dialog);
        if (++looks_ % (Patience / Glance) == 0) dialog->activateWindow();
    });
}

void Journey::attend(QWidget& dialog) {
    attended_.append(&dialog);
    if (steps_.empty()) {
        ADD_FAILURE() << "nobody waits for: " << dialog.objectName().toStdString() << " "
                      << dialog.windowTitle().toStdString() << " "
                      << dialog.property("text").toString().toStdString();
    } else {
        const Step step = std::move(steps_.front());
        steps_.pop_front();
        try {
            step(dialog);
        } catch (const std::exception& fault) {
            ADD_FAILURE() << fault.what();
        }
        EXPECT_FALSE(dialog.isVisible()) << "left open: " << dialog.windowTitle().toStdString();
    }
    if (dialog.isVisible()) static_cast<QDialog&>(dialog).reject();
    attended_.removeAll(&dialog);
}

void Journey::expectBox(const std::string& fragment, QMessageBox::StandardButton button) {
    expectDialog([fragment, button](QWidget& dialog) {
        auto* const box = qobject_cast<QMessageBox*>(&dialog);
        if (!box) throw std::logic_error("no message box: " + dialog.objectName().toStdString());
        EXPECT_NE(box->text().toStdString().find(fragment), std::string::npos)
            << box->text().toStdString();
        if (!box->button(button)) throw std::logic_error("no such button");
        click(*box->button(button));
    });
}

void Journey::saveInBrowser(const std::string& name) {
    expectDialog([name](QWidget& browser) {
        EXPECT_TRUE(named<QLineEdit>(browser, "txtSaveAs").hasFocus());
        type(toQString(name));
        click(named(browser, "cmdSaveAs"));
    });
}

void Journey::openInBrowser(const std::string& name) {
    expectDialog([name](QWidget& browser) {
        clickRow(browser, name);
        click(named(browser, "cmdOpenOK"));
    });
}

void Journey::clickRow(QWidget& browser, const std::string& name) {
    auto& list = named<QTreeView>(browser, "FileList1");
    const QModelIndexList rows =
        list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, toQString(name), 1,
                            Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (rows.isEmpty()) throw std::logic_error("not listed: " + name);
    list.scrollTo(rows.first());
    click(*list.viewport(), list.visualRect(rows.first()).center());
    // The list tells of a mark when the event that made it is over.
    QCoreApplication::processEvents();
}

}  // namespace ladrix::test
