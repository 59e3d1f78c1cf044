// SPDX-License-Identifier: GPL-3.0-or-later
// A conflict inside a text of a document, as comments, so that it is still a document and still generates:
//
//   ;<<<<<<< CONFLICT: entry action of 3:Idle
//   ;||||||| BASE
//   ;... lines of the base
//   ;======= THEIRS
//   ;... lines of theirs
//   ;>>>>>>> CONFLICT
//
// Ours stands above it as it is. The semicolons keep what reads markers of other tools away from it.
#pragma once

#include "core/FsmDocument.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::review {

struct BlockContent {
    std::string_view Title; // UTF-8
    std::string_view Base;  // document text
    std::string_view Theirs;
};

// Document text without a line end behind it.
std::string ConflictBlock(const BlockContent& content);

// A block as it stands in a text, as document text.
struct FoundBlock {
    std::string Title;
    std::string Base;
    std::string Theirs;
    std::size_t Line = 0; // its first one in the text, from 1
    bool IsWhole = false; // it ends as it should

    bool operator==(const FoundBlock&) const = default;
};

// A block that is cut short, or that begins inside another one, is found too: whatever has the first line of
// a block has a conflict in it.
std::vector<FoundBlock> FindConflictBlocks(std::string_view text);

// A block and the text that it stands in.
struct PlacedBlock {
    std::string Where; // UTF-8 on one line: "3:Idle, Start, action"
    FoundBlock Block;
};

// All in the texts of a document.
std::vector<PlacedBlock> FindConflicts(const FsmDocument& document);

} // namespace orvane::review
