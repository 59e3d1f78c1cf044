// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/PageFlow.h"

namespace orvane::print {

// Pages that belong together like tiles, and one of them.
struct PagePlan {
    std::size_t Rows = 1;
    std::size_t Columns = 1;
    std::size_t Row = 0;
    std::size_t Column = 0;

    bool IsOnePage() const { return Rows * Columns == 1; }
};

// How much of the page the plan takes.
int PlanHeight(const PagePlan& plan, const Letters& letters);

// At the right of the current height, which moves on: which part of how many this is, and all of them as
// small boxes with this one dark, unless they are too many to be seen. Nothing for one page.
void WritePlan(PageFlow& flow, const PagePlan& plan);

// The four sides of a box.
void DrawFrame(Sheet& sheet, const Box& box);

} // namespace orvane::print
