// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/SheetPainter.h"

#include "core/Length.h"
#include "kit/MachinePicture.h"
#include "print/ui/PaperLetters.h"

#include <QPainter>

namespace orvane {

namespace {

constexpr int kHairline = 8; // twips

QColor ColourOf(print::Shade shade) {
    return shade == print::Shade::Light ? QColor(0xEE, 0xF3, 0xFA) : QColor(0x24, 0x47, 0x6B);
}

void PaintPicture(QPainter& painter, const print::PicturePart& shown, const MachinePicture& picture) {
    if (picture.IsEmpty() || shown.Part.Width == 0)
        return;
    const double scale = double(shown.Where.Width) / shown.Part.Width;
    painter.save();
    painter.setClipRect(shown.Where.X, shown.Where.Y, shown.Where.Width, shown.Where.Height);
    painter.translate(shown.Where.X - shown.Part.X * scale, shown.Where.Y - shown.Part.Y * scale);
    painter.scale(scale * kTwipsPerPixel, scale * kTwipsPerPixel);
    picture.Paint(painter);
    painter.restore();
}

} // namespace

void PaintSheet(QPainter& painter, const print::Sheet& sheet, const PaperLetters& letters,
                const MachinePicture& picture) {
    for (const print::Ground& ground : sheet.Grounds)
        painter.fillRect(QRect(ground.Where.X, ground.Where.Y, ground.Where.Width, ground.Where.Height),
                         ColourOf(ground.How));
    painter.setPen(QPen(Qt::black, kHairline));
    for (const print::Line& line : sheet.Lines)
        painter.drawLine(line.X1, line.Y1, line.X2, line.Y2);
    for (int face = 0; face < print::kFaces; ++face) {
        const auto set = static_cast<print::Face>(face);
        painter.setFont(letters.Font(set));
        for (const print::Text& text : sheet.Texts) {
            if (text.Set == set)
                painter.drawText(text.X, text.Y + letters.Base(set), QString::fromStdString(text.Utf8));
        }
    }
    if (sheet.Shown)
        PaintPicture(painter, *sheet.Shown, picture);
}

} // namespace orvane
