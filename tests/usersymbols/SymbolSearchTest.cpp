#include "usersymbols/SymbolSearch.h"

#include "LibraryBench.h"

namespace ladrix {
namespace {

struct SymbolSearchTest : test::LibraryBench {
    SymbolSearch search;

    SymbolSearchTest() {
        write("User Symbols", {"Pump Starter", "Drive"});
        write("Sample Symbols", {"PLC Input Card", "Starter, Reversing"});
        load();
        gatherSymbols(search, symbols, editor);
    }
    std::vector<std::string> find(const std::string& text) {
        txtFind_Change(search, text);
        std::vector<std::string> names;
        for (const std::size_t row : search.Found)
            names.push_back(search.Entries[row].Name);
        return names;
    }
    void choose(const std::string& text) {
        txtFind_Change(search, text);
        ASSERT_FALSE(search.Found.empty()) << text;
        pressFound(SearchEntry(search.Entries[search.Found[0]]), symbols, editor);
    }
    std::string toolTag() const {
        return editor.gesture.CurrentTool < 0
                   ? ""
                   : editor.form.cmdSym[static_cast<std::size_t>(editor.gesture.CurrentTool)].Tag;
    }
};

TEST_F(SymbolSearchTest, WordsNarrowInAnyOrderTheBestFirst) {
    EXPECT_EQ(find("starter"), (std::vector<std::string>{"Starter, Reversing", "Pump Starter"}));
    EXPECT_EQ(find("start  PUMP"), std::vector<std::string>{"Pump Starter"});
    EXPECT_EQ(find("sample card"), std::vector<std::string>{"PLC Input Card"});
    EXPECT_EQ(find("vertical push button").size(), 0u);
    EXPECT_GT(find("valve 4 way").size(), 3u);
    EXPECT_EQ(search.ListIndex, 0);
    EXPECT_EQ(find("no such thing").size(), 0u);
    EXPECT_EQ(search.ListIndex, -1);
    EXPECT_EQ(find("").size(), search.Entries.size());
    moveFindMark(search, 1000000);
    EXPECT_EQ(search.ListIndex, static_cast<int>(search.Entries.size()) - 1);
}

TEST_F(SymbolSearchTest, EverySymbolIsListedOnceAndItsButtonCanBePressed) {
    std::vector<std::string> builtIn;
    for (const SearchEntry& entry : search.Entries)
        if (!entry.isUsers()) builtIn.push_back(entry.Name);
    std::sort(builtIn.begin(), builtIn.end());
    EXPECT_EQ(std::adjacent_find(builtIn.begin(), builtIn.end()), builtIn.end());
    EXPECT_GT(builtIn.size(), 250u);
    for (const SearchEntry& entry : std::vector<SearchEntry>(search.Entries)) {
        pressFound(entry, symbols, editor);
        EXPECT_EQ(toolTag(), entry.Name) << entry.Where;
    }
}

TEST_F(SymbolSearchTest, TheSymbolsLibraryIsOpenedWhereItIsNot) {
    choose("diac");
    EXPECT_EQ(editor.OpenLibrary, Library::Electronic);
    choose("line");
    EXPECT_EQ(editor.OpenLibrary, Library::Electronic) << "it stands in this palette too";
    choose("plc");
    EXPECT_EQ(symbols.LibraryFile, "Sample Symbols.lib");
    EXPECT_EQ(editor.gesture.CurrentTool, 92);
    EXPECT_EQ(editor.symbols.block.CurDevice, "InsertUserSymbol");
}

TEST_F(SymbolSearchTest, ASymbolThatIsGoneIsTold) {
    txtFind_Change(search, "reversing");
    const SearchEntry entry = search.Entries[search.Found[0]];
    write("Sample Symbols", {"PLC Input Card"});
    pressFound(entry, symbols, editor);
    EXPECT_EQ(lastBox(), "Starter, Reversing is no longer in Sample Symbols.");
    EXPECT_EQ(editor.gesture.CurrentTool, -1);
}

}  // namespace
}  // namespace ladrix
