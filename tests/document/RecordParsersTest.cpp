#include <gtest/gtest.h>

#include "RecordText.h"
#include "document/Records.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using test::asRecords;
using test::readable;

class RecordParsersTest : public testing::Test {
  protected:
    void devices(std::string_view text) {
        drawing.DeviceString = asRecords(text);
        ParseDeviceString(drawing, machine.platform);
    }
    void labels(std::string_view text) {
        drawing.LabelString = asRecords(text);
        ParseLabelString(drawing, machine.platform);
    }
    void commaLocale() { machine.platform.locale.decimalMark = ','; }
    std::string lastBox() const {
        return machine.dialogs.boxes.empty() ? "" : machine.dialogs.boxes.back().text;
    }

    test::FakePlatform machine;
    Drawing drawing;
};

// A rebuilt text tells all fields of the table at once.
TEST_F(RecordParsersTest, DeviceLinesOfAllGenerationsBecomeRows) {
    const std::pair<std::string, const char*> cases[] = {
        // The present ordinary form, and what may be missing at its end.
        {"InsertCoil|3.125|2.5|255|DrawWidth=2|1.5|-1|3|True",
         "InsertCoil|3.125|2.5|255|DrawWidth=2|1.5|-1|3|True"},
        {"InsertCoil|3|2|0||1|1", "InsertCoil|3|2|0||1|1|0|False"},
        {"InsertCoil|3|2|0||1|1|7", "InsertCoil|3|2|0||1|1|0|False"},
        {"InsertCoil|3|2|0||1|1|0|-1", "InsertCoil|3|2|0||1|1|0|True"},
        {"InsertCoil=FF1.5=FF2=FF0=FF=FF1=FF1=FF2=FFFalse", "InsertCoil|1.5|2|0||1|1|2|False"},
        // Free lines and squares: only a square keeps its tag.
        {"InsertSavedLine|1|1|4.5|1|255|20", "InsertSavedLine|1|1|4.5|1|255|0"},
        {"InsertSavedSquare|1|1|4.5|1|255|DrawWidth=2",
         "InsertSavedSquare|1|1|4.5|1|255|DrawWidth=2"},
        // Circles are read without aspect, arcs with it.
        {"InsertCircle|2|2|0.25|9|DrawWidth=2|0.5", "InsertCircle|2|2|0.25|9||1"},
        {"InsertSolidCircle|2|2|0.25|9", "InsertSolidCircle|2|2|0.25|9||1"},
        {"InsertArc|2|2|0.5|4|16711680|5|0|1.570796|0.5",
         "InsertArc|2|2|0.5|4|16711680|5|0|1.570796|0.5"},
        // Semicircles: the direction as a number or a word.
        {"InsertSemiCircle|2|2|0.5|3|255|DrawWidth=2", "InsertSemiCircle|2|2|0.5|3|255|"},
        {"InsertSemiCircle|2|2|0.5|Left|255|", "InsertSemiCircle|2|2|0.5|1|255|"},
        {"InsertSemiCircle|2|2|0.5|Right|255|", "InsertSemiCircle|2|2|0.5|2|255|"},
        {"InsertSemiCircle|2|2|0.5|Down|255|", "InsertSemiCircle|2|2|0.5|4|255|"},
        {"InsertSemiCircle|2|2|0.5|Inside|255|", "InsertSemiCircle|2|2|0.5|0|255|"},
        // The short old form, its transformers and its orientation in place of the width.
        {"InsertTransformer, 1, 1, 0, ", "InsertTransformer|1|1|0||0|0|2|False"},
        {"InsertTransformer2, 1, 1, 0, 5", "InsertTransformer|1|1|0|5|0|0|0|False"},
        {"InsertTransformerLowerCoil, 1, 1, 0, ", "InsertTransformerCoil|1|1|0||0|0|1|False"},
        {"InsertTransformerUpperCoil, 1, 1, 0, 3", "InsertTransformerCoil|1|1|0|3|0|0|0|False"},
        {"InsertUnheardOf, 1, 1, 0, DrawWidth=2", "InsertUnheardOf|1|1|0|DrawWidth=2|0|0|0|False"},
        {"InsertCoil, 1, 1, 0, 3", "InsertCoil|1|1|0|3|0|0|3|False"},
        {"InsertTransformer2|1|1|0||1|1|0|False", "InsertTransformer2|1|1|0||1|1|0|False"},
        // Renamed symbols.
        {"InsertNormallyOpenSwitch|1|1|0||1|1|0|False", "InsertNormallyOpenAux|1|1|0||1|1|0|False"},
        {"InsertNormallyClosedSwitch, 1, 1, 0, ", "InsertNormallyClosedAux|1|1|0||0|0|0|False"},
    };
    for (const auto& [line, rebuilt] : cases) {
        SCOPED_TRACE(line);
        devices(line + "\n");
        EXPECT_TRUE(machine.reports.empty());
        ASSERT_EQ(drawing.devices.DeviceCount, 1);
        EXPECT_EQ(drawing.DeviceString, std::string(drawing.DeviceRecord(0)) + "\r\n");
        RebuildDeviceString(drawing, machine.platform);
        EXPECT_EQ(readable(drawing.DeviceString), std::string(rebuilt) + "\n");
    }
}

