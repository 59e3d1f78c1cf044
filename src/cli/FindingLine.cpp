// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/FindingLine.h"

#include "core/ConflictMark.h"
#include "core/DocumentTags.h"
#include "core/DocumentTexts.h"

#include <algorithm>
#include <string_view>
#include <variant>
#include <vector>

namespace orvane::cli {

namespace {

struct Spot {
    Cell Record;
    std::string_view Tag;
};

Cell StateRecordOf(Cell place) { return {kHeadRow, place.State}; }
Cell EventRecordOf(Cell place) { return {place.Row, kNoState}; }

// The field of which a finding of that kind tells; it need not be in the file.
std::vector<Spot> FieldOf(FindingKind kind, Cell place) {
    switch (kind) {
    case FindingKind::MissingEventCode:
        return {{EventRecordOf(place), tag::kCode}, {EventRecordOf(place), tag::kEvent}};
    case FindingKind::MissingTimeConstant:
        return {{StateRecordOf(place), tag::kTimeConst}, {StateRecordOf(place), tag::kTimingMode}};
    case FindingKind::MissingVariableTime:
        return {{StateRecordOf(place), tag::kTimingVar}, {StateRecordOf(place), tag::kTimingMode}};
    case FindingKind::TimingModeWithoutTimeout:
    case FindingKind::MissingTimingMode:
        return {{StateRecordOf(place), tag::kTimingMode}};
    default:
        return {};
    }
}

// From the cell outwards.
std::vector<Spot> BlocksOf(Cell place) {
    const Spot name = {{}, tag::kFsmName};
    if (place.State == kNoState && place.Row == kNoRow)
        return {name};
    if (place.State == kNoState)
        return {{place, tag::kEvent}, name};
    return {{place, tag::kTarget}, {StateRecordOf(place), tag::kState}, name};
}

// None: 0.
std::size_t FirstLine(const std::vector<Spot>& spots, const TextStarts& starts) {
    for (const Spot& spot : spots) {
        if (const std::size_t line = starts.LineOf(spot.Record, spot.Tag))
            return line;
    }
    return 0;
}

std::size_t LineOfBlock(Cell place, const TextStarts& starts) {
    return std::max<std::size_t>(1, FirstLine(BlocksOf(place), starts));
}

// The first text of the record of that place that holds a conflict; 0 for none.
std::size_t LineOfConflict(const FsmDocument& document, Cell place, const TextStarts& starts) {
    std::size_t line = 0;
    ForEachText(document, [&](const TextPlace& text, const std::string& bytes) {
        const bool ofState = std::holds_alternative<StateText>(text.Field);
        const Cell record = ofState ? Cell{kNoRow, text.At.State} : text.At;
        if (line == 0 && record == place && HoldsConflict(bytes))
            line = starts.LineOf(text);
    });
    return line;
}

} // namespace

std::size_t LineOf(const Finding& finding, const FsmDocument& document, const TextStarts& starts) {
    const std::size_t line = finding.Kind == FindingKind::MergeConflict
                                 ? LineOfConflict(document, finding.Place, starts)
                                 : FirstLine(FieldOf(finding.Kind, finding.Place), starts);
    return line != 0 ? line : LineOfBlock(finding.Place, starts);
}

std::size_t LineOf(const run::Advice& advice, const TextStarts& starts) {
    return LineOfBlock(advice.Place, starts);
}

} // namespace orvane::cli
