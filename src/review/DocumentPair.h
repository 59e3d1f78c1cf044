// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

namespace orvane::review {

// Two versions that are looked at together, so that nobody takes the one for the other. Both must outlive it.
struct DocumentPair {
    const FsmDocument& Old;
    const FsmDocument& New;
};

} // namespace orvane::review
