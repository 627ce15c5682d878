// The machine on Qt: everything that the core asks for, built in one place.
#pragma once

#include <QLockFile>
#include <QTimer>
#include <map>
#include <memory>

#include "app/ShippedFiles.h"
#include "platform/DiskFiles.h"
#include "platform/Platform.h"
#include "qt/PageFile.h"
#include "qt/QtCanvas.h"
#include "qt/QtDialogs.h"
#include "qt/QtFonts.h"
#include "qt/QtImages.h"
#include "qt/QtPrinters.h"

namespace ladrix {

class QtClipboard final : public Clipboard {
  public:
    void Clear() override;
    void SetText(std::string_view text) override;
};

class QtShell final : public Shell {
  public:
    std::function<void()> ended;  // the core ends the run
    std::vector<NotPut> notPut;   // of the shipped files, when the program's folder was asked for

    explicit QtShell(Files& files) : files_(files) {}
    // Fills the folder from the installed files where there are such.
    std::string programFolder() override;
    std::string shippedFolder() override;
    std::string specialFolder(int number) override;
    std::string computerName() override;
    // By a lock file in the user's runtime folder, held as long as this lives.
    bool onlyInstance() override;
    bool open(const std::string& target) override;
    void createShortcut() override;
    void endProgram() override;

  private:
    Files& files_;
    ShippedFolders folders_;
    std::unique_ptr<QLockFile> lock_;
};

class QtTimers final : public Timers {
  public:
    std::function<void()> afterExpiry;  // the window shows the present state

    void start(int timer, int milliseconds, std::function<void()> expired) override;
    void stop(int timer) override;

  private:
    struct Entry {
        QTimer clock;
        std::function<void()> expired;
    };
    void expire(Entry& entry);

    std::map<int, Entry> timers_;
};

// Needs a QApplication. `platform` points into this object, which therefore stays put.
struct QtPlatform {
    QtPlatform();
    QtPlatform(const QtPlatform&) = delete;
    QtPlatform& operator=(const QtPlatform&) = delete;

    QtCanvas picLX;
    QtDialogs dialogs;
    DiskFiles files;
    QtClipboard clipboard;
    QtImages images;
    QtFonts fonts;
    QtShell shell{files};
    QtTimers timers;
    QtPageFiles pageFiles;
    std::function<void()> showForm;  // the form that is up shows the present state

    Platform platform;
    QtPrinters printers{platform};
};

}  // namespace ladrix
