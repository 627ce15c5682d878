// A line of text that is cut with an ellipsis where it is too long, and then tells itself whole in
// its tip.
#pragma once

#include <QWidget>

namespace ladrix {

class ElidedLabel final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text)

  public:
    using QWidget::QWidget;
    const QString& text() const { return text_; }
    void setText(const QString& text);
    QSize minimumSizeHint() const override { return {40, fontMetrics().height()}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void arrangeTip();

    QString text_;
};

}  // namespace ladrix
