#include "output/PrintDrawing.h"

#include <cmath>

#include "output/KeepToolState.h"
#include "platform/Numbers.h"
#include "symbols/FreeShapes.h"

namespace ladrix {

namespace {

constexpr Single FontStep = 0.25f;          // points by which a label shrinks
constexpr Single HeightSlack = 0.0005f;     // inches that two ways of measuring may differ
constexpr std::size_t ItemsPerReport = 16;  // between two chances for events
constexpr std::string_view LedgerKey = "11x17Landscape";

enum StatusSlot : std::size_t { Reading, SettingPaper, SecondAttempt, Refused, Reported };

struct PaperRow {
    std::string_view prefix;
    Short code;
};

constexpr std::array<PaperRow, 12> PaperTable{{{"7.5x10.5", 7},
                                               {"8.5x11", 1},
                                               {"8.5x13", 14},
                                               {"8.5x14", 5},
                                               {"10x14", 16},
                                               {"11x17", 3},
                                               {"17x22", 24},
                                               {"182x257", 13},
                                               {"210x297", 9},
                                               {"215x275", 15},
                                               {"250x354", 12},
                                               {"297x420", 8}}};

Long onWhitePaper(Long color) {
    return color == White ? Black : color;
}

// ---- One page

class PagePrint {
  public:
    PagePrint(Editor& editor, Printer& printer, Short lineWeight,
              const std::function<void(Single)>& progress)
        : editor_(editor),
          printer_(printer),
          lineWeight_(lineWeight),
          width_(printer.ScaleWidth()),
          height_(printer.ScaleHeight()),
          progress_(progress) {}

    void run() {
        printer_.ForeColor = Black;
        printer_.PSet(0.25f, 0.25f, Black);  // a page without a drawing is a page too
        for (Short i = 0; i < editor_.drawing.labels.LabelCount; ++i)
            printLabel(i);
        for (Short i = 0; i < editor_.drawing.devices.DeviceCount; ++i)
            printDevice(i);
        printPictures();
    }

  private:
    bool onPage(Single x, Single y) const { return x >= 0 && x < width_ && y >= 0 && y < height_; }

    void printLabel(Short index) {
        const Label label = editor_.drawing.labels.row(index);
        countItem();
        if (!onPage(label.x, label.y)) return;
        const FontSpec usual{"Arial", 8, false, false};
        printer_.SetFont(usual);
        if (!label.fontName.empty())
            printer_.SetFont({label.fontName, label.fontSize, label.bold, label.italic});
        shrinkTo(shownHeight(index), label.text);
        printer_.CurrentX = label.x;
        printer_.CurrentY = label.y;
        printer_.ForeColor = onWhitePaper(label.color);
        printer_.Print(label.text);
    }

    // Of the label on the screen, in inches of the page.
    Single shownHeight(Short index) const {
        const auto row = static_cast<std::size_t>(index);
        const FontSpec shown =
            row < editor_.form.lbl.size() ? editor_.form.lbl[row].Font : printer_.Font();
        const Single zoom = row < editor_.form.lbl.size() ? editor_.ZoomFactor : 1;
        return editor_.platform.fonts->textHeight(shown) / zoom;
    }

    // Stops where the printer has no smaller size.
    void shrinkTo(Single shown, const std::string& text) {
        Single height = printer_.TextHeight(text);
        while (height > shown + HeightSlack) {
            const Single size = printer_.Font().size - FontStep;
            if (!(size > 0)) return;
            printer_.SetFontSize(size);
            const Single former = std::exchange(height, printer_.TextHeight(text));
            if (!(height < former)) return;
        }
    }

    void printDevice(Short index) {
        const DeviceTable& devices = editor_.drawing.devices;
        const auto row = static_cast<std::size_t>(index);
        countItem();
        if (!onPage(devices.DeviceX[row], devices.DeviceY[row])) return;
        printer_.DrawWidth = lineWeight_;
        const Long color = devices.DeviceColor[row];
        if (freeShapeOf(devices.DeviceName[row]) != FreeShape::Line) {
            drawRow(editor_.symbols, editor_.drawing, editor_.platform, printer_, devices, index,
                    color);
            return;
        }
        if (devices.DeviceWidthTag[row] == "DrawWidth=2")
            printer_.DrawWidth = static_cast<Short>(2 * lineWeight_);
        loadBlock(editor_.symbols.block, devices, index, onWhitePaper(color));
        editor_.symbols.block.obj = &printer_;
        drawFreeShape(FreeShape::Line, editor_.symbols, editor_.platform);
    }

