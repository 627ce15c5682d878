#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <regex>
#include <sstream>

#include "document/PageLayout.h"
#include "qt/Export.h"
#include "qt/QtText.h"
#include "support/TemporaryFolder.h"

namespace ladrix {
namespace {

struct Outcome {
    int status = -1;
    std::string out, err;
};

Outcome run(const std::vector<std::string>& arguments) {
    std::ostringstream out, err;
    Outcome result;
    result.status = exportMain(arguments, out, err);
    result.out = out.str();
    result.err = err.str();
    return result;
}

std::string record(std::string text) {
    std::replace(text.begin(), text.end(), '|', '\xFF');
    return text + "\r\n";
}

// A wire, a red rail of double width, a contact, a text and what else is asked for.
std::string drawingText(std::string_view pageKey, const std::string& moreLabels = "",
                        const std::string& pictures = "") {
    return std::string(pageKey) + "\r\n\r\n" + record("InsertSavedLine|1|1|4|1|0|") +
           record("InsertSavedLine|2|2|2|5|255|DrawWidth=2") +
           record("InsertContactNO|1|3|0||1|1|0|False") + "\r\n" +
           record("Motor Starter|3.2|2.75|0|Arial|10|False|False") + moreLabels +
           "///Picture Files///\r\n" + pictures;
}

bool isOneLine(const std::string& text) {
    return !text.empty() && text.find('\n') == text.size() - 1;
}

std::string standardOutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput().toStdString();
}

class Export : public ::testing::Test {
  protected:
    test::TemporaryFolder folder;

    void writeDrawing(std::string_view key = "8.5x11Portrait") {
        folder.write("motor.els", drawingText(key));
    }
    Outcome exportTo(const std::string& output, std::vector<std::string> options = {}) {
        options.insert(options.end(), {folder / "motor.els", folder / output});
        return run(options);
    }
    QImage bitmap(const std::string& name) { return QImage(toQString(folder / name)); }
};

TEST_F(Export, EveryPageKeyGivesAPdfPageOfExactlyItsSize) {
    int keys = 0;
    for (const PagePrefix& prefix : pagePrefixes())
        for (const char* orientation : {"Portrait", "Landscape"}) {
            const std::string key = std::string(prefix.prefix) + orientation;
            const PageSize size = *pageSize(key);
            writeDrawing(key);
            ASSERT_EQ(exportTo("out.pdf").status, 0) << key;
            const std::string pdf = folder.read("out.pdf");
            std::smatch box;
            ASSERT_TRUE(std::regex_search(
                pdf, box, std::regex(R"(/MediaBox \[(\S+) (\S+) (\S+) (\S+)\s*\])")))
                << key;
            EXPECT_NEAR(std::stod(box[3]) - std::stod(box[1]), size.PageWidth * 72.0, 0.006) << key;
            EXPECT_NEAR(std::stod(box[4]) - std::stod(box[2]), size.PageHeight * 72.0, 0.006)
                << key;
            // Its top is a whole number, as the page's contents count from there.
            EXPECT_EQ(std::stod(box[4]), std::round(size.PageHeight * 72.0)) << key;
            ++keys;
        }
    EXPECT_EQ(keys, 24);
}

TEST_F(Export, ThePdfIsSoundAndItsTextCanBeRead) {
    const QString pdftotext = QStandardPaths::findExecutable("pdftotext");
    const QString pdffonts = QStandardPaths::findExecutable("pdffonts");
    if (pdftotext.isEmpty() || pdffonts.isEmpty()) GTEST_SKIP() << "no PDF tools on this machine";
    writeDrawing("210x297Landscape");
    ASSERT_EQ(exportTo("out.pdf").status, 0);
    const QString file = toQString(folder / "out.pdf");
    EXPECT_NE(standardOutputOf(pdftotext, {file, "-"}).find("Motor Starter"), std::string::npos);
    // Columns of the table of fonts: embedded, subset, with a Unicode map.
    EXPECT_NE(standardOutputOf(pdffonts, {file}).find("yes"), std::string::npos);
}

TEST_F(Export, BitmapsHaveThePagesSizeAndLinesWhereTheyBelong) {
    writeDrawing();
    for (const char* output : {"out.png", "out.bmp", "OUT.PNG"})
        for (const int scale : {96, 192}) {
            const Outcome result = exportTo(output, {"--scale", std::to_string(scale)});
            ASSERT_EQ(result.status, 0) << result.err;
            EXPECT_EQ(result.err, "");
            const QImage image = bitmap(output);
            ASSERT_EQ(image.size(), QSize(17 * scale / 2, 11 * scale));
            EXPECT_NEAR(image.dotsPerMeterX() * 0.0254, scale, 0.05);
            const auto at = [&](double x, double y) {
                return image.pixel(static_cast<int>(x * scale), static_cast<int>(y * scale));
            };
            EXPECT_EQ(at(2.5, 1), 0xFF000000) << "the wire";
            EXPECT_EQ(at(2.5, 1.05), 0xFFFFFFFF);
            EXPECT_EQ(at(4.05, 1), 0xFFFFFFFF) << "past its end";
            EXPECT_EQ(at(2, 3.5), 0xFFFF0000) << "the rail";
            // Line widths in pixels: 1 and 2 at 96 to the inch.
            int wire = 0, rail = 0;
            for (int i = -6; i <= 6; ++i) {
                wire += qGray(image.pixel(2 * scale + scale / 2, scale + i)) < 128;
                rail += qGreen(image.pixel(2 * scale + i, 4 * scale)) < 128;
            }
            EXPECT_EQ(wire, scale / 96);
            EXPECT_EQ(rail, 2 * scale / 96);
        }
}

TEST_F(Export, ScaleDefaultsTo96AndRoundsTheSize) {
    writeDrawing("210x297Portrait");
    ASSERT_EQ(exportTo("out.png").status, 0);
    EXPECT_EQ(bitmap("out.png").size(), QSize(794, 1122));
    ASSERT_EQ(exportTo("out.png", {"--scale", "150.5"}).status, 0);
    EXPECT_EQ(bitmap("out.png").width(), 1245);
}

TEST_F(Export, TheSvgIsWellFormedAndKeepsTextWhateverStandsInTheLabels) {
    folder.write("motor.els",
                 drawingText("8.5x11Landscape",
                             record("A<b> & \"c\" \xB5\x01\x81|1|6|0|Arial|8|False|False")));
    ASSERT_EQ(exportTo("out.svg").status, 0);
    QXmlStreamReader xml(QByteArray::fromStdString(folder.read("out.svg")));
    QString texts, width, height, viewBox;
    int curvesAndLines = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("svg")) {
            width = xml.attributes().value("width").toString();
            height = xml.attributes().value("height").toString();
            viewBox = xml.attributes().value("viewBox").toString();
        }
        if (xml.name() == QLatin1String("text")) texts += xml.readElementText() + '\n';
        curvesAndLines += xml.name() == QLatin1String("polyline");
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(width, "279.4mm");
    EXPECT_EQ(height, "215.9mm");
    EXPECT_EQ(viewBox, "0 0 1056 816");
    EXPECT_TRUE(texts.contains("Motor Starter\n")) << texts.toStdString();
    EXPECT_TRUE(texts.contains(QString::fromUtf8("A<b> & \"c\" µ"))) << texts.toStdString();
    EXPECT_EQ(curvesAndLines, 6) << "two lines and the four of a contact";
}

