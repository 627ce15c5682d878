// Paper as it comes out: PDF documents measured by tools that have nothing to do with this program,
// the preview and the bitmap by their pixels, and the dialogs by keys.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <cmath>
#include <functional>
#include <regex>

#include "Driving.h"
#include "app/Startup.h"
#include "canvas/view/View.h"
#include "document/PageLayout.h"
#include "output/PrinterForms.h"
#include "output/SaveBitmap.h"
#include "qt/LayoutDialog.h"
#include "qt/PreviewDialog.h"
#include "qt/PreviewPicture.h"
#include "qt/PrinterDialog.h"
#include "qt/QtCanvas.h"
#include "qt/QtFonts.h"
#include "qt/QtPrinters.h"
#include "qt/QtText.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr double Tolerance = 0.002;  // inches

std::string outputOf(const char* program, const QStringList& arguments) {
    QProcess process;
    process.start(QString::fromLatin1(program), arguments);
    process.waitForFinished();
    return process.readAllStandardOutput().toStdString();
}

// A stroked line of an SVG in inches, its matrix applied.
struct Stroke {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    std::vector<double> dashes;
    double width = 0;
};

std::vector<double> numbersOf(const std::string& text) {
    std::vector<double> found;
    const std::regex one("[-0-9.]+");
    for (auto at = std::sregex_iterator(text.begin(), text.end(), one);
         at != std::sregex_iterator(); ++at)
        found.push_back(std::stod(at->str()));
    return found;
}

std::vector<Stroke> strokesOf(const std::string& svg) {
    const std::regex path("<path[^>]*stroke-width:([0-9.]+)[^>]*>");
    const std::regex points(R"x(d="M ([-0-9.]+ [-0-9.]+ L [-0-9.]+ [-0-9.]+) )x");
    const std::regex matrix(R"x(matrix\(([^)]*)\))x"), dashes("stroke-dasharray:([0-9., ]+)");
    // The tool centres the page on one of whole points.
    const std::regex box(R"x(viewBox="0 0 ([0-9.]+) ([0-9.]+)")x");
    std::smatch page;
    if (!std::regex_search(svg, page, box)) return {};
    const auto shift = [](double length) { return (std::ceil(length) - length) / 2; };
    const double shiftX = shift(std::stod(page[1])), shiftY = shift(std::stod(page[2]));
    std::vector<Stroke> strokes;
    for (auto at = std::sregex_iterator(svg.begin(), svg.end(), path); at != std::sregex_iterator();
         ++at) {
        const std::string text = at->str();
        std::smatch found;
        if (!std::regex_search(text, found, points)) continue;
        const std::vector<double> p = numbersOf(found[1]);
        std::vector<double> m{1, 0, 0, 1, 0, 0};
        if (std::regex_search(text, found, matrix)) m = numbersOf(found[1]);
        const auto x = [&](double value) { return (value * m[0] + m[4] + shiftX) / 72; };
        const auto y = [&](double value) { return (value * m[3] + m[5] + shiftY) / 72; };
        Stroke stroke{x(p[0]), y(p[1]), x(p[2]), y(p[3]), {}, std::stod((*at)[1]) * m[0] / 72};
        if (std::regex_search(text, found, dashes))
            for (const double dash : numbersOf(found[1]))
                stroke.dashes.push_back(dash * m[0] / 72);
        strokes.push_back(stroke);
    }
    return strokes;
}

// How far the nearest stroke's ends are from these, inches.
double missBy(const std::vector<Stroke>& strokes, double x1, double y1, double x2, double y2) {
    double nearest = 1000;
    for (const Stroke& s : strokes)
        nearest = std::min(nearest, std::max({std::abs(s.x1 - x1), std::abs(s.y1 - y1),
                                              std::abs(s.x2 - x2), std::abs(s.y2 - y2)}));
    return nearest;
}

class PrintingTest : public testing::Test {
  protected:
    test::FakePlatform fake;
    QtFonts fonts;
    QtPrinters printers{fake.platform};
    Program program{fake.platform};
    Drawing& drawing = program.editor.drawing;

