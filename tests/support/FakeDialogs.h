// The dialogs of a test: what a person would answer is queued up before, every box shown is kept.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"

namespace ladrix::test {

class FakeDialogs final : public Dialogs {
  public:
    struct Box {
        std::string text, title;
        Buttons buttons = Buttons::Ok;

        friend bool operator==(const Box&, const Box&) = default;
    };
    struct InputBox {
        std::string prompt, title, value;

        friend bool operator==(const InputBox&, const InputBox&) = default;
    };

    // Taken from the front by boxes with more than one button; a plain box answers Ok and takes
    // none. With none left Yes/No answers No, the others Cancel, and an input box is cancelled. An
    // answer that the box has no button for is the test's own fault and throws std::logic_error.
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> inputAnswers;

    // In the order shown.
    std::vector<Box> boxes;
    std::vector<InputBox> inputBoxes;
    std::vector<Form> forms;
    std::vector<std::string> popUps;

    // Called while the box or the form is up, if set: to look at the state behind it, to fire a
    // timer, or to act on the form.
    std::function<void(const Box&)> duringBox;
    std::function<void(Form)> duringForm;

    Answer message(std::string_view text, std::string_view title, Buttons buttons) override;
    std::optional<std::string> input(std::string_view prompt, std::string_view title,
                                     std::string_view value) override;
    void show(Form form) override;
    void open(Form form) override { forms.push_back(form); }
    void popUp(std::string_view menuName) override;
};

}  // namespace ladrix::test
