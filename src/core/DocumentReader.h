// SPDX-License-Identifier: GPL-3.0-or-later
// Reads documents: the bytes of a .zfsm file into an FsmDocument.
#pragma once

#include "core/FsmDocument.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// Larger files are refused unread.
inline constexpr std::size_t kLargestDocument = 64u << 20; // bytes
inline constexpr std::string_view kTooLargeForADocument = "larger than 64 MiB, which no document is";

// After this many unknown tags the rest is counted in one last message.
inline constexpr std::size_t kMostUnknownTags = 1000;

// Something the user has to be told about a document. The text may hold bytes of the file as they are.
struct ReaderMessage {
    std::string Text;
    std::size_t Line = 0; // 1.. in the file; 0 when it concerns the file as a whole

    bool operator==(const ReaderMessage&) const = default;
};

struct ReadResult {
    FsmDocument Document;                // what was read up to the end, or up to where reading broke off
    std::vector<ReaderMessage> Messages; // in the order of the file; the last one says where it broke off
    bool Refused = false;                // the file is no document at all; the one message says why
    bool BrokeOff = false; // a number was out of bounds, or the file ended inside a block or value
};

class TextStarts;

// Reads in one pass; the cost grows with the number of bytes only. Takes CR LF, LF and CR as line ends. Never
// fails: an unknown tag is told and skipped, a number out of bounds ends the reading. A file that is too
// large, or that holds text but not one field, is refused: an empty document that broke off. Where starts are
// asked for, they tell where each field and each block stands.
ReadResult ReadDocument(std::string_view bytes, TextStarts* starts = nullptr);

} // namespace orvane
