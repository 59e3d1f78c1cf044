// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/CellPictures.h"

#include "kit/PictureFonts.h"

#include <QPainter>

namespace orvane {

namespace {

// In the painter's units, which a scaled screen shows as several pixels.
constexpr int kTextMargin = 3; // left of a text
constexpr int kBorder = 1;     // right of it and below

void DrawLine(QPainter& painter, const QRect& area, const QString& text) {
    painter.drawText(area.adjusted(kTextMargin, 0, -kBorder, -kBorder),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

// A document may make a cell so large that it is never seen as a whole.
bool IsLargerThanScreen(const QRect& area, const QPaintDevice& screen) {
    return area.width() > screen.width() || area.height() > screen.height();
}

} // namespace

void CellPictures::Draw(QPainter& painter, const QRect& area, Look look) {
    if (IsLargerThanScreen(area, *painter.device())) {
        const QFont font = painter.font();
        painter.fillRect(area, QColor(look.Background));
        painter.setFont(look.Bold ? Bold(font) : font);
        DrawLine(painter, area, look.Text);
        painter.setFont(font);
        return;
    }
    const qreal scale = painter.device()->devicePixelRatioF();
    if (painter.font() != font_ || scale != scale_) {
        pictures_.clear();
        font_ = painter.font();
        scale_ = scale;
    }
    look.Size = (QSizeF(area.size()) * scale).toSize();
    look.Pen = painter.pen().color().rgb();
    painter.drawPixmap(area.topLeft(), Picture(look));
}

QPixmap CellPictures::Picture(const Look& look) {
    if (const QPixmap* kept = pictures_.object(look))
        return *kept;
    QPixmap picture = Painted(look);
    pictures_.insert(look, new QPixmap(picture), qsizetype{picture.width()} * picture.height() * 4);
    return picture;
}

QPixmap CellPictures::Painted(const Look& look) const {
    QPixmap picture(look.Size);
    picture.setDevicePixelRatio(scale_);
    picture.fill(QColor(look.Background));
    QPainter painter(&picture);
    painter.setFont(look.Bold ? Bold(font_) : font_);
    painter.setPen(QColor(look.Pen));
    DrawLine(painter, {QPoint(0, 0), picture.deviceIndependentSize().toSize()}, look.Text);
    return picture;
}

} // namespace orvane
