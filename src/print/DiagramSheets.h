// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/PageFlow.h"

namespace orvane::print {

// The whole picture on one page; where that makes its texts too small to be read on paper, larger parts of it
// follow, each with a plan that shows where it is. `size` is that of the picture at its full size.
void WriteDiagram(PageFlow& flow, const Paper& size);

} // namespace orvane::print
