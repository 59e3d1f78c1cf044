// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "review/Change.h"

#include <string>

namespace orvane::review {

// The changes as a page that stands by itself and says with signs, not with colours alone, what came and
// went. The names of the documents are UTF-8.
std::string DiffHtml(const ChangeList& list, const FsmDocument& oldOne, const FsmDocument& newOne,
                     const std::string& names);

} // namespace orvane::review
