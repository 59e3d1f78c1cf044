// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QRect>
#include <QStaticText>
#include <QString>

class QPainter;

namespace orvane {

// Draws the texts of cells and keeps how they were laid out. The texts of a table are nearly the same from
// one painting to the next, and to lay out a text takes many times as long as to draw it.
class PaintedTexts {
  public:
    // One line at the left of the area, in the middle of its height, in the painter's font and pen; what does
    // not fit is cut off.
    void Draw(QPainter& painter, const QRect& area, const QString& text);

  private:
    static constexpr qsizetype kMostKept = 8000; // a full table has 5555

    QFont font_; // what is kept is laid out in this one
    qreal lineHeight_ = QFontMetricsF(font_).height();
    QHash<QString, QStaticText> texts_;
};

} // namespace orvane
