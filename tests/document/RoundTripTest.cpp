// Drawings of every kind, whole, cut off anywhere and with any byte changed: what is read is all
// there or told of, and what was read is written so that it stays the same from then on.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "RecordText.h"
#include "document/DrawingFile.h"
#include "document/Records.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

// ---- The drawings, in the readable form of records

const std::string Page = "8.5x11Portrait\n\n";
const std::string Description =
    "///File Description///\nConveyor \xFC"
    "ber 2 floors\n\nstart = \"S1\", 1.5 kW\n"
    "///End File Description///\n";
const std::string End = "///Picture Files///\n";

const std::string Symbols =
    "InsertNormallyOpenAux|3.125|2.5|0||1|1|0|False\n"
    "InsertCoil|7.0625|2.5|255|DrawWidth=2|1.5|-1|3|True\n"
    "InsertTransformer|0.25|10.75|16777215||0.5|0.5|2|False\n";
const std::string FreeShapes =
    "InsertSavedLine|1|1|4.5|1|0|0\n"
    "InsertSavedSquare|1|1.5|4.5|2|255|DrawWidth=2\n";
const std::string RoundShapes =
    "InsertCircle|2|2|0.25|9||1\n"
    "InsertSolidCircle|2.5|2|0.125|0||1\n"
    "InsertArc|2|2|0.5|3|16711680|DrawWidth=2|0.5|1.570796|0.75\n"
    "InsertSemiCircle|1.5|2.25|0.5|3|255|\n";
const std::string UserSymbols =
    "Pumpe 1,5|2|3|0||1|1|0|False\n"
    "Ventil \xE4=FF//|4.375|3|0||1|1|1|True\n";
const std::string FarNumbers =
    "InsertCoil|-1048576|0.0000001|16777215||1.234567|-0.0078125|7|True\n"
    "InsertSavedLine|0.3333333|99999.99|-0.015625|8388608|1|0\n"
    "InsertArc|16|0.1|3.402823|0|0||6.283185|-3.141593|1\n";
const std::string Labels =
    "Motor Starter|3.2|2.75|0|Arial|10|False|False\n"
    "1,5 kW \x80 \xB2|0.125|4|255|Times New Roman|9.75|True|True\n"
    " |2|3|0|Courier New|8|False|True\n";
// Texts that read like what the file is divided by.
const std::string Deceptive =
    "///Picture Files///|1|1|0|Arial|8|False|False\n"
    "x///Picture Files///|1.5|1|0|Arial|8|False|False\n"
    "///File Description///|1|1|0|Arial|8|False|False\n"
    "///End File Description///|1|1|0|///Picture Files///|8|False|False\n"
    "8.5x11Portrait|1|1|0|Arial|8|False|False\n"
    "InsertCoil|1|1|0|Arial|8|False|False\n"
    "|1|1|0|Arial|8|False|False\n"
    "  |1|1|0|Arial|8|False|False\n";
const std::string DeceptiveDescription =
    "///File Description///\n///File Description///\n\n///Picture Files///\n"
    "///End File Description///\nInsert\n///End File Description///\n"
    "///End File Description///\n";
const std::string Pictures = "logo.bmp|0.5|0.5|2|1.25\nPlan B.bmp|1|2.5|0.75|3\n";

std::string repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

std::string separatedBy(const std::string& separator, std::string text) {
    for (auto at = text.find('|'); at != std::string::npos; at = text.find('|', at))
        text.replace(at, 1, separator);
    return text;
}