TEST_F(RecordParsersTest, OneSeparatorServesTheWholeText) {
    devices("InsertA|1|1|0||1|1|0|False\nInsertB, 1, 1, 0, \n");
    EXPECT_EQ(drawing.devices.DeviceCount, 1) << "the second line has no field of this separator";
    ASSERT_EQ(machine.reports.size(), 1u);
    EXPECT_EQ(machine.reports[0].description, "Parse Device String");
}

TEST_F(RecordParsersTest, EmptyTextsAndALoneLineEndEmptyTheTable) {
    devices("InsertCoil|1|1|0||1|1|0|False\n");
    devices("");
    EXPECT_EQ(drawing.devices.DeviceCount, 0);
    devices("InsertCoil|1|1|0||1|1|0|False\n");
    devices("\n");
    EXPECT_EQ(drawing.devices.DeviceCount, 0);
    EXPECT_EQ(drawing.DeviceString, "");
    labels("M1|1|1|0\n");
    labels("");
    EXPECT_EQ(drawing.labels.LabelCount, 0);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
    EXPECT_TRUE(machine.reports.empty());
}

TEST_F(RecordParsersTest, ATextWithoutAnySeparatorIsTold) {
    devices("InsertCoil;1;1\n");
    EXPECT_EQ(lastBox(), "Could not parse devices.");
    labels("M1;1;1\n");
    EXPECT_EQ(lastBox(), "Could not parse labels.");
    drawing.PictureString = "logo.bmp;1\r\n";
    ParsePictureString(drawing, machine.platform);
    EXPECT_EQ(lastBox(), "Could not parse pictures.");
    EXPECT_EQ(drawing.devices.DeviceCount, 0);
    EXPECT_EQ(drawing.labels.LabelCount, 0);
    EXPECT_EQ(drawing.DeviceString, "InsertCoil;1;1\r\n") << "the text is left as it was read";
}

TEST_F(RecordParsersTest, WhatComesBehindTheLastLineEndIsDropped) {
    devices("InsertCoil|1|1|0||1|1|0|False\nInsertCoil|nonsense");
    EXPECT_EQ(drawing.devices.DeviceCount, 1);
    devices("InsertCoil|1|1|0||1|1|0|False");
    EXPECT_EQ(drawing.devices.DeviceCount, 0);
    EXPECT_TRUE(machine.reports.empty());
}

