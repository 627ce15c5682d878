// A printer that keeps everything that is set and drawn as lines of a log, and fails where a test
// wants it to.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Printer.h"
#include "support/Recording.h"

namespace ladrix::test {

// Letter paper, printable to its edges. A line of text is 1.2 times its size high.
class RecordingPrinter final : public Printer {
  public:
    // "Orientation 1", "PaperSize 3", "ScaleWidth 8.5", "Font Arial 8 bold", "PSet 0.25,0.25",
    // "Print 1,2 \"1CR\" color 0", "NewPage", "EndDoc", and primitives as describe() tells them.
    std::vector<std::string> log;
    // The entries that begin with this.
    std::vector<std::string> logged(std::string_view start) const;

    // From now on every step whose entry would begin with `step` raises the failure; reading a
    // property is the step "read PaperSize".
    void fail(std::string step, Failure failure) { faults_.push_back({std::move(step), failure}); }
    void heal() { faults_.clear(); }

    bool takesDocuments = true;  // what StartDoc answers
    std::string outcome;         // what EndDoc tells
    bool abandoned = false;
    Single smallestFont = 0;    // a smaller size becomes this
    Single largestFont = 1000;  // a larger one this
    Single marginShare = 0;     // of the paper's width and height that is not printable
    std::string deviceName = "PDF file";
    std::vector<PrintDocument> documents;

    bool StartDoc(const PrintDocument& document) override;
    std::string DeviceName() const override { return deviceName; }
    Short Orientation() const override { return read("Orientation", orientation_); }
    void SetOrientation(Short orientation) override;
    Short PaperSize() const override { return read("PaperSize", paperSize_); }
    void SetPaperSize(Short code) override;
    Short ScaleMode() const override { return read("ScaleMode", scaleMode_); }
    void SetScaleMode(Short mode) override;
    Single ScaleWidth() const override { return read("ScaleWidth", scaleWidth_); }
    void SetScaleWidth(Single width) override;
    Single ScaleHeight() const override { return read("ScaleHeight", scaleHeight_); }
    void SetScaleHeight(Single height) override;
    FontSpec Font() const override { return read("Font", font_); }
    void SetFont(const FontSpec& font) override;
    Single TextWidth(std::string_view text) override;
    Single TextHeight(std::string_view text) override;
    void PSet(Single x, Single y, Long color) override;
    void Print(std::string_view text) override;
    void Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) override;
    void Circle(Single x, Single y, Single radius, Long color, Single aspect) override;
    void Arc(Single x, Single y, Single radius, Long color, double start, double end,
             Single aspect) override;
    void PaintPicture(const Picture& picture, Single x, Single y, Single width, Single height,
                      Long rasterMode) override;
    void NewPage() override { enter("NewPage"); }
    std::string EndDoc() override;
    void Abandon() override { abandoned = true; }

  private:
    struct Fault {
        std::string step;
        Failure failure;
    };
    void enter(std::string entry);
    void raise(std::string_view entry) const;
    void keep(Primitive primitive);
    Single unitsPerInch() const;
    template <class Value>
    Value read(std::string_view name, Value value) const {
        raise("read " + std::string(name));
        return value;
    }

    std::vector<Fault> faults_;
    Short orientation_ = PortraitPaper, paperSize_ = 1, scaleMode_ = TwipScale;
    Single scaleWidth_ = 12240, scaleHeight_ = 15840;
    FontSpec font_{"Arial", 8, false, false};
};

// The last name is the present printer until another one is chosen.
class RecordingPrinters final : public Printers {
  public:
    std::vector<std::string> names{"Office", "PDF file"};
    RecordingPrinter printer;
    int refreshes = 0;

    void refresh() override { ++refreshes; }
    std::vector<std::string> list() const override { return names; }
    RecordingPrinter& current() override { return printer; }
    bool choose(std::string_view name) override;
};

}  // namespace ladrix::test
