// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/StateText.h"

#include "core/StateLabel.h"
#include "kit/AnsiString.h"

namespace orvane {

QString StateText(const FsmDocument& document, StateNumber state) {
    return FromAnsi(StateLabel(state, document.State(state).Name));
}

} // namespace orvane