    PrintingTest() {
        fake.platform.fonts = &fonts;
        fake.platform.printers = &printers;
        EXPECT_TRUE(startProgram(program));
        drawing.CurrentFolder = fake.folder / "documents/";
        drawing.CurrentFileName = "Motor.els";
    }
    void addLine(double x1, double y1, double x2, double y2, const char* name = "InsertSavedLine",
                 const char* tag = "") {
        Device line;
        line.name = name;
        line.x = static_cast<Single>(x1);
        line.y = static_cast<Single>(y1);
        line.x2 = static_cast<Single>(x2);
        line.y2 = static_cast<Single>(y2);
        line.widthTag = tag;
        drawing.devices.append(line);
    }
    void print(const std::string& key = "8.5x11Portrait", Short copies = 1) {
        drawing.PageLayoutKey = key;
        ApplyPageLayout(program.editor);
        program.printing.PrintCopies = copies;
        PrintDrawing(program.editor, program.printing);
    }
    QString pdf() { return toQString(fake.folder / "documents/Motor.pdf"); }
    void erasePdf() { std::filesystem::remove(fake.folder.native("documents/Motor.pdf")); }
    bool lacksTools() {
        return QStandardPaths::findExecutable("pdftocairo").isEmpty() ||
               QStandardPaths::findExecutable("pdfinfo").isEmpty();
    }
    template <class Dialog>
    void drive(const std::function<void(Dialog&)>& steps) {
        test::drive<Dialog>(program, steps);
    }
};

TEST_F(PrintingTest, EveryPageComesOutAtItsSizeWithEveryLineInItsPlace) {
    if (lacksTools()) GTEST_SKIP() << "no PDF tools on this machine";
    for (const PagePrefix& prefix : pagePrefixes())
        for (const char* orientation : {"Portrait", "Landscape"}) {
            const std::string key = std::string(prefix.prefix) + orientation;
            const PageSize size = *pageSize(key);
            const double width = static_cast<double>(size.PageWidth);
            const double height = static_cast<double>(size.PageHeight);
            drawing.devices.clear();
            addLine(1, 1.25, width - 0.5, 1.25);
            addLine(width - 0.5, 0.5, width - 0.5, height - 0.25);
            print(key);
            ASSERT_THAT(fake.dialogs.boxes, IsEmpty()) << key;
            std::smatch page;
            const std::string info = outputOf("pdfinfo", {pdf()});
            ASSERT_TRUE(std::regex_search(info, page,
                                          std::regex(R"(Page size: +([0-9.]+) x ([0-9.]+) pts)")))
                << key << info;
            EXPECT_NEAR(std::stod(page[1]) / 72, width, Tolerance) << key;
            EXPECT_NEAR(std::stod(page[2]) / 72, height, Tolerance) << key;
            const auto strokes =
                strokesOf(outputOf("pdftocairo", {"-svg", "-noshrink", pdf(), "-"}));
            EXPECT_LT(missBy(strokes, 1, 1.25, width - 0.5, 1.25), Tolerance) << key;
            EXPECT_LT(missBy(strokes, width - 0.5, 0.5, width - 0.5, height - 0.25), Tolerance)
                << key;
            ASSERT_FALSE(strokes.empty());
            EXPECT_NEAR(strokes[0].width, 1.0 / 96, 0.0005) << "as thick as on the canvas";
            erasePdf();
        }
}

TEST_F(PrintingTest, TextIsTextWhereItStandsAndDashesHaveTheirLengths) {
    if (lacksTools()) GTEST_SKIP() << "no PDF tools on this machine";
    drawing.labels.append({"Motor Starter", 3.2f, 2.75f, White, "Arial", 10, false, false});
    addLine(1, 5, 4, 6, "InsertSavedSquare", "3");
    print("297x420Landscape");
    const std::string text = outputOf("pdftotext", {"-bbox", pdf(), "-"});
    std::smatch word;
    ASSERT_TRUE(std::regex_search(text, word,
                                  std::regex(R"x(xMin="([0-9.]+)" yMin="([0-9.]+)"[^>]*>Motor<)x")))
        << text;
    EXPECT_NEAR(std::stod(word[1]) / 72, 3.2, 0.01);
    EXPECT_NEAR(std::stod(word[2]) / 72, 2.75, 0.02);
    EXPECT_THAT(outputOf("pdffonts", {pdf()}), testing::ContainsRegex("Identity-H +yes"))
        << "embedded";
    const auto strokes = strokesOf(outputOf("pdftocairo", {"-svg", "-noshrink", pdf(), "-"}));
    ASSERT_EQ(strokes.size(), 1u);
    ASSERT_EQ(strokes[0].dashes.size(), 4u);
    const double lengths[] = {0.125, 0.05, 0.02, 0.05};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(strokes[0].dashes[i], lengths[i], 0.001);
}

