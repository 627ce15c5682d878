// frmLayout on the screen: the choice of the page, with its shape beside it.
#pragma once

#include <QDialog>

#include "app/Program.h"

class QButtonGroup;
class QGroupBox;

namespace ladrix {

// picPreview with shpStyle and lblSize.
class PageShapeBox final : public QWidget {
    Q_OBJECT

  public:
    PageShapeBox(const LayoutForm& form, QWidget* parent);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const LayoutForm& form_;
};

class LayoutDialog final : public QDialog {
    Q_OBJECT

  public:
    LayoutDialog(Program& program, QWidget* parent);

    // Shows the form until its Visible is false.
    void run();

    void reject() override;

  private:
    QGroupBox* makeSizes();
    QGroupBox* makeOrientations();
    void showState();

    Program& program_;
    QButtonGroup *optSize_, *optOrient_;
    PageShapeBox* picPreview_;
};

}  // namespace ladrix
