// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "table/TableClipboard.h"

namespace orvane {

// What a target was called and is called now.
struct TargetChange {
    StateNumber Old;
    StateNumber New;
};

// Makes every transition to the old number one to the new number, in these states and on the clipboard, as a
// column that moves asks for. The cells of a copied event stay as they were copied.
void RenumberTargets(FsmDocument& document, TableClipboard& clipboard, StateRange states,
                     TargetChange change);

} // namespace orvane
