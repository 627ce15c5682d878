// A list to choose from, shown by a widget that nobody can type into. A text that is not in the
// list stands there all the same, as nothing chosen.
#pragma once

#include <QComboBox>
#include <QSignalBlocker>

#include "canvas/state/Controls.h"
#include "qt/QtText.h"

namespace ladrix {

inline void showComboBox(QComboBox& widget, const ComboBox& state) {
    const QSignalBlocker quiet(widget);
    const QStringList names = toQStringList(state.List);
    QStringList shown;
    for (int i = 0; i < widget.count(); ++i)
        shown << widget.itemText(i);
    if (names != shown) {
        widget.clear();
        widget.addItems(names);
    }
    widget.setPlaceholderText(toQString(state.Text));
    widget.setCurrentIndex(static_cast<int>(names.indexOf(toQString(state.Text))));
}

}  // namespace ladrix
