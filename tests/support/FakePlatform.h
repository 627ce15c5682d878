// A complete platform for tests, without a display: what a person would answer is queued up before,
// what the program showed, opened or reported is looked at after.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "support/FakeDialogs.h"
#include "support/FaultyFiles.h"
#include "support/Recording.h"
#include "support/RecordingPrinter.h"
#include "support/TemporaryFolder.h"

namespace ladrix::test {

class FakeClipboard final : public Clipboard {
  public:
    std::string text;

    void Clear() override { text.clear(); }
    void SetText(std::string_view value) override { text = value; }
};

// Any file that exists loads as a picture of 96 by 96 pixels, whatever it holds, unless told
// otherwise by its name without a folder.
class FakeImages final : public Images {
  public:
    struct Size {
        int width = 96, height = 96;
    };
    explicit FakeImages(Files& files) : files_(files) {}

    std::map<std::string, Size> sizes;
    std::set<std::string> damaged;    // these throw
    std::vector<std::string> loaded;  // paths, failed ones too

    std::shared_ptr<const Picture> load(const std::string& path) override;
    // Any bytes that begin with "BM"; they stay with the picture, and bitmapText gives them back.
    std::shared_ptr<const Picture> fromBitmap(std::string_view bytes) override;
    // Of a picture that was drawn: what was drawn on it, a primitive a line behind "BM".
    std::string bitmapText(const Picture& picture) override;
    std::unique_ptr<PictureBox> makePicture(int width, int height) override;

  private:
    Files& files_;
};

// Every character is 0.6 of the size wide, a line 1.2 of it high.
class FakeFonts final : public Fonts {
  public:
    std::vector<std::string> names = {"Arial", "Courier New", "Symbol", "Times New Roman"};

    std::vector<std::string> families() override { return names; }
    Single textWidth(const FontSpec& font, std::string_view text) override;
    Single textHeight(const FontSpec& font) override;
};

class FakeShell final : public Shell {
  public:
    std::string program, shipped;        // with the separator at their end
    std::map<int, std::string> folders;  // without it, as a system gives them
    std::string computer = "TESTBENCH";
    bool isOnlyInstance = true;
    bool opens = true;

    std::vector<std::string> opened;  // failed ones too
    int shortcuts = 0;
    bool ended = false;

    std::string programFolder() override { return program; }
    std::string shippedFolder() override { return shipped; }
    std::string specialFolder(int number) override;
    std::string computerName() override { return computer; }
    bool onlyInstance() override { return isOnlyInstance; }
    bool open(const std::string& target) override;
    void createShortcut() override { ++shortcuts; }
    void endProgram() override { ended = true; }
};

// Time stands still until the test moves it.
class FakeTimers final : public Timers {
  public:
    bool running(int timer) const { return timers_.contains(timer); }
    // Of a running timer: what is left of its interval.
    int millisecondsLeft(int timer) const { return timers_.at(timer).left; }
    // Lets this much time pass; calls each timer that expires, the earliest first, those started
    // meanwhile too.
    void advance(int milliseconds);

    void start(int timer, int milliseconds, std::function<void()> expired) override;
    void stop(int timer) override { timers_.erase(timer); }

  private:
    struct Timer {
        int left = 0;
        std::function<void()> expired;
    };
    std::map<int, Timer> timers_;
};

// Pages as "pdf 8.5x11 Title" and the description of each primitive, a line each.
class FakePageFiles final : public PageFiles {
  public:
    std::string make(const PageContent& content, PageFormat format, double pixelsPerInch) override;
};

// The whole: `platform` is ready for use. It points into this object, which therefore stays put.
struct FakePlatform {
    struct Report {
        std::string description;
        int number = 0;
        std::string text;
    };

    FakePlatform();
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    // Holds the program's folder "program" and the user's "documents".
    TemporaryFolder folder;
    RecordingCanvas picLX;
    FakeDialogs dialogs;
    FaultyFiles files;
    FakeClipboard clipboard;
    FakeImages images{files};
    FakeFonts fonts;
    FakeShell shell;
    FakeTimers timers;
    RecordingPrinters printers;
    FakePageFiles pageFiles;
    int eventRuns = 0;  // times that events were let run
    std::function<void()> duringEvents;
    // Through the platform's first ReportError; a program that sets its own is not heard here.
    std::vector<Report> reports;

    Platform platform;
};

}  // namespace ladrix::test
