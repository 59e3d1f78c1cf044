// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

namespace orvane {

// The record of a column or of a row, for code that is the same for both.
inline const StateRecord& RecordOf(const FsmDocument& document, StateNumber state) {
    return document.State(state);
}
inline const EventRecord& RecordOf(const FsmDocument& document, RowNumber row) { return document.Event(row); }

} // namespace orvane
