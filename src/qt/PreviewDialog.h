// frmPreview on the screen: the page on a desk, whole or at a chosen size.
#pragma once

#include <QDialog>
#include <QImage>

#include "app/Program.h"
#include "qt/PrinterPage.h"

class QComboBox;
class QLabel;
class QScrollArea;

namespace ladrix {

class PreviewPage final : public QWidget {
    Q_OBJECT

  public:
    PreviewPage(Program& program, QWidget* parent);

    // At this percentage of the paper's size; 0: as large as `room` allows.
    void showAt(int percent, QSize room);
    void renew();  // the drawing or the printer may have changed

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect pageRect() const;

    Program& program_;
    PaperArea area_;
    double pixelsPerInch_ = 96;  // logical
    QImage image_;
};

class PreviewDialog final : public QDialog {
    Q_OBJECT

  public:
    PreviewDialog(Program& program, QWidget* parent);

    // Shows the form until its Visible is false.
    void run();
    void showState();

    void reject() override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* makeBar();
    void showPage();

    Program& program_;
    QComboBox* cmbZoom_ = nullptr;
    QLabel* lblPage_ = nullptr;
    QScrollArea* scroll_ = nullptr;
    PreviewPage* page_ = nullptr;
};

}  // namespace ladrix