std::string noise(std::size_t length) {
    std::mt19937 random(7);
    std::string bytes(length, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

struct Seed {
    std::string name, text;
    bool canonical = true;  // as the program writes it with a decimal point
    int year = 2024;        // of the file's date
};

std::vector<Seed> seeds() {
    return {
        {"Symbols", Page + repeated(Symbols, 3) + "\n" + End},
        {"FreeShapes", Page + repeated(FreeShapes, 5) + "\n" + End},
        {"RoundShapes", Page + repeated(RoundShapes, 2) + "\n" + End},
        {"UserSymbols", Page + repeated(UserSymbols, 4) + "\n" + End},
        {"FarNumbers", Page + FarNumbers + "\n" + Labels + End},
        {"LabelsOnly", Page + "\n" + repeated(Labels, 3) + End},
        {"SymbolsAndLabels", Page + Symbols + "\n" + Labels + End},
        {"PicturesOnly", Page + "\n" + End + Pictures},
        {"PicturesToo", Page + Symbols + "\n" + Labels + End + Pictures},
        {"MissingPicture", Page + Symbols + "\n" + End + "gone.bmp|1|1|1|1\n" + Pictures, false},
        {"Described", Description + Page + Symbols + FreeShapes + "\n" + Labels + End},
        {"Everything", Description + "17x22Landscape\n\n" + Symbols + FreeShapes + RoundShapes +
                           UserSymbols + "\n" + Labels + End + Pictures},
        {"DeceptiveLabels", Page + Symbols + "\n" + Deceptive + End + Pictures},
        {"DeceptiveLabelsOnly", Page + "\n" + Deceptive + End},
        {"DeceptiveCrashCopy", Page + Symbols + "\n" + Deceptive, false},
        {"DeceptiveDescription", DeceptiveDescription + Page + Symbols + "\n" + Labels + End},
        {"Empty", Page + "\n" + End},
        {"HeaderOnly", Page, false},
        {"DescribedAndEmpty", Description + Page + "\n" + End},
        {"CrashCopy", Page + Symbols + RoundShapes + "\n" + Labels, false},
        {"FirstForm",
         separatedBy(", ",
                     "InsertCoil|3.5|2|0|\nInsertTransformer2|1|2.25|0|DrawWidth=2\n\n"
                     "Motor Starter|3.25|2.75|0\nM2|1|1|255\n"),
         false, 2009},
        {"Dated", Symbols + FreeShapes + "\n" + Labels, false, 2009},
        {"Mailed", separatedBy("=FF", Page + Symbols + RoundShapes + "\n" + Labels), false},
        {"Noise", noise(200), false},
    };
}

// ---- Reading and writing as the editor does

class RoundTrip : public testing::TestWithParam<Seed> {
  protected:
    RoundTrip() {
        for (const char* picture : {"logo.bmp", "Plan B.bmp"})
            machine.folder.write(std::string("documents/Seed/") + picture, "BM");
    }

    // As a file of this year.
    Drawing load(const std::string& text, int year = 2024) {
        Drawing drawing;
        drawing.CurrentFolder = machine.folder / "documents/";
        drawing.CurrentFileName = "Seed.els";
        takeParts(drawing, splitFile(text, std::chrono::sys_days{std::chrono::year{year} / 6 / 1}));
        ParseDeviceString(drawing, machine.platform);
        ParseLabelString(drawing, machine.platform);
        ParsePictureString(drawing, machine.platform);
        return drawing;
    }
    // A redraw remakes the texts from the columns before anything is saved.
    std::string save(Drawing& drawing) {
        RebuildDeviceString(drawing, machine.platform);
        RebuildLabelString(drawing, machine.platform);
        RebuildPictureString(drawing, machine.platform);
        return fileText(drawing);
    }
    bool isTold() const { return !machine.reports.empty() || !machine.dialogs.boxes.empty(); }

    static bool holdsAllLines(const Drawing& drawing) {
        const auto lines = [](const std::string& text) {
            Short count = 0;
            for (auto at = text.find(LineEnd); at != std::string::npos;
                 at = text.find(LineEnd, at + 2))
                ++count;
            return count;
        };
        return drawing.devices.DeviceCount == lines(drawing.DeviceString) &&
               drawing.labels.LabelCount == lines(drawing.LabelString) &&
               drawing.PictureCount == lines(drawing.PictureString);
    }

    // What is wrong with the reading of this text; "" if nothing is.
    std::string faultOf(const std::string& text) {
        machine.reports.clear();
        machine.dialogs.boxes.clear();
        machine.files.calls.clear();
        Drawing first = load(text, GetParam().year);
        incomplete += first.ReadIncomplete;
        if ((first.ReadIncomplete || !holdsAllLines(first)) && !isTold()) return "not told";
        const std::string saved = save(first);
        Drawing second = load(saved);
        if (!first.ReadIncomplete && save(second) != saved) return "changes when it is saved again";
        for (const auto& call : machine.files.calls)
            if (call.operation != test::Operation::List) return "does more than look at the disk";
        return {};
    }

    test::FakePlatform machine;
    int incomplete = 0;
};

TEST_P(RoundTrip, OfADrawingIsTheSameUnderBothDecimalMarks) {
    const std::string text = test::asRecords(GetParam().text);
    for (const char mark : {'.', ','}) {
        machine.platform.locale.decimalMark = mark;
        EXPECT_EQ(faultOf(text), "") << mark;
        EXPECT_TRUE(!isTold() || !GetParam().canonical) << mark;
        Drawing first = load(text, GetParam().year);
        const std::string saved = save(first);
        machine.platform.locale.decimalMark = '.';
        Drawing second = load(saved);
        EXPECT_EQ(second.devices.DeviceX, first.devices.DeviceX) << mark;
        EXPECT_EQ(second.labels.LabelFontSize, first.labels.LabelFontSize) << mark;
        if (!GetParam().canonical) continue;
        EXPECT_EQ(test::readable(save(second)), GetParam().text) << mark;
    }
}

TEST_P(RoundTrip, OfADamagedDrawingIsStableOrTold) {
    const std::string whole = test::asRecords(GetParam().text);
    int faults = 0;
    const auto check = [&](const std::string& text, std::size_t at, const char* what) {
        const std::string fault = faultOf(text);
        if (fault.empty() || ++faults > 5) return;
        ADD_FAILURE() << what << " byte " << at << ": " << fault << "\n" << test::readable(text);
    };
    for (std::size_t length = 0; length < whole.size(); ++length)
        check(whole.substr(0, length), length, "cut before");
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string text = whole;
        for (const char byte : {'\0', '\r', '\n', '\xFF', '/', ',', '9'}) {
            text[at] = byte;
            check(text, at, "changed");
        }
    }
    EXPECT_EQ(faults, 0);
    EXPECT_TRUE(incomplete > 0 || GetParam().text.size() < 300) << "no damage was met";
}

INSTANTIATE_TEST_SUITE_P(Document, RoundTrip, testing::ValuesIn(seeds()),
                         [](const auto& each) { return each.param.name; });

}  // namespace
}  // namespace ladrix
