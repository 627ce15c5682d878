#include "document/DrawingFile.h"

#include <gtest/gtest.h>

#include "RecordText.h"
#include "document/Records.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using test::asRecords;
using test::readable;

FileTime noon(int year, unsigned month, unsigned day) {
    using namespace std::chrono;
    return sys_days{std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day)} +
           hours{12};
}

const FileTime Today = noon(2024, 6, 1);
const FileTime LongAgo = noon(2009, 3, 1);

// The parts of a file, in the readable form of records.
DrawingParts split(std::string_view text, FileTime modified = Today) {
    DrawingParts parts = splitFile(asRecords(text), modified);
    parts.devices = readable(parts.devices);
    parts.labels = readable(parts.labels);
    if (parts.pictures) parts.pictures = readable(*parts.pictures);
    return parts;
}

constexpr std::string_view WholeFile =
    "///File Description///\n"
    "Conveyor start circuit\n"
    "///End File Description///\n"
    "8.5x14Landscape\n"
    "\n"
    "InsertNormallyOpenAux|3.125|2.5|0||1|1|0|False\n"
    "InsertSavedLine|1|1|4.5|1|0|0\n"
    "\n"
    "Motor Starter|3.2|2.75|0|Arial|10|False|False\n"
    "///Picture Files///\n"
    "logo.bmp|0.5|0.5|2|1.25\n";

TEST(DrawingFile, AWholeFileComesApartIntoItsParts) {
    const DrawingParts parts = split(WholeFile);
    EXPECT_EQ(parts.description, "Conveyor start circuit");
    EXPECT_EQ(parts.pageKey, "8.5x14Landscape");
    EXPECT_EQ(parts.devices,
              "InsertNormallyOpenAux|3.125|2.5|0||1|1|0|False\nInsertSavedLine|1|1|4.5|1|0|0\n");
    EXPECT_EQ(parts.labels, "Motor Starter|3.2|2.75|0|Arial|10|False|False\n");
    EXPECT_EQ(parts.pictures, "logo.bmp|0.5|0.5|2|1.25\n");
}

TEST(DrawingFile, OldFilesHaveNoPageKey) {
    const struct {
        const char* text;
        FileTime modified;
        const char *devices, *labels;
    } cases[] = {
        {"SomethingElse, 1, 1, 0, \n\nM1, 1, 1, 0\n", LongAgo, "SomethingElse, 1, 1, 0, \n",
         "M1, 1, 1, 0\n"},
        {"InsertCoil, 1, 1, 0, \n\nM1, 1, 1, 0\n", Today, "InsertCoil, 1, 1, 0, \n",
         "M1, 1, 1, 0\n"},
        // Even where a key stands in it.
        {"17x22Portrait\n\nInsertCoil|1|1|0|\n\nM1|1|1|0\n", LongAgo, "17x22Portrait\n",
         "InsertCoil|1|1|0|\n\nM1|1|1|0\n"},
        {"///File Description///\nold\n///End File Description///\nInsertCoil, 1, 1, 0, \n\n",
         Today, "InsertCoil, 1, 1, 0, \n", ""},
    };
    for (const auto& [text, modified, devices, labels] : cases) {
        const DrawingParts parts = split(text, modified);
        EXPECT_EQ(parts.pageKey, "8.5x11Portrait") << text;
        EXPECT_EQ(parts.devices, devices) << text;
        EXPECT_EQ(parts.labels, labels) << text;
    }
}

TEST(DrawingFile, PageKeysBeginOn10January2011) {
    EXPECT_TRUE(isOldFile(noon(2011, 1, 8), "8.5x11Portrait"));
    EXPECT_FALSE(isOldFile(noon(2011, 1, 11), "8.5x11Portrait"));
    EXPECT_TRUE(isOldFile(noon(2011, 1, 11), "InsertCoil"));
    EXPECT_FALSE(isOldFile(noon(2011, 1, 11), " InsertCoil"));
}