TEST_F(RecordParsersTest, ABadNumberEndsTheParseWithAReport) {
    devices(
        "InsertCoil|1|1|0||1|1|0|False\n"
        "InsertCoil|2|2|0||1|1|0|False\n"
        "InsertCoil|3|x|0||1|1|0|False\n"
        "InsertCoil|4|4|0||1|1|0|False\n");
    ASSERT_EQ(machine.reports.size(), 1u);
    EXPECT_EQ(machine.reports[0].description, "Parse Device String");
    EXPECT_EQ(machine.reports[0].number, failure::TypeMismatch);
    EXPECT_NE(machine.reports[0].text.find("Line 3"), std::string::npos);
    EXPECT_EQ(drawing.devices.DeviceCount, 2);
    EXPECT_EQ(readable(drawing.DeviceRecord(1)), "InsertCoil|2|2|0||1|1|0|False");
    EXPECT_EQ(drawing.DeviceRecord(2), "");

    for (const char* line :
         {"InsertSavedLine|1|1|1|1|red|0", "InsertCircle|1|1||0", "InsertArc|1|1|1|Left|0||0|1|1",
          "InsertArc|1|1|1|40000|0||0|1|1", "InsertCoil|1|1|0||1|1|0|Perhaps", "InsertCoil|1",
          "InsertCoil|1|1|0|sideways", "InsertCoil|1|1|9999999999|", "InsertCoil|1e60|1|0|", "|"}) {
        machine.reports.clear();
        devices(std::string(line) + "\n");
        EXPECT_EQ(machine.reports.size(), 1u) << line;
        EXPECT_EQ(drawing.devices.DeviceCount, 0) << line;
    }

    machine.reports.clear();
    labels("M1|1|1|0\nM2|1|1|0|Arial|big|False|False\n");
    ASSERT_EQ(machine.reports.size(), 1u);
    EXPECT_EQ(machine.reports[0].description, "Parse Label String");
    EXPECT_EQ(drawing.labels.LabelCount, 1);
}

TEST_F(RecordParsersTest, OneItemTooManyIsRefusedAndSaysSo) {
    std::string text;
    for (int i = 0; i < LargestCount; ++i)
        text += asRecords("InsertCoil|1|1|0||1|1|0|False\n");
    drawing.DeviceString = text;
    ParseDeviceString(drawing, machine.platform);
    EXPECT_EQ(drawing.devices.DeviceCount, LargestCount);
    EXPECT_TRUE(machine.reports.empty());

    drawing.DeviceString = drawing.LabelString = text + asRecords("InsertCoil|1|1|0|\n");
    ParseDeviceString(drawing, machine.platform);
    ParseLabelString(drawing, machine.platform);
    EXPECT_EQ(drawing.devices.DeviceCount, 0);
    EXPECT_EQ(drawing.labels.LabelCount, 0);
    ASSERT_EQ(machine.reports.size(), 2u);
    for (const auto& report : machine.reports) {
        EXPECT_EQ(report.number, failure::Overflow);
        EXPECT_NE(report.text.find("32767"), std::string::npos);
        EXPECT_NE(report.text.find("32768"), std::string::npos);
    }
}

TEST_F(RecordParsersTest, CommasBecomePointsUnderAPointLocale) {
    devices("InsertA,B|1,25|2,5|0|x,y|1|1|0|False\nInsertA,B|1,75|2|0|x,y|1|1|0|False\n");
    const Device first = drawing.devices.row(0);
    EXPECT_EQ(first.name, "InsertA,B") << "the first field is never repaired";
    EXPECT_EQ(first.x, 1.25f);
    EXPECT_EQ(first.y, 2.5f);
    EXPECT_EQ(first.widthTag, "x.y");
    EXPECT_EQ(drawing.devices.DeviceWidthTag[1], "x.y") << "the first line decides for all";

    devices("InsertCoil, 1,25, 2,5, 255, \nInsertCoil, 3,5, 4, 0, 1\n");
    ASSERT_EQ(drawing.devices.DeviceCount, 2) << "the old form keeps its separators";
    EXPECT_EQ(drawing.devices.DeviceX[0], 1.25f);
    EXPECT_EQ(drawing.devices.DeviceOrientation[1], 1);
}

