// Keeps widgets in step with the state they show. Each binding remembers what it showed last, so
// that a refresh after every handler costs a comparison where nothing has changed.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "canvas/state/Controls.h"

class QAbstractButton;
class QLabel;
class QLineEdit;
class QWidget;

namespace ladrix {

class Bindings {
  public:
    // `show(state)` runs at the first refresh and whenever the state differs from what was shown.
    // The state must outlive the binding.
    template <class State, class Show>
    void watch(const State& state, Show show) {
        watchers_.push_back([&state, show, shown = std::optional<State>{}]() mutable {
            if (shown == state) return;
            shown = state;
            show(state);
        });
    }

    // Caption and tip replace the widget's own where the state has any. A control without a handler
    // stays disabled.
    enum class Handler { Present, Missing };
    void add(QAbstractButton& button, const Control& state, Handler handler = Handler::Present);
    void add(QLabel& label, const Control& state);
    void add(QLineEdit& edit, const TextBox& state);
    void addPanel(QWidget& panel, const Control& state);

    void refresh() {
        for (const auto& watcher : watchers_)
            watcher();
    }

  private:
    std::vector<std::function<void()>> watchers_;
};

}  // namespace ladrix