TEST(DrawingFile, MissingDivisionsGiveWhatThereIs) {
    const struct {
        const char* text;
        FileTime modified;
        const char *pageKey, *devices, *labels;
    } cases[] = {
        {"", Today, "8.5x11Portrait", "", ""},
        {"17x22Portrait\n", Today, "8.5x11Portrait", "", ""},
        {"17x22Portrait\n\n", Today, "17x22Portrait", "", ""},
        {"17x22Portrait\n\n\nM1|1|1|0\n", Today, "17x22Portrait", "", "M1|1|1|0\n"},
        {"17x22Portrait\n\nInsertA|1\nM1|1\n", Today, "17x22Portrait", "", "M1|1\n"},
        {"17x22Portrait\n\nInsertA|1\n\n", Today, "17x22Portrait", "InsertA|1\n", ""},
        {"\n\nInsertA|1\n\n", Today, "", "InsertA|1\n", ""},
        {"\nM1|1\n", LongAgo, "8.5x11Portrait", "", "M1|1\n"},
    };
    for (const auto& [text, modified, pageKey, devices, labels] : cases) {
        const DrawingParts parts = split(text, modified);
        EXPECT_EQ(parts.pageKey, pageKey) << text;
        EXPECT_EQ(parts.devices, devices) << text;
        EXPECT_EQ(parts.labels, labels) << text;
        EXPECT_FALSE(parts.pictures) << text << ": not the same as none";
    }
}

TEST(DrawingFile, DescriptionsAreTakenAsFarAsTheyAreThere) {
    EXPECT_EQ(split("///File Description///\n///End File Description///\nkey\n\n").description, "");
    EXPECT_EQ(split("text\n///End File Description///\nkey\n\n").description, "text");
    EXPECT_EQ(split("///End File Description///").description, "");
    const DrawingParts open = split("///File Description///\ntext\n\nInsertA|1\n\n");
    EXPECT_EQ(open.description, "");
    EXPECT_EQ(open.pageKey, "///File Description///\r\ntext");
    EXPECT_EQ(open.devices, "InsertA|1\n");
}

TEST(DrawingFile, AMarkerInsideALineIsText) {
    const std::string marked =
        "8.5x11Portrait\n\nInsertA|1\n\n///End File Description///|1\nx///Picture Files///|1\n"
        "///Picture Files///|1\n";
    const DrawingParts parts = split(marked);
    EXPECT_EQ(parts.description, "");
    EXPECT_EQ(parts.devices, "InsertA|1\n");
    EXPECT_EQ(parts.labels, marked.substr(marked.find("///")));
    EXPECT_FALSE(parts.pictures);
    EXPECT_EQ(split("8.5x11Portrait\n\n\nM1|1|2///Picture Files///\nlogo.bmp|1\n").pictures,
              "logo.bmp|1\n")
        << "behind a label that was cut off";
}

// ---- A template and a drawing, each in a form of its own

std::string inForm(std::string text, std::string_view separator, char mark) {
    std::string out;
    for (const char c : text) {
        if (c == '|')
            out += separator;
        else
            out += c == '.' ? mark : c;
    }
    return asRecords(out);
}

