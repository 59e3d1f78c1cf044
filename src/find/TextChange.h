// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DocumentTexts.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orvane::find {

// One piece of a text that is to be another one.
struct TextChange {
    TextPlace Place;
    std::size_t Start = 0; // bytes
    std::size_t Length = 0;
    std::string After;
    bool IsSure = false; // nobody need look whether it is meant

    bool operator==(const TextChange&) const = default;
};

// Makes the changes, which must not overlap and must be those of the document as it stands.
void Apply(FsmDocument& document, std::vector<TextChange> changes);

// The lines of the text as they are and as they would be, for a preview of one change alone.
struct LinePreview {
    std::string Before;
    std::string After;
};
LinePreview PreviewOf(const FsmDocument& document, const TextChange& change);

// Why a text cannot stand in a document, as a sentence; empty when it can.
std::string FaultOfText(const std::string& text);

} // namespace orvane::find
