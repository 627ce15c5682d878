#include "output/PrintDrawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "canvas/view/View.h"
#include "document/PageLayout.h"
#include "output/PrinterForms.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class PrintDrawingTest : public testing::Test {
  protected:
    test::FakePlatform machine;
    Editor editor{machine.platform};
    Drawing& drawing = editor.drawing;
    Printing printing;
    test::RecordingPrinter& printer = machine.printers.printer;

    PrintDrawingTest() {
        drawing.CurrentFolder = machine.folder / "documents/";
        drawing.CurrentFileName = "Motor.els";
        editor.BasePath = machine.folder / "documents/";
    }

    void addLine(Single x, Single y, Long color, const std::string& tag = "") {
        Device line;
        line.name = "InsertSavedLine";
        line.x = x;
        line.y = line.y2 = y;
        line.x2 = x + 2;
        line.color = color;
        line.widthTag = tag;
        drawing.devices.append(line);
    }
    void addSymbol(const std::string& name, Single x, Single y, Long color = Black) {
        Device symbol;
        symbol.name = name;
        symbol.x = x;
        symbol.y = y;
        symbol.color = color;
        symbol.x2 = x + 1;
        symbol.y2 = y + 1;
        drawing.devices.append(symbol);
    }
    void print(const std::string& key = "8.5x11Portrait") {
        drawing.PageLayoutKey = key;
        ApplyPageLayout(editor);
        printer.log.clear();
        PrintDrawing(editor, printing);
    }
    // What was set before the page began.
    std::vector<std::string> setUp() const {
        return {printer.log.begin(),
                std::find_if(printer.log.begin(), printer.log.end(), [](const std::string& entry) {
                    return entry.starts_with("PSet") || entry.starts_with("Font");
                })};
    }
    std::string message() const { return editor.form.lblMessage.Caption; }
};

TEST_F(PrintDrawingTest, EveryKeyHasItsPaperAndItsScale) {
    const std::pair<const char*, int> papers[] = {{"7.5x10.5", 7}, {"8.5x11", 1},  {"8.5x13", 14},
                                                  {"8.5x14", 5},   {"10x14", 16},  {"11x17", 3},
                                                  {"182x257", 13}, {"210x297", 9}, {"215x275", 15},
                                                  {"250x354", 12}, {"297x420", 8}, {"17x22", 24}};
    for (const auto& [prefix, code] : papers)
        for (const bool landscape : {false, true}) {
            const std::string key = std::string(prefix) + (landscape ? "Landscape" : "Portrait");
            const bool ledger = key == "11x17Landscape";
            print(key);
            const auto size = *pageSize(key);
            std::vector<std::string> expected{"Orientation 1"};
            expected.push_back("PaperSize " + std::to_string(ledger ? 4 : code));
            if (landscape && !ledger) expected.push_back("Orientation 2");
            std::ostringstream width, height;
            width << "ScaleWidth " << size.PageWidth;
            height << "ScaleHeight " << size.PageHeight;
            expected.insert(expected.end(), {"ScaleMode 0", width.str(), height.str()});
            EXPECT_EQ(setUp(), expected) << key;
            // And afterwards everything is as it was.
            const std::vector<std::string> end(printer.log.end() - 4, printer.log.end());
            EXPECT_THAT(end, ElementsAre("EndDoc", "PaperSize 1", "Orientation 1", "ScaleMode 1"))
                << key;
        }
    EXPECT_EQ(message(), "Printer Status: 0: 0: 0: 0: 0: 17x22Landscape: 22: 17");
    EXPECT_EQ(paperFor("9x12Landscape").PaperSize, 1);
    EXPECT_THAT(machine.reports, IsEmpty());
}

