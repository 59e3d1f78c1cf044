// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/LayoutMemory.h"

namespace orvane::diagram {

// Where the layers lie along the picture, each wide enough for its items. Widths are rounded up, so that a
// label that becomes a little longer moves nothing. What `before` says is kept as far as it is wide enough:
// columns grow and move what is behind them, and never shrink.
std::vector<Column> MakeColumns(const Layered& layered, const std::vector<Column>& before = {});

} // namespace orvane::diagram
