// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/Booklet.h"
#include "print/PageFlow.h"

namespace orvane::print {

// Where the contents go once all pages are there.
struct ContentsPlace {
    std::size_t Sheet = 0;
    int Y = 0;
};

// The first page: what machine this is, what of it was printed and where, and who answers for it. A name that
// takes more than a page has it.
ContentsPlace WriteCover(PageFlow& flow, const std::string& machine, const CoverFacts& facts);

// What stands on which page. The flow has still the chapters, the sheets are its own.
void WriteContents(std::vector<Sheet>& sheets, const ContentsPlace& place, const PageFlow& flow);

} // namespace orvane::print
