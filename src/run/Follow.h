// SPDX-License-Identifier: GPL-3.0-or-later
// Where rows and columns of a table have gone by an edit. What the user did to a running machine he did to
// an event, not to the number of its row.
#pragma once

#include "core/FsmDocument.h"
#include "run/RunStep.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace orvane::run {

class Followed {
  public:
    Followed(const FsmDocument& before, const FsmDocument& after);

    // Where it is now; none when it was deleted.
    RowNumber Row(RowNumber before) const { return rows_[std::size_t(before.Number())]; }
    StateNumber State(StateNumber before) const { return states_[std::size_t(before.Number())]; }

    // The step on the table as it is now; none when one of its events or its state is gone.
    std::optional<RunStep> Step(const RunStep& before) const;

  private:
    std::array<int, kTableRows> rows_{};
    std::array<int, kTableColumns> states_{};
};

} // namespace orvane::run
