// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TextStarts.h"

namespace orvane {

std::size_t TextStarts::LineOf(const TextPlace& place) const {
    const bool ofState = std::holds_alternative<StateText>(place.Field);
    const RowNumber row = ofState ? RowNumber(kHeadRow) : place.At.Row;
    return LineOf({row, place.At.State}, KindOf(place).Tag);
}

std::size_t TextStarts::LineOf(Cell record, std::string_view tag) const {
    const auto line = lines_.find({record.State, record.Row, tag});
    return line == lines_.end() ? 0 : line->second;
}

} // namespace orvane