    void printPictures() {
        const std::vector<PictureRow>& rows = editor_.drawing.PictureTable;
        for (std::size_t i = 0; i < rows.size() && i < editor_.img.size(); ++i)
            if (editor_.img[i])
                printer_.PaintPicture(*editor_.img[i], rows[i].Left, rows[i].Top, rows[i].Width,
                                      rows[i].Height, SourceAnd);
    }

    void countItem() {
        const auto all = static_cast<std::size_t>(editor_.drawing.labels.LabelCount) +
                         static_cast<std::size_t>(editor_.drawing.devices.DeviceCount);
        if (++items_ % ItemsPerReport == 0 && progress_)
            progress_(static_cast<Single>(items_) / static_cast<Single>(all));
    }

    Editor& editor_;
    Printer& printer_;
    Short lineWeight_;
    Single width_, height_;
    const std::function<void(Single)>& progress_;
    std::size_t items_ = 0;
};

// ---- The whole run

class PrintRun {
  public:
    PrintRun(Editor& editor, Printing& printing)
        : editor_(editor), printing_(printing), printer_(editor.platform.printers->current()) {}

    void run() {
        if (!printer_.StartDoc(document())) return;
        printing_.Running = true;
        printing_.PrintStatus = {};
        try {
            readPrinter();
            setPaper();
            editor_.drawing.NoRecord = true;
            printCopies();
            finish();
        } catch (const Failure& failure) {
            giveUp(failure);
        }
        printing_.Running = false;
    }

  private:
    PrintDocument document() const {
        const Drawing& drawing = editor_.drawing;
        const char separator = editor_.platform.files->separator();
        if (drawing.CurrentFileName.empty())
            return {"Untitled", editor_.BasePath + "Drawings" + separator + "Untitled"};
        const std::string stem(nameWithoutExtension(drawing.CurrentFileName));
        return {drawing.CurrentFileName, drawing.CurrentFolder + stem};
    }

    std::string statusText(std::string_view start) const {
        std::string text(start);
        for (std::size_t slot = 0; slot < printing_.PrintStatus.size(); ++slot)
            text += (slot == 0 ? "" : ": ") + longText(printing_.PrintStatus[slot]);
        return text;
    }

    void setStatus(StatusSlot slot, Long value) {
        printing_.PrintStatus[slot] = value;
        editor_.form.lblMessage.Caption = statusText("printer Status: ");
    }

    // A value that the printer refuses is reported and the next step goes on without it.
    template <class Step>
    void attempt(const Step& step) {
        try {
            step();
        } catch (const Failure& failure) {
            printing_.PrintStatus[Reported] = 4;
            report("Printer Error 4: ", failure);
            if (failure.number != failure::InvalidProperty) throw;
            retry_ = true;
            setStatus(Refused, 3);
        }
    }

    void report(std::string_view start, const Failure& failure) const {
        editor_.platform.ReportError(
            std::string(start) + longText(failure.number) + ", " + failure.text, failure);
    }

    void readPrinter() {
        setStatus(Reading, 1);
        attempt([this] { drawWidth_ = printer_.DrawWidth; });
        attempt([this] { orientation_ = printer_.Orientation(); });
        attempt([this] { paperSize_ = printer_.PaperSize(); });
        attempt([this] { scaleMode_ = printer_.ScaleMode(); });
        attempt([this] { printer_.SetOrientation(PortraitPaper); });
        setStatus(Reading, 0);
    }

    void setPaper() {
        setStatus(SettingPaper, 1);
        takePaper(paperFor(editor_.drawing.PageLayoutKey));
        setStatus(SettingPaper, 0);
        if (!retry_ || editor_.drawing.PageLayoutKey != LedgerKey) return;
        setStatus(SecondAttempt, 2);
        takePaper({3, LandscapePaper});
        setStatus(SecondAttempt, 0);
    }

