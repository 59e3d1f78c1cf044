// SPDX-License-Identifier: GPL-3.0-or-later
// The font and the accent that everything shares in which controller code is shown or typed.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

namespace orvane {

inline constexpr QRgb kAccent = 0xFFE0E0E0; // light grey

// Courier New where it is installed, else the platform's own fixed-pitch font.
QFont PaneFont();

// Fixedsys where it is installed, else as PaneFont.
QFont FieldFont();

// A theme with light text on a dark ground.
bool IsDark(const QPalette& palette);

} // namespace orvane
