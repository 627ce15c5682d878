// Libraries on disk: short symbols by name, and the folders as text to compare.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SymbolBench.h"

namespace ladrix::test {

// A symbol's three files tell whose they are, so that each shows where it came from.
inline void writeSymbol(const TemporaryFolder& disk, const std::string& library,
                        const std::string& name) {
    const std::string path = "documents/" + library + "/" + name;
    disk.write(path + ".uds", "Line:0:0:0.5:0 of " + library + "/" + name + "\r\n");
    disk.write(path + ".bmp", "BM " + library + name);
    disk.write(path + "_Cyan.bmp", "BM cyan " + library + name);
}

inline void writeLibrary(const TemporaryFolder& disk, const std::string& library,
                         const std::vector<std::string>& names) {
    std::string list;
    disk.makeFolder("documents/" + library);
    for (const std::string& name : names) {
        writeSymbol(disk, library, name);
        list += name + "\r\n";
    }
    disk.write("documents/" + library + ".lib", list);
}

struct LibraryBench : testing::Test, SymbolBench {
    FakeDialogs& dialogs = machine.dialogs;
    const TemporaryFolder& disk = machine.folder;

    LibraryBench() { LoadLibraryButtons(editor, Library::NEMA); }

    void write(const std::string& library, const std::vector<std::string>& names) {
        writeLibrary(disk, library, names);
    }

    void load() {
        ListUserLibraries(symbols, editor);
        ReloadLibrary(symbols, editor);
    }

    // "A B": the names in the list. "!" behind one that lacks a file.
    std::string list(const std::string& library) const {
        std::string text = disk.read("documents/" + library + ".lib"), names;
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = text.find("\r\n", at);
            const std::string name = text.substr(at, end - at);
            const std::string path = "documents/" + library + "/" + name;
            const bool whole =
                disk.has(path + ".uds") && disk.has(path + ".bmp") && disk.has(path + "_Cyan.bmp");
            names += (names.empty() ? "" : " ") + name + (whole ? "" : "!");
            at = end + 2;
        }
        return names;
    }

    // The file of a listed or unlisted symbol: "User Symbols/A".
    std::string script(const std::string& symbol) const {
        return disk.read("documents/" + symbol + ".uds");
    }
    // The scripts in the folder, listed or not.
    std::string scripts(const std::string& library) const {
        std::string names;
        for (const std::string& entry : disk.entries("documents/" + library))
            if (entry.ends_with(".uds"))
                names += (names.empty() ? "" : " ") + entry.substr(0, entry.size() - 4);
        return names;
    }

    std::string tags() const {
        std::string text;
        for (Short i = symbols.FirstUserButton; i < symbols.LastUserButton; ++i)
            text += (text.empty() ? "" : " ") + editor.form.cmdSym[static_cast<std::size_t>(i)].Tag;
        return text;
    }

    std::string lastBox() const { return dialogs.boxes.empty() ? "" : dialogs.boxes.back().text; }
};

inline std::vector<std::string> numbered(int count) {
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i)
        names.push_back("S" + std::to_string(100 + i));
    return names;
}

}  // namespace ladrix::test
