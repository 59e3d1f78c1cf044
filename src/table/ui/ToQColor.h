// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "table/CellColour.h"

#include <QColor>

namespace orvane {

inline QColor ToQColor(Colour colour) { return {colour.Red, colour.Green, colour.Blue}; }

} // namespace orvane
