// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/ElidedLabel.h"

#include <QPainter>
#include <QStyle>
#include <QTextDocument>

namespace orvane {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void ElidedLabel::ShowText(const QString& text) {
    setText(text);
    setToolTip(PlainToolTip(text));
}

QString ElidedLabel::Line() const { return text().replace(QLatin1Char('\n'), QLatin1Char(' ')); }

// One pixel more, because an advance is rounded and the text must not be cut off for that.
QSize ElidedLabel::sizeHint() const {
    const QMargins margins = contentsMargins();
    return {fontMetrics().horizontalAdvance(Line()) + 1 + margins.left() + margins.right(),
            minimumSizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const {
    const QMargins margins = contentsMargins();
    return {fontMetrics().horizontalAdvance(QChar(0x2026)) + margins.left() + margins.right(),
            fontMetrics().height() + margins.top() + margins.bottom()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = contentsRect();
    const Qt::Alignment visual = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, area, int(visual) | Qt::TextSingleLine, palette(), isEnabled(),
                          fontMetrics().elidedText(Line(), Qt::ElideRight, area.width()), foregroundRole());
}

QString PlainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace orvane
