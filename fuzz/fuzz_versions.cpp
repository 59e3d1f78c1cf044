// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are read as two documents, of which the second one begins at the second field of that tag. The
// changes lead from one to the other, and merging with one side as it was gives the other side.
#include "Require.h"
#include "core/DocumentReader.h"
#include "core/DocumentTags.h"
#include "core/DocumentWriter.h"
#include "review/Apply.h"
#include "review/Compare.h"
#include "review/ConflictBlock.h"
#include "review/Merge.h"
#include "review/ShowText.h"
#include "review/TellChanges.h"

#include <cstdint>
#include <string_view>

using namespace orvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::string head = std::string(kTagOpen) + std::string(tag::kFsmName);
    const std::size_t second = std::min(size, bytes.find(head, std::min(size, bytes.find(head)) + 1));
    const FsmDocument oldOne = ReadDocument(bytes.substr(0, second)).Document;
    const FsmDocument newOne = ReadDocument(bytes.substr(second)).Document;
    const std::string oldBytes = WriteDocument(oldOne);
    const std::string newBytes = WriteDocument(newOne);

    const review::ChangeList list = review::Compare(oldOne, newOne);
    Require(WriteDocument(Applied(list, oldOne)) == newBytes, "the changes lead to the new document");
    Require(list.IsEmpty() == (oldBytes == newBytes), "nothing is different in equal files alone");
    Require(review::DiffText(list, oldOne, newOne, "").empty() == list.IsEmpty(),
            "what is different is told");
    (void)review::ShowText(newOne);

    if (!review::FindConflicts(oldOne).empty() || !review::FindConflicts(newOne).empty())
        return 0;
    Require(WriteDocument(review::Merge(oldOne, newOne, oldOne).Document) == newBytes,
            "theirs unchanged, ours is the result");
    Require(WriteDocument(review::Merge(oldOne, newOne, newOne).Document) == newBytes,
            "both alike, that is the result");
    return 0;
}
