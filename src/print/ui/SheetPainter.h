// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/Sheet.h"

class QPainter;

namespace orvane {

class MachinePicture;
class PaperLetters;

// Paints a page, in twips: the painter's transformation makes them what the device has.
void PaintSheet(QPainter& painter, const print::Sheet& sheet, const PaperLetters& letters,
                const MachinePicture& picture);

} // namespace orvane
