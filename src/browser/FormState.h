// What the browser's handlers share: steps on the form's state.
#pragma once

#include <string>
#include <string_view>

#include "browser/FileBrowser.h"

namespace ladrix {

// Runs a handler's steps on its single error path; the form's own note tells why they failed too.
// False if they did.
template <class Steps>
bool guarded(FileBrowser& browser, const Editor& editor, std::string_view description,
             const Steps& steps) {
    browser.lblNote.Caption.clear();
    return editor.platform.attempt(description, [&] {
        try {
            steps();
        } catch (const Failure& failure) {
            browser.lblNote.Caption = failure.text;
            throw;
        }
    });
}

std::string withoutBlanks(std::string_view text);

// The row of this name, -1 if it is not listed.
int indexOf(const FileBrowser& browser, std::string_view name);
std::string markedName(const FileBrowser& browser);  // "" if none is

// Marks an entry (-1: none) without choosing it.
void mark(FileBrowser& browser, int index);
void clearPreview(FileBrowser& browser);
// The caption of a form in which nothing is chosen.
void showModeCaption(FileBrowser& browser, const Drawing& drawing);

// A file of the list as a click chooses it.
void chooseFile(FileBrowser& browser, Editor& editor, const std::string& name);

// The form goes; its caller finds what was chosen.
void handOver(FileBrowser& browser, std::string folder, std::string file);

void tellIllegalName(const Editor& editor);

}  // namespace ladrix
