// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <array>
#include <cstdint>
#include <string>

namespace orvane {

class JournalBytesReader;
class JournalBytesWriter;

// What belongs to a document and is in none of its images: how it is looked at, and the script it names.
struct JournalView {
    ViewOptions Options;
    std::array<Twips, kStateCount> Widths; // of states 1..100
    std::string BuildFile;

    bool operator==(const JournalView&) const = default;
};

JournalView ViewOf(const FsmDocument& document);
void ApplyView(const JournalView& view, FsmDocument& document);

void WriteView(const JournalView& view, JournalBytesWriter& bytes);
JournalView ReadView(JournalBytesReader& bytes);

} // namespace orvane
