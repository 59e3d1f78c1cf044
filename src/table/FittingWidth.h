// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"
#include "table/TextFitting.h"

namespace orvane {

// The width at which the column shows its texts whole, 0 being the column of the row heads. Code, which may
// be of any length, is given room up to kWidestFittedCode; a column without texts gets the document's
// default.
Twips FittingWidth(const FsmDocument& document, StateNumber column, const TextMeasurer& measure);

inline constexpr Twips kWidestFittedCode = 3000;

} // namespace orvane
