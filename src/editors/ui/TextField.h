// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DocumentTexts.h"

class QWidget;

namespace orvane {

// Shows a piece of a text in the dialog that edits it: its tab, its field, the piece selected with the caret
// behind it. The text is the one that the field was filled with.
void ShowPiece(QWidget& dialog, const TextPiece& piece, std::string_view text);

} // namespace orvane
