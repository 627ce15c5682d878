// Message boxes, the input box and the modal forms.
#pragma once

#include <functional>

#include "platform/Platform.h"

class QWidget;

namespace ladrix {

class QtDialogs final : public Dialogs {
  public:
    // Set by whoever builds the window; all may stay empty before there is one.
    QWidget* window = nullptr;
    std::function<void()> beforeModal;  // the window shows the present state
    std::function<void(Form)> runForm;
    std::function<void(Form)> openForm;
    std::function<void(std::string_view)> popUpMenu;

    // Nobody is there to answer: boxes go to standard error and answer Cancel.
    bool unattended = false;
    bool refused = false;  // an unattended run had something to tell or ask

    Answer message(std::string_view text, std::string_view title, Buttons buttons) override;
    std::optional<std::string> input(std::string_view prompt, std::string_view title,
                                     std::string_view value) override;
    void show(Form form) override;
    void open(Form form) override;
    void popUp(std::string_view menuName) override;

  private:
    bool turnedAway(std::string_view text);
    QWidget* owner() const;
};

}  // namespace ladrix
