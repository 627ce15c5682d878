// txtHelp on the screen: plain text with the typography of a page. A line in capitals is a heading,
// a line with a tab an entry and what it means, a line that begins with "- " or a number an item of
// a list. What is typed and kept is the plain text alone.
#pragma once

#include <QTextEdit>

#include "help/HelpForm.h"

namespace ladrix {

class HelpText final : public QTextEdit {
    Q_OBJECT

  public:
    explicit HelpText(QWidget* parent);

    // Text, selection and font of the state; no signal tells of it.
    void showState(const HelpTextBox& state);

    // Shows what the state holds of a text just typed, with the cursor where it was.
    void correct(const HelpTextBox& state);

  signals:
    // The text as it now stands, in UTF-8.
    void edited(const std::string& utf8);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    double entryWidth() const;
    void formatBlocks();
    void fitLines();

    bool showing_ = false;
};

}  // namespace ladrix
