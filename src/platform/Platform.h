// The seam: everything that the core asks of the machine, passed in as one Platform object. Events
// come in the other way, as calls of the handlers with plain values.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"
#include "platform/PageFiles.h"
#include "platform/Printer.h"
#include "platform/Surface.h"
#include "platform/Types.h"

namespace ladrix {

// Enter presses the first button; of the last kind No.
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel, YesNoDefaultNo };
enum class Answer { Ok, Cancel, Yes, No };

// The forms that the core can ask for, by their own names.
enum class Form {
    frmFile,
    frmDesc,
    frmLog,
    frmTextProps,
    frmFavorites,
    frmButtonColor,
    frmUS,
    frmUBRows,
    frmLibManager,
    frmFind,
    frmRemoved,
    frmLayout,
    frmPrinter,
    frmPrinters,
    frmPreview,
    frmHelp,
};

class Dialogs {
  public:
    virtual ~Dialogs() = default;
    // Modal. A box closed without a button answers Cancel (Ok for a plain box).
    virtual Answer message(std::string_view text, std::string_view title, Buttons buttons) = 0;
    // Modal, one line of text; nullopt if cancelled.
    virtual std::optional<std::string> input(std::string_view prompt, std::string_view title,
                                             std::string_view value) = 0;
    // Shows the form from its state and returns when its Visible has become false.
    virtual void show(Form form) = 0;
    // Shows the form beside the main window, or brings it to the front, and returns at once. It
    // stays until its Visible is false.
    virtual void open(Form form) = 0;
    // The pop-up of the menu's entries at the pointer; returns at once.
    virtual void popUp(std::string_view menuName) = 0;
};

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void Clear() = 0;
    virtual void SetText(std::string_view text) = 0;
};

class Images {
  public:
    virtual ~Images() = default;
    // Throws a Failure if the file is missing, damaged or larger than 100 million pixels. Where
    // pictures in use take too much memory it gives one that is shown as an empty frame.
    virtual std::shared_ptr<const Picture> load(const std::string& path) = 0;
    // The same from a Windows bitmap's bytes, the size held to 1 million pixels.
    virtual std::shared_ptr<const Picture> fromBitmap(std::string_view bytes) = 0;
    // The picture as an uncompressed 24-bit Windows bitmap. Throws a Failure for a picture that has
    // not come from here.
    virtual std::string bitmapText(const Picture& picture) = 0;
    // An empty picture to draw on; at least 1 by 1, at most 1 million pixels.
    virtual std::unique_ptr<PictureBox> makePicture(int width, int height) = 0;
};

class Fonts {
  public:
    virtual ~Fonts() = default;
    virtual std::vector<std::string> families() = 0;
    // Of one line of text, in inches of the paper at 96 pixels per inch.
    virtual Single textWidth(const FontSpec& font, std::string_view text) = 0;
    virtual Single textHeight(const FontSpec& font) = 0;
};

class Shell {
  public:
    virtual ~Shell() = default;
    // The folder of the running program, of the user's documents (5), of the virtual documents (12)
    // and of the user's pictures (39); "" where the platform has none.
    virtual std::string programFolder() = 0;
    // Where the files were installed that the program's folder was filled from; "" where that
    // folder is the only one.
    virtual std::string shippedFolder() = 0;
    virtual std::string specialFolder(int number) = 0;
    virtual std::string computerName() = 0;
    // False if another instance of the program is running.
    virtual bool onlyInstance() = 0;
    // Hands a document or an address to the platform's default application.
    virtual bool open(const std::string& target) = 0;
    // Puts a starter of the program on the user's desktop. Throws a Failure.
    virtual void createShortcut() = 0;
    // Ends the run: every open form is closed.
    virtual void endProgram() = 0;
};

class Timers {
  public:
    virtual ~Timers() = default;
    // Calls back once after the interval, from the event loop; starting again replaces it.
    virtual void start(int timer, int milliseconds, std::function<void()> expired) = 0;
    virtual void stop(int timer) = 0;
};

struct Screen {
    Single Width = 0, Height = 0;  // twips
    Single TwipsPerPixelX = 15, TwipsPerPixelY = 15;
};

struct Locale {
    char decimalMark = '.';
    std::function<std::string()> generalDate;  // the present date and time as the user writes them
};

// All parts are owned by whoever built the platform and outlive the Program.
struct Platform {
    Canvas* picLX = nullptr;
    Dialogs* dialogs = nullptr;
    Files* files = nullptr;
    Clipboard* clipboard = nullptr;
    Images* images = nullptr;
    Fonts* fonts = nullptr;
    Shell* shell = nullptr;
    Timers* timers = nullptr;
    Printers* printers = nullptr;
    PageFiles* pageFiles = nullptr;
    Screen screen;
    Locale locale;

    // The shared failure report; set by the program at start. Never throws.
    std::function<void(std::string_view description, const Failure& failure)> ReportError =
        [](std::string_view, const Failure&) {};

    // Runs a command's steps on its single error path. False if they failed.
    template <class Steps>
    bool attempt(std::string_view description, const Steps& steps) const {
        try {
            steps();
            return true;
        } catch (const Failure& failure) {
            ReportError(description, failure);
            return false;
        }
    }

    // Set by the machine: shows the present state and lets waiting events run. Cheap to call often.
    std::function<void()> LetEventsRun;
    void letEventsRun() const {
        if (LetEventsRun) LetEventsRun();
    }

    bool DecimalComma() const { return locale.decimalMark == ','; }

    // A plain box with an OK button.
    void tell(std::string_view text, std::string_view title = "Ladrix") const {
        dialogs->message(text, title, Buttons::Ok);
    }
};

}  // namespace ladrix