TEST_F(PrintingTest, CopiesArePagesAndAnExistingFileIsAskedAbout) {
    if (lacksTools()) GTEST_SKIP() << "no PDF tools on this machine";
    addLine(1, 1, 2, 2);
    print("17x22Landscape", 3);
    EXPECT_THAT(outputOf("pdfinfo", {"-l", "3", pdf()}),
                testing::ContainsRegex("Page +3 size: +1584 x 1224"));
    EXPECT_THAT(program.editor.form.lblMessage.Caption,
                testing::StartsWith("Saved as " + fake.folder / "documents/Motor.pdf"));
    const std::string former = fake.folder.read("documents/Motor.pdf");
    print();
    EXPECT_EQ(fake.folder.read("documents/Motor.pdf"), former);
    EXPECT_THAT(fake.dialogs.boxes.back().text, HasSubstr("Motor.pdf already exists"));
    fake.dialogs.answers = {Answer::Yes};
    print();
    EXPECT_NE(fake.folder.read("documents/Motor.pdf"), former);
    erasePdf();
    print("8.5x11Portrait", 0);
    EXPECT_FALSE(fake.folder.has("documents/Motor.pdf")) << "no page, no file";
}

TEST_F(PrintingTest, AFullDiskIsReportedAndLeavesNoFile) {
    fake.files.fail(test::Operation::Replace, {failure::DiskFull, "No space left on device"});
    print();
    ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
    EXPECT_THAT(fake.dialogs.boxes[0].text, HasSubstr("No space left on device"));
    EXPECT_THAT(fake.folder.entries("documents"), ElementsAre("Ladrix/"));
    EXPECT_THAT(program.editor.form.lblMessage.Caption, testing::Not(HasSubstr("Saved")));
    // The next one is not affected.
    fake.files.heal();
    print();
    EXPECT_TRUE(fake.folder.has("documents/Motor.pdf"));
}

TEST_F(PrintingTest, AMarginShrinksThePageAndALabelWithItNoFurtherThanItMust) {
    QImage image;
    const PaperArea area{{8.5, 11}, {0.25, 0.5, 8, 10}};
    addLine(0, 5.5, 8.4, 5.5);
    drawing.labels.append({"HHHH", 4.25f, 2.2f, Black, "Arial", 24, false, false});
    image = previewPicture(program.editor, 2, area, 96);
    ASSERT_EQ(image.size(), QSize(816, 1056));
    const auto inked = [&](double x, double y) {
        return qGray(image.pixel(static_cast<int>(x * 96), static_cast<int>(y * 96))) < 160;
    };
    EXPECT_TRUE(inked(0.3, 5.5));
    EXPECT_FALSE(inked(0.2, 5.5)) << "the margin stays white";
    int left = image.width(), right = 0;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 230; y < 290; ++y)
            if (qGray(image.pixel(x, y)) < 128)
                left = std::min(left, x), right = std::max(right, x);
    EXPECT_NEAR(left / 96.0, 0.25 + 4.25 * 8 / 8.5, 0.06);
    // As high on the page as on the screen: 24 points by 10 inches to 11, in steps of a quarter.
    const FontSpec shrunk{"Arial", 21.75f, false, false};
    const double bearings = 0.16 * 21.75 / 72;
    const double width = static_cast<double>(fonts.textWidth(shrunk, "HHHH")) - bearings;
    EXPECT_NEAR((right - left) / 96.0, width, 0.03);
}

TEST_F(PrintingTest, TheCanvassImageIsTheWholePageAtTheZoom) {
    QtCanvas canvas;
    canvas.showPageOf(program.editor);
    canvas.resize({300, 200}, 2);
    canvas.SetScale(1, 1, 1.5f);
    const auto paint = [&] {
        canvas.Cls();
        canvas.Line(1, 10, 8, 10, Red, LineForm::Plain);
    };
    paint();
    const QImage before = canvas.persistentLayer();
    const std::string bytes = canvas.Image(8.5f, 11, paint);
    const QImage image = QImage::fromData(QByteArray::fromStdString(bytes), "bmp");
    ASSERT_EQ(image.size(), QSize(1224, 1584));
    EXPECT_EQ(image.pixel(600, 1440), 0xFFFF0000);
    EXPECT_EQ(image.pixel(1223, 1583), 0xFFFFFFFF) << "no desk at its edge";
    EXPECT_EQ(canvas.persistentLayer(), before);
    canvas.SetScale(0, 0, 20);
    EXPECT_THROW(canvas.Image(8.5f, 11, paint), Failure);
}

