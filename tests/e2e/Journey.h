// The editor as a person uses it: the real window on the real machine, with a pointer, a keyboard
// and answers to what it asks. What is shown is read from the widgets, what is kept from the disk.
#pragma once

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QWidget>
#include <deque>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "app/Program.h"
#include "qt/MainWindow.h"
#include "qt/QtPlatform.h"
#include "support/TemporaryFolder.h"

namespace ladrix::test {

// A user's home and the program's folder with the shipped drawings, for as many runs as a test
// takes.
class Home {
  public:
    Home();
    ~Home();

    const TemporaryFolder& disk() const { return folder_; }
    // A file among the user's drawings, as a name of disk().
    static std::string drawing(const std::string& name) {
        return "home/Documents/Ladrix/Drawings/" + name;
    }
    std::string programFolder() const { return folder_ / "program/"; }

  private:
    TemporaryFolder folder_;
    QByteArray formerHome_;
};

// The real shell, but for the folder that the program works from.
class HomeShell final : public Shell {
  public:
    HomeShell(Shell& real, std::string programFolder)
        : real_(real), programFolder_(std::move(programFolder)) {}

    std::string programFolder() override { return programFolder_; }
    std::string shippedFolder() override { return ""; }
    std::string specialFolder(int number) override { return real_.specialFolder(number); }
    std::string computerName() override { return real_.computerName(); }
    bool onlyInstance() override { return real_.onlyInstance(); }
    bool open(const std::string&) override { return false; }
    void createShortcut() override { real_.createShortcut(); }
    void endProgram() override { real_.endProgram(); }

  private:
    Shell& real_;
    std::string programFolder_;
};

// One run of the program, from its start to its end.
class Journey {
  public:
    explicit Journey(const Home& home);
    // A failure if an answer was left over.
    ~Journey();

    Program& program() { return *program_; }
    Editor& editor() { return program_->editor; }
    MainWindow& window() { return *window_; }
    CanvasWidget& page() { return window_->canvas(); }
    bool hasEnded() const { return program_->Ending && !window_->isVisible(); }

    // Throws where there is none.
    template <class Widget = QWidget>
    static Widget& named(QWidget& window, const char* name) {
        auto* const found = window.findChild<Widget*>(QString::fromLatin1(name));
        if (!found) throw std::logic_error(std::string("no widget ") + name);
        return *found;
    }
    template <class Widget = QWidget>
    Widget& find(const char* name) {
        return named<Widget>(*window_, name);
    }
    std::string textOf(const char* name);
    std::string message() { return textOf("lblMessage"); }
    std::string title() const { return window_->windowTitle().toStdString(); }
    // The canvas as it stands on the screen.
    QImage picture() { return page().grab().toImage(); }

    // Pointer and keys, as the window system hands them to the window of the widget.
    static void move(QWidget& widget, QPoint to);
    static void click(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
    static void click(QWidget& widget) { click(widget, widget.rect().center()); }
    static void doubleClick(QWidget& widget, QPoint at);
    static void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void type(const QString& text);

    // Inches of the page.
    QPoint at(double x, double y) const;
    void moveOnPage(double x, double y) { move(page(), at(x, y)); }
    void clickPage(double x, double y);

    void press(const std::string& tag);  // a button of the palette
    Short indexOf(const std::string& tag) const;
    // Through the menu bar, entry by entry.
    void choose(const char* menu, const char* entry);
    void close();

    // What to do with the next dialog that asks for something. They come in the order given; one
    // that nobody waits for is a failure and is closed.
    using Step = std::function<void(QWidget&)>;
    void expectDialog(Step step) { steps_.push_back(std::move(step)); }
    void expectBox(const std::string& fragment, QMessageBox::StandardButton button);
    void saveInBrowser(const std::string& name);
    void openInBrowser(const std::string& name);
    std::size_t dialogsLeft() const { return steps_.size(); }

    // In the browser: the row of this name is clicked. Throws if it is not listed.
    static void clickRow(QWidget& browser, const std::string& name);

  private:
    void watchDialogs();
    void attend(QWidget& dialog);

    QtPlatform machine_;
    HomeShell shell_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<MainWindow> window_;
    std::deque<Step> steps_;
    QWidgetList attended_;  // the dialogs whose steps are under way, outermost first
    int looks_ = 0;         // at dialogs that were not ready for a step
    QObject watch_;         // ends the watching
};

// Handles events until the condition holds. False if it doesn't in reasonable time.
bool waitFor(const std::function<bool()>& condition);

}  // namespace ladrix::test
