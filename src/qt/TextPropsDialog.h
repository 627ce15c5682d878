// frmTextProps on the screen: the font of the selected labels, with a sample of it.
#pragma once

#include <QDialog>

#include "app/Program.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace ladrix {

class TextSample;

class TextPropsDialog final : public QDialog {
    Q_OBJECT

  public:
    TextPropsDialog(Program& program, QWidget* parent);

    // Shows the form until its Visible is false.
    int run();

    void reject() override;

  private:
    QComboBox* makeFonts();
    QComboBox* makeSizes();
    QWidget* makeStyles();
    QWidget* makeButtons();
    void connectControls();
    void showState();
    void showSizes();
    // Runs the handler, then shows what the form holds now.
    template <class Handler>
    void handle(const Handler& handler);

    Program& program_;
    TextProperties& form_;
    QLabel* captionLabel_ = nullptr;
    QLineEdit* txtCaption_ = nullptr;
    QComboBox *cmbFonts_ = nullptr, *cmbFontSize_ = nullptr;
    QCheckBox* chkFontStyle_[2] = {};
    TextSample* sample_ = nullptr;
    QLabel* lblNote_ = nullptr;
    int marked_ = 0;  // requests to mark the caption that were followed
};

}  // namespace ladrix
