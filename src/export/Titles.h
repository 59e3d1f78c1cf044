// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <array>
#include <string>

namespace orvane::exports {

// What an output calls each state and each row. Made once: thousands of cells name the same hundred states.
class Titles {
  public:
    template <typename OfState, typename OfRow>
    Titles(OfState ofState, OfRow ofRow) {
        for (const StateNumber state : StateNumbers())
            states_[state.Number()] = ofState(state);
        for (const RowNumber row : CellRows())
            rows_[row.Number()] = ofRow(row);
    }

    const std::string& Of(StateNumber state) const { return states_.at(state.Number()); }
    const std::string& Of(RowNumber row) const { return rows_.at(row.Number()); }

  private:
    std::array<std::string, kStateCount + 1> states_;
    std::array<std::string, kLastRow + 1> rows_;
};

} // namespace orvane::exports
