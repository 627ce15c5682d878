// The built programs, run as processes of their own.
#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QSet>

#include "qt/QtText.h"
#include "support/Paths.h"
#include "support/TemporaryFolder.h"

namespace ladrix::test {
namespace {

constexpr int LongestWait = 20000;  // milliseconds; reached only by a failure

// A copy of the programs and of the shipped drawings, away from the build tree, and a user's home.
struct ProgramsTest : testing::Test {
    ProgramsTest() {
        disk.makeFolder("program");
        disk.makeFolder("home");
        for (const char* name : {"ladrix", "ladrix-export", "Demo1.els", "Demo2.els"})
            std::filesystem::copy(ProgramPath(name), disk.native("program"));
        environment.insert("HOME", path("home"));
    }

    QString path(const std::string& name) const {
        return QString::fromStdString(disk.native(name).string());
    }
    int run(const std::string& program, const QStringList& arguments) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(path("program/" + program), arguments);
        const bool ended = process.waitForFinished(LongestWait);
        errors = process.readAllStandardError();
        return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    TemporaryFolder disk;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QByteArray errors;
};

TEST_F(ProgramsTest, TheEditorTakesAPictureOfItselfWithTheDemonstration) {
    ASSERT_EQ(run("ladrix", {"--demo-screenshot", path("window.png")}), 0) << errors.toStdString();
    const QImage window(path("window.png"), "PNG");
    ASSERT_GE(window.width(), 800);
    ASSERT_GE(window.height(), 560);
    // The page is white, and on it stands a drawing.
    const QRect page(window.width() / 4, window.height() / 4, window.width() / 2,
                     window.height() / 2);
    int white = 0, dark = 0;
    QSet<QRgb> colours;
    for (int y = page.top(); y <= page.bottom(); ++y)
        for (int x = page.left(); x <= page.right(); ++x) {
            const QRgb colour = window.pixel(x, y);
            colours.insert(colour);
            white += qGray(colour) > 250;
            dark += qGray(colour) < 100;
        }
    EXPECT_GT(white, page.width() * page.height() / 2);
    EXPECT_GT(dark, 500);
    EXPECT_GT(colours.size(), 10);

    EXPECT_EQ(run("ladrix", {"--demo-screenshot", path("no such folder") + "/window.png"}), 1);
    EXPECT_TRUE(errors.contains("could not be written")) << errors.toStdString();
    EXPECT_EQ(run("ladrix", {"--what"}), 1);
    EXPECT_TRUE(errors.startsWith("usage: ladrix")) << errors.toStdString();
}

TEST_F(ProgramsTest, TheExporterMakesAPdfWithoutADisplay) {
    environment.remove("DISPLAY");
    environment.remove("QT_QPA_PLATFORM");
    ASSERT_EQ(run("ladrix-export", {path("program/Demo1.els"), path("demo.pdf")}), 0)
        << errors.toStdString();
    const std::string pdf = disk.read("demo.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF-"));
    EXPECT_NE(pdf.rfind("%%EOF"), std::string::npos);
    EXPECT_NE(pdf.find("/Type /Page\n"), std::string::npos);
    EXPECT_TRUE(errors.isEmpty()) << errors.toStdString();

    EXPECT_NE(run("ladrix-export", {path("none.els"), path("none.pdf")}), 0);
    EXPECT_FALSE(errors.isEmpty());
    EXPECT_FALSE(disk.has("none.pdf"));
}

}  // namespace
}  // namespace ladrix::test
