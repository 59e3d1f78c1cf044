// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TextStarts.h"

namespace orvane {

std::size_t TextStarts::LineOf(const TextPlace& place) const {
    const bool ofState = std::holds_alternative<StateText>(place.Field);
    const RowNumber row = ofState ? RowNumber(kHeadRow) : place.At.Row;
    const auto line = lines_.find({place.At.State, row, KindOf(place).Tag});
    return line == lines_.end() ? 0 : line->second;
}

} // namespace orvane
