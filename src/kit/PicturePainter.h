// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/Layout.h"
#include "kit/PictureFonts.h"
#include "kit/PictureLook.h"

#include <QRectF>

class QPainter;

namespace orvane {

// A picture and what it was laid out with. All of it outlives the painting.
struct PaintedPicture {
    const diagram::Scene& Shown;
    const diagram::Layout& Places;
    const PictureFonts& Fonts;
};

// The one painting of a machine's picture, for screen, image and paper: in the lengths of its layout, which
// the painter's transformation makes larger or smaller. What lies outside of `part` may be left out.
void PaintPicture(QPainter& painter, const PaintedPicture& picture, const PictureLook& look,
                  const QRectF& part);

} // namespace orvane
