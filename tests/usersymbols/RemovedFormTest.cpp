#include "usersymbols/RemovedForm.h"

#include "LibraryBench.h"

namespace ladrix {
namespace {

struct RemovedFormTest : test::LibraryBench {
    RemovedForm form;
    const std::string removals = removalsFolder(machine.files, editor.BasePath);

    void keep(const std::string& library, const std::vector<std::string>& names) {
        keepSymbols(machine.files, removals, {editor.BasePath, library}, names);
    }
    // Brings back the row of this name, the newest first, and tells what the form says then.
    std::string bringBack(const std::string& name, bool library = false) {
        mnuLibBringBack_Click(form, symbols, editor);
        for (int row = 0; row < static_cast<int>(form.Items.size()); ++row) {
            const RemovedItem& item = form.Items[static_cast<std::size_t>(row)];
            if (item.Name != name || item.IsLibrary != library) continue;
            lstRemoved_Click(form, row);
            frmRemoved_cmdBringBack_Click(form, symbols, editor);
            return form.lblMessage.Caption;
        }
        return "no such row";
    }
};

TEST_F(RemovedFormTest, ASymbolComesBackIntoTheOpenLibraryUnderAFreeName) {
    write("User Symbols", {"A", "A_Cyan"});
    write("Other Symbols", {"B"});
    load();
    mnuLibBringBack_Click(form, symbols, editor);
    EXPECT_EQ(form.lblMessage.Caption, "No symbol has been removed.");
    EXPECT_FALSE(form.cmdBringBack.Enabled);
    keep("User Symbols", {"A", "A_Cyan"});
    keep("Other Symbols", {"B"});
    removeSymbols(machine.files, symbols.SymbolFolder, {"A_Cyan"});

    struct {
        const char *name, *told, *tags;
    } const steps[] = {
        {"B", "B is back in User Symbols.", "A B"},
        {"A", "A is back in User Symbols as A (2).", "A B A (2)"},
        {"A_Cyan", "A_Cyan is back in User Symbols as A_Cyan (2).", "A B A (2) A_Cyan (2)"},
        {"B", "B is back in User Symbols as B (2).", "A B A (2) A_Cyan (2) B (2)"},
    };
    for (const auto& step : steps) {
        EXPECT_EQ(bringBack(step.name), step.told);
        EXPECT_EQ(tags(), step.tags);
    }
    EXPECT_EQ(script("User Symbols/B"), "Line:0:0:0.5:0 of Other Symbols/B\r\n");
    EXPECT_NE(pictureOfRemoved(form.Items.front(), machine.platform), nullptr);
    frmRemoved_cmdExit_Click(form);
    EXPECT_FALSE(form.Visible);
}

TEST_F(RemovedFormTest, ALibraryComesBackWholeAndIsOpened) {
    for (const bool moves : {true, false}) {
        SCOPED_TRACE(moves);
        if (!moves)
            machine.files.fail(test::Operation::Rename, {failure::PathFileAccess, "another disk"});
        write("User Symbols", {});
        write("Other Symbols", {"D", "B"});
        load();
        removeLibrary(machine.files, removals, {editor.BasePath, "Other Symbols"});
        mnuLibBringBack_Click(form, symbols, editor);
        ASSERT_EQ(form.Items[0].SymbolCount, 2u);
        EXPECT_NE(pictureOfRemoved(form.Items[0], machine.platform), nullptr);
        EXPECT_EQ(bringBack("Other Symbols", true), "Other Symbols is back.");
        EXPECT_EQ(list("Other Symbols"), "D B");
        EXPECT_EQ(symbols.LibraryFile, "Other Symbols.lib");
        EXPECT_EQ(tags(), "D B");

        removeLibrary(machine.files, removals, {editor.BasePath, "Other Symbols"});
        write("Other Symbols", {"X"});
        EXPECT_EQ(bringBack("Other Symbols", true), "Other Symbols is back as Other (2) Symbols.");
        EXPECT_EQ(list("Other (2) Symbols"), "D B");
        EXPECT_EQ(list("Other Symbols"), "X");
        removeLibrary(machine.files, removals, {editor.BasePath, "Other (2) Symbols"});
        removeSymbols(machine.files, editor.BasePath + "Other Symbols/", {"X"});
    }
    EXPECT_TRUE(machine.reports.empty());
}

TEST_F(RemovedFormTest, WhatCannotBeBroughtBackIsTold) {
    write("User Symbols", {"A"});
    load();
    keep("User Symbols", {"A"});
    const Failure full{failure::DiskFull, "No space left on device"};
    machine.files.fail(test::Operation::Replace, full, "A (2)");
    EXPECT_EQ(bringBack("A"), "A was not brought back. " + full.text);
    EXPECT_EQ(machine.reports.size(), 1u);
    EXPECT_EQ(list("User Symbols"), "A");
    machine.files.heal();
    machine.files.fail(test::Operation::Read, full, "User Symbols.lib");
    EXPECT_EQ(bringBack("A"), "no such row") << "its removal cannot be read either";
    machine.files.heal();
    editor.Arranging = true;
    form = {};
    mnuLibBringBack_Click(form, symbols, editor);
    EXPECT_FALSE(form.Visible);
}

}  // namespace
}  // namespace ladrix
