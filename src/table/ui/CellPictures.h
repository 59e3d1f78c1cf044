// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCache>
#include <QFont>
#include <QPixmap>
#include <QRect>
#include <QString>

class QPainter;

namespace orvane {

// Draws cells with a text and keeps what they look like. The cells of a table are nearly the same from one
// painting to the next, and to lay out and draw a text takes many times as long as to copy its picture.
class CellPictures {
  public:
    // One line at the left of the area, in the middle of its height, in the painter's font and pen on the
    // background; what does not fit is cut off. No picture is kept of a cell larger than what it is drawn on.
    void Draw(QPainter& painter, const QRect& area, const QString& text, QRgb background) {
        Draw(painter, area, {text, {}, 0, background, false});
    }
    void DrawBold(QPainter& painter, const QRect& area, const QString& text, QRgb background) {
        Draw(painter, area, {text, {}, 0, background, true});
    }

  private:
    struct Look {
        QString Text;
        QSize Size; // pixels of the screen
        QRgb Pen = 0;
        QRgb Background = 0;
        bool Bold = false;

        bool operator==(const Look&) const = default;
        friend size_t qHash(const Look& look, size_t seed) {
            return qHashMulti(seed, look.Text, look.Size.width(), look.Size.height(), look.Pen,
                              look.Background, look.Bold);
        }
    };

    void Draw(QPainter& painter, const QRect& area, Look look);
    QPixmap Picture(const Look& look);
    QPixmap Painted(const Look& look) const;

    static constexpr qsizetype kMostBytes = 64 << 20; // a large screen has 32 million

    QFont font_; // what is kept is drawn in this one, at this scale
    qreal scale_ = 1;
    QCache<Look, QPixmap> pictures_{kMostBytes};
};

} // namespace orvane