TEST_F(Export, PicturesOfTheDrawingsFolderAreOnThePage) {
    QImage red(20, 20, QImage::Format_RGB32);
    red.fill(Qt::red);
    folder.makeFolder("motor");
    ASSERT_TRUE(red.save(toQString(folder / "motor/logo.png")));
    folder.write("motor/notes.png", "no picture");
    folder.write("motor.els", drawingText("8.5x11Portrait", "", record("logo.png|5|5|2|1")));
    const Outcome whole = exportTo("out.png");
    ASSERT_EQ(whole.status, 0);
    EXPECT_EQ(whole.err, "");
    EXPECT_EQ(bitmap("out.png").pixel(6 * 96, 5 * 96 + 48), 0xFFFF0000);

    folder.write("motor.els", drawingText("8.5x11Portrait", "",
                                          record("gone.png|1|1|1|1") + record("notes.png|1|1|1|1") +
                                              record("logo.png|5|5|2|1")));
    const Outcome partial = exportTo("out.png");
    EXPECT_EQ(partial.status, 0);
    EXPECT_NE(partial.err.find("1 picture could not be found."), std::string::npos) << partial.err;
    EXPECT_NE(partial.err.find("notes.png is left out"), std::string::npos) << partial.err;
    EXPECT_EQ(bitmap("out.png").pixel(6 * 96, 5 * 96 + 48), 0xFFFF0000);
}

