// SPDX-License-Identifier: GPL-3.0-or-later
// A machine on paper: what a plant keeps in its folder and signs.
#pragma once

#include "core/FsmDocument.h"
#include "print/Letters.h"

#include <string>
#include <vector>

namespace orvane::print {

// What the cover tells beside the machine itself; all of it is UTF-8, on one line.
struct CoverFacts {
    std::string File; // full path; empty for a document without a file
    std::string Revision;
    std::string Date;
    std::string Prepared; // names of people; empty where there is a line to write on
    std::string Checked;
    std::string Approved;
    std::string DocumentDigest; // SHA-256
    std::string ProgramDigest;  // CRC-32, or why there is none
};

// Which parts are printed.
struct Parts {
    bool Cover = true;
    bool Diagram = true;
    bool Table = true;
    bool Listing = true;
    bool Report = true;
    Picture Drawn = {};
};

// All pages. Nothing is cut off: what does not fit its place in the table stands in the listing, and a
// diagram that is too small to be read on one page follows in parts. Throws BoundsError when a transition
// leads to a state that the table does not have.
std::vector<Sheet> BookletOf(const FsmDocument& document, const CoverFacts& facts, const Parts& parts,
                             const Paper& paper, const Letters& letters);

// The CRC-32 of the program that the document makes, without its first line, which has the date: the same
// each time. In words when there is no program. The path is that of the document, in UTF-8.
std::string ProgramDigestOf(const FsmDocument& document, const std::string& path);

} // namespace orvane::print
