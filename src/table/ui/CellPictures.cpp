// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/CellPictures.h"

#include <QPainter>

namespace orvane {

namespace {

constexpr int kTextMargin = 3; // left of a text; no pixels of the screen, like all sizes but a picture's
constexpr int kBorder = 1;     // right of it and below

} // namespace

void CellPictures::Draw(QPainter& painter, const QRect& area, const QString& text, QRgb background) {
    const qreal scale = painter.device()->devicePixelRatioF();
    if (painter.font() != font_ || scale != scale_) {
        pictures_.clear();
        font_ = painter.font();
        scale_ = scale;
    }
    const QSize size = (QSizeF(area.size()) * scale).toSize();
    painter.drawPixmap(area.topLeft(), Picture({text, size, painter.pen().color().rgb(), background}));
}

QPixmap CellPictures::Picture(const Cell& cell) {
    if (const QPixmap* kept = pictures_.object(cell))
        return *kept;
    const QPixmap picture = Painted(cell);
    pictures_.insert(cell, new QPixmap(picture), qsizetype{picture.width()} * picture.height() * 4);
    return picture;
}

QPixmap CellPictures::Painted(const Cell& cell) const {
    QPixmap picture(cell.Size);
    picture.setDevicePixelRatio(scale_);
    picture.fill(QColor(cell.Background));
    QPainter painter(&picture);
    painter.setFont(font_);
    painter.setPen(QColor(cell.Pen));
    const QRect whole(QPoint(0, 0), picture.deviceIndependentSize().toSize());
    painter.drawText(whole.adjusted(kTextMargin, 0, -kBorder, -kBorder),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, cell.Text);
    return picture;
}

} // namespace orvane