TEST(DrawingFile, ATemplateAndADrawingOfAnyFormsReadAsOneAfterTheOther) {
    constexpr std::string_view Separators[] = {"\xFF", "=FF", ", "};
    const auto join = [](Drawing& drawing, std::string_view front, char frontMark,
                         std::string_view back, char backMark) {
        drawing.TemplateActive = true;
        drawing.TemplateDevices = inForm("InsertA|1.5|2.5|0|\n", front, frontMark);
        drawing.TemplateLabels = inForm("T1|1.5|2.25|7\nT2|2|2|7\n", front, frontMark);
        DrawingParts file;
        file.devices = inForm("InsertB|3.5|4.5|0|\nInsertC|3|4|0|\n", back, backMark);
        file.labels = inForm("M1|3.5|4.25|9\n", back, backMark);
        takeParts(drawing, std::move(file));
    };
    for (const std::string_view front : Separators) {
        for (const std::string_view back : Separators) {
            for (int marks = 0; marks < 8; ++marks) {
                test::FakePlatform machine;
                machine.platform.locale.decimalMark = (marks & 4) != 0 ? ',' : '.';
                Drawing drawing;
                join(drawing, front, (marks & 1) != 0 ? ',' : '.', back,
                     (marks & 2) != 0 ? ',' : '.');
                SCOPED_TRACE(readable(drawing.DeviceString + drawing.LabelString));
                ParseDeviceString(drawing, machine.platform);
                ParseLabelString(drawing, machine.platform);
                EXPECT_TRUE(machine.reports.empty());
                EXPECT_EQ(drawing.devices.DeviceName,
                          (std::vector<std::string>{"InsertA", "InsertB", "InsertC"}));
                EXPECT_EQ(drawing.devices.DeviceY, (std::vector<Single>{2.5f, 4.5f, 4}));
                EXPECT_EQ(drawing.labels.LabelText, (std::vector<std::string>{"T1", "T2", "M1"}));
                EXPECT_EQ(drawing.labels.LabelY, (std::vector<Single>{2.25f, 2, 4.25f}));
                const std::string fonts[] = {front == ", " ? "" : "Arial",
                                             back == ", " ? "" : "Arial"};
                EXPECT_EQ(drawing.labels.LabelFontName,
                          (std::vector<std::string>{fonts[0], fonts[0], fonts[1]}));
                EXPECT_EQ(drawing.labels.LabelColor, (std::vector<Long>{7, 7, 9}));
                const DrawingParts copy =
                    splitFile(crashCopyText(drawing), std::chrono::system_clock::now());
                EXPECT_EQ(copy.devices, drawing.DeviceString);
                EXPECT_EQ(copy.labels, drawing.LabelString);
            }
        }
    }
}

TEST(DrawingFile, WhatATemplateCannotGiveDoesNotSpoilTheDrawing) {
    const struct {
        const char *front, *back, *joined;
    } cases[] = {
        {"", "InsertB|1\n", "InsertB|1\n"},
        {"InsertA|1\n", "", "InsertA|1\n"},
        {"\n", "InsertB|1\n", "InsertB|1\n"},
        {"InsertA|1\n", "\n", "InsertA|1\n"},
        {"not understood\n", "InsertB|1\n", "InsertB|1\n"},
        {"InsertA|1\n", "not understood\n", "InsertA|1\nnot understood\n"},
        {"InsertA|1\nInser", "InsertB|1\n", "InsertA|1\nInsertB|1\n"},
        {"InsertA|1\n", "InsertB|1\nInser", "InsertA|1\nInsertB|1\nInser"},
        // A text goes over to the mark of what stands before it.
        {"A|1|2,5|x.y\n", "1.5|1|2.5|A.B\n3.5|1|2\n", "A|1|2,5|x.y\n1.5|1|2,5|A,B\n3.5|1|2\n"},
        {"A|1|2\n", "B|1|2.5|A.B\n", "A|1|2\nB|1|2.5|A.B\n"},
        {"A, 1, 2, 0, \n", "B, 1, 2, 0, \n", "A, 1, 2, 0, \nB, 1, 2, 0, \n"},
    };
    for (const auto& [front, back, joined] : cases) {
        Drawing drawing;
        drawing.TemplateActive = true;
        drawing.TemplateDevices = asRecords(front);
        DrawingParts file;
        file.devices = asRecords(back);
        takeParts(drawing, std::move(file));
        EXPECT_EQ(readable(drawing.DeviceString), joined) << front << "and\n" << back;
    }
}

}  // namespace
}  // namespace ladrix
