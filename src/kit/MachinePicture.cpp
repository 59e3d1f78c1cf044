// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/MachinePicture.h"

#include "diagram/LetterWidths.h"
#include "kit/PicturePainter.h"

#include <QGuiApplication>
#include <QPainter>

namespace orvane {

namespace {

// Of one size, whatever that of the windows is: paper has none.
QFont PaperFont() {
    QFont font = QGuiApplication::font();
    font.setPixelSize((diagram::kTitlePixels + diagram::kLinePixels) / 2);
    return font;
}

diagram::Scene SceneOf(const FsmDocument& document, const PictureFonts& fonts, bool isWhole) {
    diagram::SceneOptions options;
    if (!isWhole)
        options.Focus = StateNumbers().First();
    return diagram::MakeScene(document, fonts, options);
}

} // namespace

MachinePicture::MachinePicture(const FsmDocument& document, const QSize& room)
    : fonts_(PaperFont()),
      isWhole_(diagram::MergedEdges(document) <= diagram::kMostMergedEdges),
      scene_(SceneOf(document, fonts_, isWhole_)),
      layout_(diagram::FittingLayout(scene_, fonts_, {0, 0, room.width(), room.height()})) {}

void MachinePicture::Paint(QPainter& painter) const {
    painter.save();
    painter.translate(-layout_.Bounds.X, -layout_.Bounds.Y);
    const diagram::Rect& all = layout_.Bounds;
    PaintPicture(painter, {scene_, layout_, fonts_}, {}, QRectF(all.X, all.Y, all.Width, all.Height));
    painter.restore();
}

} // namespace orvane
