// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

namespace orvane::test {

// One document in which no field of any kind has its initial value, so that a field that is forgotten
// somewhere is missed. Two events, two states, cells in the timeout, ELSE and event rows.
FsmDocument EveryFieldDocument();

} // namespace orvane::test
