// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are looked through for conflict blocks, as a text and as a document; what a whole block holds
// makes the same block again.
#include "Require.h"
#include "core/DocumentReader.h"
#include "review/ConflictBlock.h"
#include "review/LineDiff.h"
#include "text/AnsiText.h"

#include <cstdint>
#include <string_view>

using namespace orvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::size_t lines = review::LinesOf(bytes).size();
    std::size_t last = 0;
    for (const review::FoundBlock& block : review::FindConflictBlocks(bytes)) {
        Require(block.Line > last && block.Line <= lines, "blocks stand one behind the other in the text");
        last = block.Line;
        const std::string title = ToUtf8(block.Title);
        const std::string again = review::ConflictBlock({title, block.Base, block.Theirs});
        const std::vector<review::FoundBlock> found = review::FindConflictBlocks(again);
        Require(found.size() == 1 && found.front().IsWhole, "a block that is written is found as a whole");
        Require(found.front().Title == block.Title, "its title comes back");
    }
    for (const review::PlacedBlock& placed : review::FindConflicts(ReadDocument(bytes).Document))
        Require(!placed.Where.empty(), "a block stands somewhere");
    return 0;
}
