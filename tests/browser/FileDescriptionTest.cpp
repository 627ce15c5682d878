#include "browser/FileDescription.h"

#include <gtest/gtest.h>

#include "document/DrawingFile.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

TEST(FileDescription, LeavesOutWhatAFileCannotHold) {
    const struct {
        const char *typed, *held;
    } cases[] = {
        {"Start\nStop\r\nJog\rEnd", "Start\r\nStop\r\nJog\r\nEnd"},
        {"\tM\xC3\xBCller \xE2\x82\xAC \xC3\xBF", "\tM\xFCller \x80 \xFF"},
        {"a\xCE\xA9z \xF0\x9F\x94\x8C.", "az ."},
        {"a\xC2\x81\xC2\x9D\x01\x7F\xFEz", "az"},
        {"x///End File Description///y", "xEnd File Descriptiony"},
        {"///End File Description///End File Description///",
         "End File DescriptionEnd File Description///"},
    };
    for (const auto& [typed, held] : cases)
        EXPECT_EQ(describable(typed), held) << typed;
}

TEST(FileDescription, ComesBackFromTheFileAsItWasTyped) {
    test::FakePlatform fake;
    Editor editor(fake.platform);
    const char* const texts[] = {
        "One line",
        "\n\nBlank lines around\n\n",
        "///File Description///",
        "///Picture Files///\nInsertSavedLine",
        "//////End File Description//////End File Description///",
        "8.5x11Portrait\n\n",
    };
    for (const char* typed : texts) {
        frmDesc_txtDescription_Change(editor, typed);
        editor.drawing.FileDescription = editor.frmDesc.txtDescription;
        const DrawingParts parts =
            splitFile(fileText(editor.drawing), std::chrono::system_clock::now());
        EXPECT_EQ(parts.description, editor.frmDesc.txtDescription) << typed;
        EXPECT_EQ(parts.pageKey, DefaultPageKey) << typed;
    }
}

}  // namespace
}  // namespace ladrix
