// Dialogs where nobody sits at the screen: what is read for a small picture, exported from a
// command line or made by a tool.
#pragma once

#include "platform/Platform.h"

namespace ladrix {

// Every question is given up, no form is shown. What is told is dropped unless a derived class
// keeps it.
class SilentDialogs : public Dialogs {
  public:
    Answer message(std::string_view, std::string_view, Buttons) override { return Answer::Cancel; }
    std::optional<std::string> input(std::string_view, std::string_view,
                                     std::string_view) override {
        return std::nullopt;
    }
    void show(Form) override {}
    void open(Form) override {}
    void popUp(std::string_view) override {}
};

}  // namespace ladrix