TEST_F(PrintDrawingTest, APageHoldsLabelsDevicesAndPicturesInThisOrder) {
    machine.folder.write("logo.png", "");
    addLine(1, 1, White);
    addLine(1, 2, Red, "DrawWidth=2");
    addSymbol("InsertSavedSquare", 3, 3, Blue);
    addSymbol("InsertSolidCircle", 4, 4, White);
    drawing.devices.DeviceRadius[3] = 0.125f;
    drawing.devices.DeviceWidthTag[2] = "3";
    drawing.labels.append({"1CR", 1, 2, White, "Courier New", 12, true, false});
    drawing.PictureTable.push_back({1, 2, 3, 4, "logo.png", machine.folder / "logo.png", false});
    drawing.PictureCount = 1;
    editor.img.push_back(machine.images.load(machine.folder / "logo.png"));
    printing.PrintLineWeight = editor.symbols.PrinterLineWidth = 3;
    print();

    std::vector<std::string> page = printer.log;
    page.erase(page.begin(), page.begin() + static_cast<std::ptrdiff_t>(setUp().size()));
    page.resize(page.size() - 7);  // the font and the paper put back
    EXPECT_THAT(
        page, ElementsAre("PSet 0.25,0.25 color 0", "Font Arial 8", "Font Courier New 12 bold",
                          "Print 1,2 \"1CR\" color 0", "Line 1,1 3,1 color 0 width 3 style 0",
                          "Line 1,2 3,2 color 255 width 6 style 0",
                          "Line 3,3 4,4 Box color 16711680 width 1 style 3",
                          "Circle 4,4 radius 0.125 filled 16777215 color 16777215 width 3 style 0",
                          "Picture 1,2 3 by 4 mode 8913094"));
    EXPECT_EQ(drawing.devices.DeviceCount, 4) << "nothing is recorded";
    EXPECT_EQ(printer.DrawWidth, 1);
    EXPECT_FALSE(drawing.NoRecord);
}

TEST_F(PrintDrawingTest, WhatBeginsOutsideThePageIsLeftOut) {
    addSymbol("InsertGround", 1, 1);
    print();
    const std::size_t perGround = printer.logged("Line ").size();
    drawing.devices.clear();
    for (const Single x : {-0.1f, 0.0f, 8.4f, 8.5f}) {
        addLine(x, 1, Black);
        addSymbol("InsertGround", x, 1);
        drawing.labels.append({"L", x, 1, Black, "Arial", 8, false, false});
    }
    addLine(1, -0.1f, Black);
    addLine(1, 11, Black);
    print();
    EXPECT_THAT(printer.logged("Print "), SizeIs(2));
    EXPECT_THAT(printer.logged("Line "), SizeIs(2 + 2 * perGround));
    EXPECT_THAT(printer.logged("Line 8.4,1 10.4,1"), SizeIs(1)) << "it may run over the edge";
}

TEST_F(PrintDrawingTest, ALabelShrinksUntilItIsNoHigherThanOnTheScreen) {
    drawing.labels.append({"1CR", 1, 2, Black, "Arial", 10, false, false});
    print();
    EXPECT_THAT(printer.logged("Font Arial 10"), SizeIs(1)) << "as high as on the screen";
    EXPECT_THAT(printer.logged("Font Arial 9"), IsEmpty());

    printer.marginShare = 0.06f;  // the page shrinks, text does not
    print();
    EXPECT_THAT(printer.logged("Font Arial 9"),
                ElementsAre("Font Arial 9.75", "Font Arial 9.5", "Font Arial 9.25"));

    printer.smallestFont = 9.5f;  // no smaller size: the loop ends
    print();
    EXPECT_THAT(printer.logged("Print "), SizeIs(1));
}

TEST_F(PrintDrawingTest, ARefusedPaperIsToldAndThePrintGoesOn) {
    addLine(1, 1, Black);
    printer.fail("PaperSize 4", {failure::InvalidProperty, "no such paper"});
    print("11x17Landscape");
    EXPECT_EQ(setUp(),
              (std::vector<std::string>{"Orientation 1", "ScaleMode 0", "ScaleWidth 17",
                                        "ScaleHeight 11", "PaperSize 3", "Orientation 2",
                                        "ScaleMode 0", "ScaleWidth 17", "ScaleHeight 11"}));
    EXPECT_THAT(printer.logged("Line "), SizeIs(1));
    ASSERT_THAT(machine.reports, SizeIs(1));
    EXPECT_EQ(machine.reports[0].description, "Printer Error 4: 380, no such paper");
    EXPECT_EQ(message(), "Printer Status: 0: 0: 0: 3: 4: 11x17Landscape: 17: 11");

    // Another page has no second paper to try.
    printer.fail("PaperSize 9", {failure::InvalidProperty, "no such paper"});
    print("210x297Portrait");
    EXPECT_THAT(printer.logged("PaperSize 3"), IsEmpty());
    EXPECT_THAT(printer.logged("Line "), SizeIs(1));
}

