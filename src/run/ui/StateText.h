// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <QString>

namespace orvane {

// Number, ":" and name.
QString StateText(const FsmDocument& document, StateNumber state);

} // namespace orvane