TEST_F(RecordParsersTest, PointsBecomeCommasUnderACommaLocale) {
    commaLocale();
    labels("1.5|1.25|2.5|0|Font.A|8.25|False|False\n2.5|1|2|0|Font.B|8|False|True\n");
    EXPECT_EQ(drawing.labels.LabelText[0], "1.5");
    EXPECT_EQ(drawing.labels.LabelX[0], 1.25f);
    EXPECT_EQ(drawing.labels.LabelFontName[0], "Font,A");
    EXPECT_EQ(drawing.labels.LabelFontSize[0], 8.25f);
    EXPECT_EQ(drawing.labels.LabelText[1], "2.5");
    EXPECT_EQ(drawing.labels.LabelFontName[1], "Font,B");
}

TEST_F(RecordParsersTest, NoRepairWithoutADecimalBehindTheSecondSeparator) {
    labels("1,5|1,25|2|0|A,B|8|False|False\nM|1|2,5|0|A,B|8|False|False\n");
    EXPECT_EQ(drawing.labels.LabelFontName[0], "A,B");
    EXPECT_EQ(drawing.labels.LabelX[0], 1.25f) << "numbers read with either mark all the same";
    EXPECT_EQ(drawing.labels.LabelY[1], 2.5f);

    commaLocale();
    labels("M|1|2|0|A.B|8|False|False\n");
    EXPECT_EQ(drawing.labels.LabelFontName[0], "A.B");
}

TEST_F(RecordParsersTest, LabelsOfAllGenerations) {
    drawing.DefaultFontName = "Courier New";
    drawing.DefaultFontSize = 12;
    drawing.DefaultFontItalic = true;

    labels("M1|3.2|2.75|255|Arial|10|True|False\n\nM2|1|2|0\n");
    ASSERT_EQ(drawing.labels.LabelCount, 3) << "an empty line counts";
    EXPECT_EQ(drawing.labels.LabelFontName[0], "Arial");
    EXPECT_TRUE(drawing.labels.LabelBold[0]);
    EXPECT_EQ(drawing.labels.LabelText[1], "");
    EXPECT_EQ(drawing.labels.LabelFontName[1], "");
    EXPECT_EQ(drawing.labels.LabelText[2], "M2");
    EXPECT_EQ(drawing.labels.LabelFontName[2], "Courier New");
    EXPECT_EQ(drawing.labels.LabelFontSize[2], 12);
    EXPECT_TRUE(drawing.labels.LabelItalic[2]);
    EXPECT_EQ(readable(drawing.LabelRecord(2)), "M2|1|2|0");

    labels("M3, 3.2, 2.75, 255\n");
    EXPECT_EQ(drawing.labels.LabelText[0], "M3");
    EXPECT_EQ(drawing.labels.LabelColor[0], 255);
    EXPECT_EQ(drawing.labels.LabelFontName[0], "") << "the old form has no font at all";
    EXPECT_EQ(drawing.labels.LabelFontSize[0], 0);
}

class PictureParserTest : public RecordParsersTest {
  protected:
    PictureParserTest() {
        drawing.PictureParentFolder = machine.folder / "documents/";
        drawing.PictureFolderName = "Pump";
    }
    void pictures(std::string_view text) {
        drawing.PictureString = asRecords(text);
        ParsePictureString(drawing, machine.platform);
    }
    void file(const std::string& name) { machine.folder.write("documents/" + name, "picture"); }
};