TEST_F(PrintDrawingTest, AFailureAtAnyStepIsReportedAndEndsTheDocument) {
    struct Case {
        const char* step;
        std::size_t reports;  // while the paper is set, one more
    };
    const Case cases[] = {{"read Orientation", 2},
                          {"Orientation 1", 2},
                          {"ScaleWidth", 2},
                          {"PSet", 1},
                          {"Print 1,2", 1},
                          {"Line 1,1", 1},
                          {"Picture", 1},
                          {"NewPage", 1},
                          {"EndDoc", 1}};
    addLine(1, 1, Black);
    drawing.labels.append({"1CR", 1, 2, Black, "Arial", 8, false, false});
    drawing.PictureTable.push_back({1, 2, 3, 4, "logo.png", "logo.png", false});
    drawing.PictureCount = 1;
    editor.img.push_back(std::make_shared<test::FakePicture>(9, 9));
    for (const Case& fault : cases) {
        machine.reports.clear();
        printing.PrintCopies = 2;
        printer.abandoned = false;
        printer.fail(fault.step, {failure::DeviceIO, "no device"});
        print();
        printer.heal();
        ASSERT_EQ(machine.reports.size(), fault.reports) << fault.step;
        EXPECT_EQ(machine.reports.back().description, "Printing Drawing: 57, no device")
            << fault.step;
        EXPECT_TRUE(printer.abandoned) << fault.step;
        EXPECT_FALSE(drawing.NoRecord || printing.Running) << fault.step;
        EXPECT_EQ(drawing.devices.DeviceCount, 1) << fault.step;
        EXPECT_THAT(message(), testing::Not(HasSubstr("Printer Status"))) << fault.step;
        EXPECT_EQ(printer.ScaleMode(), TwipScale) << fault.step;
    }
}

TEST_F(PrintDrawingTest, CopiesAreTurnedAndACancelTakesEffectBetweenThem) {
    addLine(1, 1, Black);
    frmPrinter_Load(editor, printing);
    printing.PrintCopies = 3;
    std::vector<std::string> told;
    machine.duringEvents = [&] {
        told.push_back(printing.frmPrinter.lblPrinting.Caption);
        if (told.size() == 2) cmdCancelPrint_Click(printing);
    };
    print();
    EXPECT_THAT(told, ElementsAre("Printing 1 of 3", "Printing 2 of 3"));
    EXPECT_THAT(printer.logged("Line "), SizeIs(1));
    EXPECT_THAT(printer.logged("NewPage"), IsEmpty());
    EXPECT_THAT(printer.logged("EndDoc"), SizeIs(1));
    EXPECT_FALSE(printing.CancelPrint);
    EXPECT_EQ(printing.PrintCopies, 1);

    machine.duringEvents = nullptr;
    printing.PrintCopies = 3;
    print();
    EXPECT_THAT(printer.logged("NewPage"), SizeIs(2));
    EXPECT_THAT(printer.logged("PSet"), SizeIs(3));

    printing.PrintCopies = 0;
    print();
    EXPECT_THAT(printer.logged("PSet"), IsEmpty());
    EXPECT_THAT(printer.logged("EndDoc"), SizeIs(1));
    EXPECT_EQ(printing.PrintCopies, 1);
}

TEST_F(PrintDrawingTest, APrinterThatLosesTheFontSizeIsRepaired) {
    printer.largestFont = 6;
    print();
    ASSERT_THAT(machine.dialogs.boxes, SizeIs(1));
    EXPECT_EQ(machine.dialogs.boxes[0].text,
              "oops... printer font size is different. 6\r\nA repair is being attempted.");
    EXPECT_THAT(printer.logged("Font Arial 9"), SizeIs(1));
}

