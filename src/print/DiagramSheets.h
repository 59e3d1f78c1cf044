// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/PageFlow.h"

namespace orvane::print {

// The whole picture on one page; where that makes its texts too small to be read on paper, larger parts of it
// follow, each with a plan that shows where it is.
void WriteDiagram(PageFlow& flow, const Picture& picture);

} // namespace orvane::print
