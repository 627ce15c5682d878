#include "qt/QtDialogs.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QVBoxLayout>
#include <cstdio>

#include "platform/Encoding.h"
#include "qt/InputFilters.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int InputWidth = 360;

QMessageBox::StandardButtons buttonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::Ok:
            return QMessageBox::Ok;
        case Buttons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Buttons::YesNo:
        case Buttons::YesNoDefaultNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

// A box that can only be taken or left has a fault to tell.
QMessageBox::Icon iconOf(Buttons buttons) {
    if (buttons == Buttons::Ok) return QMessageBox::Information;
    return buttons == Buttons::OkCancel ? QMessageBox::Warning : QMessageBox::Question;
}

Answer answerOf(int button, Buttons buttons) {
    if (buttons == Buttons::Ok) return Answer::Ok;
    switch (button) {
        case QMessageBox::Ok:
            return Answer::Ok;
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return Answer::Cancel;
    }
}

// A name may be a single word wider than any screen: it is broken where it must be.
QString breakable(QString text) {
    constexpr int Longest = 64;
    int word = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        word = text[i].isSpace() ? 0 : word + 1;
        if (word <= Longest) continue;
        text.insert(i, QChar(0x200b));
        word = 0;
    }
    return text;
}

}  // namespace

bool QtDialogs::turnedAway(std::string_view text) {
    if (!unattended) return false;
    refused = true;
    std::fprintf(stderr, "ladrix: %s\n", toUtf8(text).c_str());
    return true;
}

// A box belongs to the window in which it was brought about.
QWidget* QtDialogs::owner() const {
    QWidget* const active = QApplication::activeWindow();
    return window && active ? active : window;
}

Answer QtDialogs::message(std::string_view text, std::string_view title, Buttons buttons) {
    if (turnedAway(text)) return buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    if (beforeModal) beforeModal();
    QMessageBox box(owner());
    box.setObjectName("messageBox");
    box.setIcon(iconOf(buttons));
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(toQString(title));
    box.setText(breakable(toQString(text)));
    box.setStandardButtons(buttonsOf(buttons));
    if (buttons == Buttons::YesNoDefaultNo) box.setDefaultButton(QMessageBox::No);
    return answerOf(box.exec(), buttons);
}

std::optional<std::string> QtDialogs::input(std::string_view prompt, std::string_view title,
                                            std::string_view value) {
    if (turnedAway(prompt)) return std::nullopt;
    if (beforeModal) beforeModal();
    QDialog box(owner());
    box.setObjectName("inputBox");
    box.setWindowTitle(toQString(title));
    box.setMinimumWidth(InputWidth);
    auto* label = new QLabel(breakable(toQString(prompt)), &box);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto* field = new QLineEdit(toQString(value), &box);
    field->setValidator(new RecordTextFilter(field));
    field->selectAll();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &box);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
    auto* column = new QVBoxLayout(&box);
    column->setContentsMargins(4 * theme::Unit, 4 * theme::Unit, 4 * theme::Unit, 3 * theme::Unit);
    column->setSpacing(3 * theme::Unit);
    column->addWidget(label);
    column->addWidget(field);
    column->addWidget(buttons);
    if (box.exec() != QDialog::Accepted) return std::nullopt;
    return fromQString(field->text());
}

void QtDialogs::show(Form form) {
    if (turnedAway("a dialog was to be shown") || !runForm) return;
    if (beforeModal) beforeModal();
    runForm(form);
}

void QtDialogs::open(Form form) {
    if (turnedAway("a window was to be opened") || !openForm) return;
    openForm(form);
}

void QtDialogs::popUp(std::string_view menuName) {
    if (popUpMenu) popUpMenu(menuName);
}

}  // namespace ladrix