TEST_F(PrintingTest, ThePrinterDialogPrintsByKeysAndTakesOnlyDigits) {
    frmPrinter_Load(program.editor, program.printing);
    drive<PrinterDialog>([&](PrinterDialog& dialog) {
        auto& copies = test::named<QLineEdit>(dialog, "txtCopies");
        auto& cmdPrint = test::named<QPushButton>(dialog, "cmdPrint");
        copies.clear();
        test::type(copies, "a2-");
        EXPECT_EQ(copies.text(), "2");
        test::press(copies, Qt::Key_Return);
        EXPECT_FALSE(fake.folder.has("documents/Motor.pdf")) << "Enter goes to the button first";
        bool answered = false;
        fake.duringEvents = [&] {
            answered = test::named<QPushButton>(dialog, "cmdCancelPrint").isEnabled();
            dialog.showState();
            EXPECT_FALSE(cmdPrint.isEnabled());
        };
        cmdPrint.click();
        EXPECT_TRUE(answered);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_TRUE(fake.folder.has("documents/Motor.pdf"));
}

TEST_F(PrintingTest, ACancelledPrintKeepsTheFormUntilItsPageIsDone) {
    for (int i = 0; i < 100; ++i)
        addLine(1, 1, 2, 2);
    frmPrinter_Load(program.editor, program.printing);
    txtCopies_Change(program.printing, "9");
    drive<PrinterDialog>([&](PrinterDialog& dialog) {
        int runs = 0;
        fake.duringEvents = [&] {
            if (++runs != 3) return;
            dialog.reject();
            EXPECT_TRUE(dialog.isVisible()) << "nobody may draw while the tables are printed";
        };
        test::named<QPushButton>(dialog, "cmdPrint").click();
        EXPECT_FALSE(dialog.isVisible());
    });
    if (lacksTools()) return;
    EXPECT_THAT(outputOf("pdfinfo", {pdf()}), testing::ContainsRegex("Pages: +1\n"));
}

TEST_F(PrintingTest, ADocumentUnderWayIsNotReplacedByAnother) {
    addLine(1, 1, 2, 2);
    const PrintDocument help{"Help", fake.folder / "documents/Help"};
    int runs = 0;
    fake.duringEvents = [&] {
        if (runs++ > 0) return;
        EXPECT_THROW(printers.current().StartDoc(help), Failure);
    };
    print();
    EXPECT_GT(runs, 0);
    EXPECT_THAT(fake.folder.entries("documents"), ElementsAre("Ladrix/", "Motor.pdf"));
    EXPECT_TRUE(printers.current().StartDoc(help));
    printers.current().EndDoc();
}

TEST_F(PrintingTest, TheOtherFormsFollowTheirState) {
    frmLayout_Load(program.frmLayout, program.editor);
    drive<LayoutDialog>([&](LayoutDialog& dialog) {
        EXPECT_TRUE(test::named<QRadioButton>(dialog, "optSize1").isChecked());
        test::named<QRadioButton>(dialog, "optSize10").click();
        test::named<QRadioButton>(dialog, "optOrient1").click();
        test::named<QPushButton>(dialog, "cmdOK").click();
    });
    EXPECT_EQ(drawing.PageLayoutKey, "297x420Landscape");
    frmPreview_Load(program.frmPreview);
    drive<PreviewDialog>([&](PreviewDialog& dialog) {
        auto& page = test::named<QWidget>(dialog, "picPreview");
        const int whole = page.height();
        auto& zoom = test::named<QComboBox>(dialog, "cmbZoom");
        zoom.setCurrentText("100 %");
        emit zoom.textActivated("100 %");
        EXPECT_GE(page.width(), static_cast<int>(16.54 * 96));
        EXPECT_NE(page.height(), whole);
        test::press(dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
}

}  // namespace
}  // namespace ladrix