TEST_F(Export, EveryFailureIsOneLineAndLeavesTheFolderAsItWas) {
    writeDrawing();
    folder.write("plain.els", "Dear Sir,\r\n\r\nthis is a letter.\r\n");
    folder.write("empty.els", "");
    folder.write("number.els",
                 "8.5x11Portrait\r\n\r\n" + record("InsertLamp|x|2|0||1|1|0|False") + "\r\n");
    folder.write("key.els", drawingText("9x12Portrait"));
    folder.write("former.png", "former");
    folder.makeFolder("folder.png");
    // Names are of the test's folder but for what begins at the root; options and their values
    // stay.
    const char* calls[] = {"",
                           "motor.els",
                           "motor.els a.png b.png",
                           "--frobnicate motor.els a.png",
                           "missing.els a.png",
                           "missing\nname.els a.png",
                           "folder.png a.png",
                           "/dev/zero a.png",
                           "plain.els former.png",
                           "empty.els a.png",
                           "number.els a.png",
                           "key.els a.png",
                           "motor.els a.gif",
                           "motor.els a",
                           "motor.els folder.png",
                           "motor.els no/such/folder/a.png",
                           "motor.els /proc/a.png",
                           "--scale=0 motor.els a.png",
                           "--scale=-96 motor.els a.png",
                           "--scale=fine motor.els a.png",
                           "--scale=1e30 motor.els a.png",
                           "--scale=2000 motor.els a.png",
                           "motor.els a.png --scale",
                           "--gallery=ANSI a.png",
                           "--gallery=NEMA",
                           "--gallery=NEMA a.txt"};
    const std::vector<std::string> before = folder.entries();
    for (const std::string call : calls) {
        std::vector<std::string> arguments;
        std::istringstream words(call);
        for (std::string word; std::getline(words, word, ' ');) {
            const auto equals = word.find('=');
            const bool isName = !word.starts_with("--") && !word.starts_with('/');
            arguments.push_back(isName ? folder / word : word.substr(0, equals));
            if (equals != word.npos) arguments.push_back(word.substr(equals + 1));
        }
        const Outcome result = run(arguments);
        EXPECT_EQ(result.status, 1) << call;
        EXPECT_TRUE(isOneLine(result.err)) << call << result.err;
        EXPECT_EQ(result.out, "") << call;
        EXPECT_EQ(folder.entries(), before) << call;
    }
    EXPECT_EQ(folder.read("former.png"), "former");
}

TEST_F(Export, TruncatedFilesEndInAFileOrInOneLine) {
    const std::string whole = drawingText("8.5x11Portrait");
    for (std::size_t length = 0; length < whole.size(); length += 3) {
        folder.write("motor.els", whole.substr(0, length));
        const Outcome result = exportTo("out.svg");
        EXPECT_EQ(folder.has("out.svg"), result.status == 0) << result.err;
        EXPECT_TRUE(result.status == 0 || isOneLine(result.err)) << result.err;
        std::filesystem::remove(folder.native("out.svg"));
    }
}

TEST_F(Export, TemplatesAndOldFilesAreDrawingsToo) {
    folder.write("frame.tpl", drawingText("11x17Landscape"));
    EXPECT_EQ(run({folder / "frame.tpl", folder / "out.png"}).status, 0);
    EXPECT_EQ(bitmap("out.png").size(), QSize(17 * 96, 11 * 96));
    folder.write("old.els", "InsertSavedLine, 1, 1, 4, 1, 0, \r\n\r\n1CR, 1, 2, 0\r\n");
    EXPECT_EQ(run({folder / "old.els", folder / "out.png"}).status, 0);
    EXPECT_EQ(bitmap("out.png").pixel(2 * 96, 96), 0xFF000000);
}

TEST_F(Export, UnknownSymbolsAreTold) {
    folder.write("motor.els", "8.5x11Portrait\r\n\r\n" +
                                  record("InsertFluxCapacitor|1|2|0||1|1|0|False") + "\r\n");
    const Outcome result = exportTo("out.png");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(isOneLine(result.err));
    EXPECT_NE(result.err.find("InsertFluxCapacitor"), std::string::npos) << result.err;
}

TEST_F(Export, GalleriesOfEveryLibraryAreWritten) {
    for (const char* library : {"Common", "NEMA", "IEC", "Electronic", "Hyd"}) {
        const Outcome result = run({"--scale", "24", "--gallery", library, folder / "out.png"});
        EXPECT_EQ(result.status, 0) << library << result.err;
        EXPECT_FALSE(bitmap("out.png").isNull()) << library;
    }
    const Outcome help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("--gallery"), std::string::npos);
}

}  // namespace
}  // namespace ladrix
