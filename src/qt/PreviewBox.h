// The preview in the browser: the selected drawing's page on a desk, as large as the room allows.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "app/Program.h"

namespace ladrix {

class PreviewBox final : public QWidget {
    Q_OBJECT

  public:
    PreviewBox(Program& program, QWidget* parent);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect pageRect() const;
    void renderPage(const QRect& page);

    Program& program_;
    QPixmap image_;  // of the page, kept until the preview or the room changes
    unsigned version_ = 0;
};

}  // namespace ladrix
