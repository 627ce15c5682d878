#include "support/FakeDialogs.h"

#include <stdexcept>
#include <utility>

namespace ladrix::test {

namespace {

bool offers(Buttons buttons, Answer answer) {
    switch (buttons) {
        case Buttons::Ok:
            break;
        case Buttons::OkCancel:
            return answer == Answer::Ok || answer == Answer::Cancel;
        case Buttons::YesNo:
        case Buttons::YesNoDefaultNo:
            return answer == Answer::Yes || answer == Answer::No;
        case Buttons::YesNoCancel:
            return answer != Answer::Ok;
    }
    return answer == Answer::Ok;
}

template <class T>
T takeFirst(std::deque<T>& queue) {
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
}

}  // namespace

Answer FakeDialogs::message(std::string_view text, std::string_view title, Buttons buttons) {
    const Box box{std::string(text), std::string(title), buttons};
    boxes.push_back(box);
    if (duringBox) duringBox(box);
    if (buttons == Buttons::Ok) return Answer::Ok;
    if (answers.empty()) return offers(buttons, Answer::Cancel) ? Answer::Cancel : Answer::No;
    const Answer answer = takeFirst(answers);
    if (!offers(buttons, answer)) {
        throw std::logic_error("The queued answer has no button in: " + box.text);
    }
    return answer;
}

std::optional<std::string> FakeDialogs::input(std::string_view prompt, std::string_view title,
                                              std::string_view value) {
    inputBoxes.push_back({std::string(prompt), std::string(title), std::string(value)});
    if (inputAnswers.empty()) return std::nullopt;
    return takeFirst(inputAnswers);
}

void FakeDialogs::show(Form form) {
    forms.push_back(form);
    if (duringForm) duringForm(form);
}

void FakeDialogs::popUp(std::string_view menuName) {
    popUps.emplace_back(menuName);
}

}  // namespace ladrix::test
