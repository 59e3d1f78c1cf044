// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/PaintedTexts.h"

#include <QPainter>

namespace orvane {

void PaintedTexts::Draw(QPainter& painter, const QRect& area, const QString& text) {
    if (texts_.size() > kMostKept || painter.font() != font_)
        texts_.clear();
    if (painter.font() != font_) {
        font_ = painter.font();
        lineHeight_ = QFontMetricsF(font_).height();
    }
    QStaticText& laidOut = texts_[text];
    if (laidOut.text().isEmpty()) {
        laidOut.setTextFormat(Qt::PlainText);
        laidOut.setPerformanceHint(QStaticText::AggressiveCaching);
        laidOut.setText(text);
        laidOut.prepare(painter.worldTransform(), font_);
    }
    const QSizeF size = laidOut.size();
    if (size.width() > area.width() || size.height() > area.height() || text.contains(QLatin1Char('\t'))) {
        painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
        return;
    }
    painter.drawStaticText(QPointF(area.left(), area.top() + (area.height() - lineHeight_) / 2), laidOut);
}

} // namespace orvane