    void takePaper(Paper paper) {
        attempt([&] { printer_.SetPaperSize(paper.PaperSize); });
        if (paper.Orientation != PortraitPaper)
            attempt([&] { printer_.SetOrientation(paper.Orientation); });
        attempt([&] { printer_.SetScaleMode(UserScale); });
        attempt([&] { printer_.SetScaleWidth(editor_.PageWidth); });
        attempt([&] { printer_.SetScaleHeight(editor_.PageHeight); });
    }

    void printCopies() {
        for (Short copy = 0; copy < printing_.PrintCopies; ++copy) {
            tellCopy(copy);
            editor_.platform.letEventsRun();
            if (printing_.CancelPrint) return;
            if (copy > 0) printer_.NewPage();
            printPage(editor_, printer_, printing_.PrintLineWeight, [&](Single share) {
                const auto done = static_cast<Single>(copy) + share;
                printing_.frmPrinter.Progress = done / static_cast<Single>(printing_.PrintCopies);
                editor_.platform.letEventsRun();
            });
        }
    }

    void tellCopy(Short copy) const {
        if (printing_.frmPrinter.Visible)
            printing_.frmPrinter.lblPrinting.Caption =
                "Printing " + longText(copy + 1) + " of " + longText(printing_.PrintCopies);
    }

    void finish() {
        printer_.DrawWidth = drawWidth_;
        restoreFont();
        const std::string outcome = printer_.EndDoc();
        tellOutcome(outcome);
        restorePaper();
        printing_.CancelPrint = false;
        printing_.frmPrinter.Visible = false;
        printing_.PrintCopies = 1;
        editor_.drawing.NoRecord = false;
    }

    void restoreFont() {
        const auto usual = static_cast<Single>(editor_.drawing.DefaultFontSize);
        printer_.SetFontSize(usual);
        printer_.SetFontName(editor_.drawing.DefaultFontName);
        printer_.SetFontSize(usual);
        const Single size = printer_.Font().size;
        if (!(size < usual - 1)) return;
        editor_.platform.tell("oops... printer font size is different. " +
                              singleText(size, editor_.platform.locale.decimalMark) +
                              "\r\nA repair is being attempted.");
        printer_.SetFontSize(usual + 1);
    }

    void tellOutcome(const std::string& outcome) {
        const char mark = editor_.platform.locale.decimalMark;
        const std::string status = statusText("Printer Status: ") + ": " +
                                   editor_.drawing.PageLayoutKey + ": " +
                                   singleText(printer_.ScaleWidth(), mark) + ": " +
                                   singleText(printer_.ScaleHeight(), mark);
        editor_.form.lblMessage.Caption = outcome.empty() ? status : outcome + ". " + status;
    }

    void restorePaper() {
        printer_.SetPaperSize(paperSize_);
        printer_.SetOrientation(orientation_);
        printer_.SetScaleMode(scaleMode_);
    }

    void giveUp(const Failure& failure) {
        report("Printing Drawing: ", failure);
        editor_.drawing.NoRecord = false;
        const auto quietly = [](const auto& step) {
            try {
                step();
            } catch (const Failure&) {
                // It has been told that this print failed, and why.
            }
        };
        printer_.Abandon();
        quietly([this] { printer_.EndDoc(); });
        quietly([this] { printer_.SetPaperSize(paperSize_); });
        quietly([this] { printer_.SetOrientation(orientation_); });
        quietly([this] { printer_.SetScaleMode(scaleMode_); });
    }

    Editor& editor_;
    Printing& printing_;
    Printer& printer_;
    Short drawWidth_ = 1, orientation_ = PortraitPaper, paperSize_ = 1, scaleMode_ = TwipScale;
    bool retry_ = false;
};

}  // namespace

Paper paperFor(std::string_view pageKey) {
    if (pageKey == LedgerKey) return {4, PortraitPaper};  // wide by itself
    Paper paper;
    for (const PaperRow& row : PaperTable)
        if (pageKey.starts_with(row.prefix)) paper.PaperSize = row.code;
    if (pageKey.ends_with("Landscape")) paper.Orientation = LandscapePaper;
    return paper;
}

void printPage(Editor& editor, Printer& printer, Short lineWeight,
               const std::function<void(Single)>& progress) {
    const KeepToolState keep(editor.symbols);
    editor.symbols.printer = &printer;
    PagePrint(editor, printer, lineWeight, progress).run();
}

void PrintDrawing(Editor& editor, Printing& printing) {
    PrintRun(editor, printing).run();
}

}  // namespace ladrix
