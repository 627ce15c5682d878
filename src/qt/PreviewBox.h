// The preview in the browser: the selected drawing's page, or the selected picture, on a desk, as
// large as the room allows.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "app/Program.h"

namespace ladrix {

class QtPicture;

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
    QString note() const;  // in the place of a preview
    void paintPicture(QPainter& painter, const QtPicture& picture) const;

    Program& program_;
    QPixmap image_;  // of the page, kept until the preview or the room changes
    unsigned version_ = 0;
};

}  // namespace ladrix
