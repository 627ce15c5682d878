#include "document/DrawingFile.h"

#include <gtest/gtest.h>

#include "RecordText.h"
#include "document/Records.h"

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

}  // namespace
}  // namespace ladrix