TEST_F(PrintDrawingTest, TheDocumentBearsTheDrawingsNameAndNothingIsPrintedUnasked) {
    printer.outcome = "Saved as there";
    print();
    EXPECT_EQ(printer.documents[0].title, "Motor.els");
    EXPECT_EQ(printer.documents[0].path, machine.folder / "documents/Motor");
    EXPECT_TRUE(message().starts_with("Saved as there. Printer Status: "));
    drawing.CurrentFileName.clear();
    printer.takesDocuments = false;
    print();
    EXPECT_EQ(printer.documents[1].path, machine.folder / "documents/Drawings/Untitled");
    EXPECT_THAT(printer.log, IsEmpty());
}

TEST_F(PrintDrawingTest, ManyItemsLetEventsRunAndTellHowFarItIs) {
    for (int i = 0; i < 320; ++i)
        addLine(1, 1, Black);
    machine.duringEvents = [&, last = Single{0}]() mutable {
        EXPECT_GE(printing.frmPrinter.Progress, last);
        last = printing.frmPrinter.Progress;
    };
    print();
    EXPECT_GT(machine.eventRuns, 15);
    EXPECT_EQ(printing.frmPrinter.Progress, 1);
}

TEST_F(PrintDrawingTest, ThePrintButtonTakesTheChosenPrinterAndRefusesWhatItCannotPrint) {
    frmPrinter_Load(editor, printing);
    EXPECT_EQ(printing.frmPrinter.cmbPrinters.Text, "PDF file");
    EXPECT_THAT(printing.frmPrinter.cmbPrinters.List, ElementsAre("Office", "PDF file"));
    for (const char* copies : {"", "99999"}) {
        txtCopies_Change(printing, copies);
        cmdPrint_Click(editor, printing);
    }
    txtCopies_Change(printing, "2");
    frmPrinter_cmbPrinters_Click(printing, "Gone");
    cmdPrint_Click(editor, printing);
    EXPECT_THAT(machine.reports, SizeIs(3));
    EXPECT_THAT(printer.documents, IsEmpty());
    EXPECT_TRUE(printing.frmPrinter.Visible);

    frmPrinter_cmbPrinters_Click(printing, "Office");
    machine.printers.names = {"Hall", "Office", "PDF file"};
    printersChanged(editor, printing);
    EXPECT_EQ(printing.frmPrinter.cmbPrinters.Text, "Office") << "a choice stays";
    cmdPrint_Click(editor, printing);
    EXPECT_EQ(printer.deviceName, "Office");
    EXPECT_THAT(printer.logged("NewPage"), SizeIs(1));
    EXPECT_FALSE(printing.frmPrinter.Visible);
}

TEST_F(PrintDrawingTest, TheSessionsPrinterIsShownAndTakesItsPlaceWhenTheListComesLate) {
    printing.SessionPrinterName = "Hall";
    frmPrinters_Load(editor, printing);
    EXPECT_EQ(printing.frmPrinters.cmbPrinters.Text, "No Default Printer Found");
    cmdPrinter_Click(editor, printing);
    EXPECT_THAT(machine.reports, SizeIs(1)) << "no printer of that name";
    machine.printers.names = {"Hall", "PDF file"};
    printersChanged(editor, printing);
    EXPECT_EQ(printing.frmPrinters.cmbPrinters.Text, "Hall");
    EXPECT_EQ(printer.deviceName, "Hall");
    cmbLineWeight_Click(editor, printing, 5);
    EXPECT_EQ(printing.frmPrinters.lblLineWeight.Caption, "Line Weight = 5, Heavy");
    EXPECT_EQ(editor.symbols.PrinterLineWidth, 5);
    frmPrinters_cmbPrinters_Click(printing, "PDF file");
    cmdPrinter_Click(editor, printing);
    EXPECT_EQ(machine.dialogs.boxes.back().text, "PDF file saved for current session.");
    EXPECT_EQ(printing.SessionPrinterName, "PDF file");
    EXPECT_FALSE(printing.frmPrinters.Visible);
}

}  // namespace
}  // namespace ladrix
