#include "app/PageCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/CommandTable.h"
#include "app/Preferences.h"
#include "app/Startup.h"
#include "output/PrinterForms.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using testing::HasSubstr;

struct PageCommandsTest : testing::Test {
    test::FakePlatform fake;
    Program program{fake.platform};

    void SetUp() override { ASSERT_TRUE(startProgram(program)); }
};

TEST_F(PageCommandsTest, TheDefaultPrinterOutlivesTheRun) {
    fake.dialogs.duringForm = [&](Form form) {
        ASSERT_EQ(form, Form::frmPrinters);
        cmbLineWeight_Click(program.editor, program.printing, 4);
        frmPrinters_cmbPrinters_Click(program.printing, "Office");
        cmdDefaultPrinter_Click(program);
        EXPECT_FALSE(program.printing.frmPrinters.Visible);
    };
    runCommand(program, Menu::mnuOptPrinter);
    EXPECT_EQ(program.UserPrefs.at(22), "Reserve Bit 22:Office");
    EXPECT_EQ(program.UserPrefs.at(23), "Reserve Bit 23:0");
    EXPECT_EQ(program.UserPrefs.at(24), "Reserve Bit 24:4");
    EXPECT_TRUE(fake.dialogs.boxes.empty());

    Program next(fake.platform);
    ASSERT_TRUE(startProgram(next));
    EXPECT_EQ(next.printing.SessionPrinterName, "Office");
    EXPECT_EQ(next.printing.SessionPrinterNumber, 0);
    EXPECT_EQ(next.printing.PrintLineWeight, 4);
    EXPECT_EQ(next.editor.symbols.PrinterLineWidth, 4);
}

TEST_F(PageCommandsTest, ExportWritesTheDrawingInTheFormatOfTheNameAndKeepsTheFormerFileOnFailure) {
    program.editor.drawing.labels.append({"1CR", 1, 2, Black, "Arial", 8, false, false});
    for (const char* name : {"a.pdf", "a.svg", "a.PNG"}) {
        exportDrawing(program, fake.folder / name);
        const std::string written = fake.folder.read(name);
        EXPECT_THAT(written, HasSubstr("8.5x11")) << name;
        EXPECT_THAT(written, HasSubstr("\"1CR\"")) << name;
    }
    EXPECT_THAT(program.editor.form.lblMessage.Caption, HasSubstr("a.PNG"));
    fake.files.fail(test::Operation::Replace, {failure::DiskFull, "full"});
    fake.dialogs.boxes.clear();
    exportDrawing(program, fake.folder / "b.pdf");
    exportDrawing(program, fake.folder / "b.gif");
    EXPECT_EQ(fake.dialogs.boxes.size(), 1u) << "the same report again is only logged";
    EXPECT_FALSE(fake.folder.has("b.pdf"));
}

}  // namespace
}  // namespace ladrix
