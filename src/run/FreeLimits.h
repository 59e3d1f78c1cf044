// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "run/Machine.h"

namespace orvane::run {

// The document with variable limits in place of the constant ones that are names nobody has given: to know
// what a machine can do whatever they are.
FsmDocument WithFreeLimits(FsmDocument document, const Constants& given = {});

} // namespace orvane::run