TEST_F(PictureParserTest, FoundPicturesAreTakenAndMissingOnesCounted) {
    file("Pump/logo.bmp");
    file("Pump/Stamp.PNG");
    file("outside.bmp");
    pictures("logo.bmp|0.5|0.75|2|1.25\nlost.bmp|x|y\nstamp.png|1|1|1|1\n");
    ASSERT_EQ(drawing.PictureCount, 2);
    const PictureRow& logo = drawing.PictureTable[0];
    EXPECT_EQ(logo.FileName, "logo.bmp");
    EXPECT_EQ(logo.FullPath, machine.folder / "documents/Pump/logo.bmp");
    EXPECT_EQ(logo.Left, 0.5f);
    EXPECT_EQ(logo.Top, 0.75f);
    EXPECT_EQ(logo.Width, 2);
    EXPECT_EQ(logo.Height, 1.25f);
    EXPECT_EQ(drawing.PictureTable[1].FileName, "stamp.png");
    EXPECT_EQ(drawing.PictureTable[1].FullPath, machine.folder / "documents/Pump/Stamp.PNG");
    EXPECT_EQ(lastBox(), "1 picture could not be found.");

    pictures("left over\n///logo.bmp|1|1|1|1\n");
    EXPECT_EQ(drawing.PictureCount, 1) << "a head before the pictures is skipped";
    pictures("logo.bmp, 1, 1, 1, 1\n");
    EXPECT_EQ(drawing.PictureCount, 0) << "the old form has none";

    pictures("../outside.bmp|1|1|1|1\nPump/logo.bmp|1|1|1|1\n..|1|1|1|1\nlogo.bmp|1|1|1|1\n");
    EXPECT_EQ(drawing.PictureCount, 1) << "only bare names lead to a picture";
    EXPECT_EQ(lastBox(), "3 pictures could not be found.");
}

TEST_F(PictureParserTest, FoldersAreNoPicturesAndAnExactNameWins) {
    machine.folder.makeFolder("documents/Pump");
    machine.folder.makeFolder("documents/Pump/folder.bmp");
    file("Pump/LOGO.bmp");
    file("Pump/logo.bmp");
    pictures("folder.bmp|1|1|1|1\nlogo.bmp|1|1|1|1\nLOGO.bmp|1|1|1|1\n");
    ASSERT_EQ(drawing.PictureCount, 2);
    EXPECT_EQ(drawing.PictureTable[0].FullPath, machine.folder / "documents/Pump/logo.bmp");
    EXPECT_EQ(drawing.PictureTable[1].FullPath, machine.folder / "documents/Pump/LOGO.bmp");
}

TEST_F(PictureParserTest, AnEmptySectionAsksForNoFolder) {
    pictures("");
    EXPECT_TRUE(machine.dialogs.boxes.empty());
    pictures("logo.bmp|1|1|1|1\n");
    EXPECT_EQ(lastBox(), "Picture files could not be found. Associated picture folder is missing.");
    EXPECT_EQ(drawing.PictureCount, 0);
    EXPECT_EQ(readable(drawing.PictureString), "logo.bmp|1|1|1|1\n")
        << "the section is kept for the day when the folder is back";
}

TEST_F(PictureParserTest, ABadNumberOrAFolderThatCannotBeReadIsReported) {
    file("Pump/logo.bmp");
    pictures("logo.bmp|1|1|1|1\nlogo.bmp|1|1|wide|1\nlogo.bmp|1|1|1|1\n");
    EXPECT_EQ(drawing.PictureCount, 1);
    ASSERT_EQ(machine.reports.size(), 1u);
    EXPECT_EQ(machine.reports[0].description, "Parse Picture String");

    machine.files.fail(test::Operation::List, {failure::PermissionDenied, "Permission denied"});
    pictures("logo.bmp|1|1|1|1\n");
    EXPECT_EQ(drawing.PictureCount, 0);
    ASSERT_EQ(machine.reports.size(), 2u);
    EXPECT_EQ(machine.reports[1].number, failure::PermissionDenied);
}

}  // namespace
}  // namespace ladrix
