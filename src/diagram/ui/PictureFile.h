// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/LivePicture.h"
#include "kit/PictureFonts.h"

#include <QString>

class QWidget;

namespace orvane {

class Session;

// Asks where the picture is to be kept and writes it, as lines and texts (SVG) or as points (PNG): light, as
// it is arranged in the window, with all its texts. What went wrong is told. Returns the file that was
// written; empty for none.
QString SavePicture(QWidget& window, const Session& session, const diagram::LivePicture& picture,
                    const PictureFonts& fonts);

} // namespace orvane
