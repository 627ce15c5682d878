// The small dialogs of user symbols: the colour of a new button, the name of a new symbol, the rows
// of the user's columns. Each shows its form's state and is modal.
#pragma once

#include <QDialog>

#include "app/Program.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace ladrix {

class ColorSwatch;

// frmButtonColor
class ButtonColorDialog final : public QDialog {
    Q_OBJECT

  public:
    ButtonColorDialog(Program& program, QWidget* parent);
    void run();
    void reject() override;

  private:
    QWidget* makeColors();
    void showState();

    Program& program_;
    ColorSwatch* cmdBackColor_;
};

// frmUS
class SaveSymbolDialog final : public QDialog {
    Q_OBJECT

  public:
    SaveSymbolDialog(Program& program, QWidget* parent);
    void run();
    void reject() override;

  private:
    QWidget* makePictures();
    QLabel* makePicture(const char* name, const std::unique_ptr<PictureBox>& picture);
    void save();

    Program& program_;
    QLineEdit* txtSymbolName_;
};

// frmUBRows
class PaletteRowsDialog final : public QDialog {
    Q_OBJECT

  public:
    PaletteRowsDialog(Program& program, QWidget* parent);
    void run();
    void reject() override;

  private:
    void save();

    Program& program_;
    QComboBox* cmbRows_;
};

}  // namespace ladrix
