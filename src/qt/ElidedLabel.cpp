#include "qt/ElidedLabel.h"

#include <QPainter>

#include "qt/QtText.h"

namespace ladrix {

void ElidedLabel::setText(const QString& text) {
    if (text_ == text) return;
    text_ = text;
    setAccessibleName(text);
    arrangeTip();
    update();
}

void ElidedLabel::arrangeTip() {
    const bool cut = fontMetrics().horizontalAdvance(text_) > width();
    setToolTip(cut ? plainTip(text_) : QString());
}

void ElidedLabel::resizeEvent(QResizeEvent*) {
    arrangeTip();
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     fontMetrics().elidedText(text_, Qt::ElideRight, width()));
}

}  // namespace ladrix
