// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "review/Change.h"

#include <string>

namespace orvane::cli {

// Two versions of a document and what is different.
struct ComparedDocuments {
    const std::string& OldName; // as given
    const std::string& NewName;
    const FsmDocument& Old;
    const FsmDocument& New;
    const review::ChangeList& List;
};

// One line, with what docs/format.md says under "Changes".
std::string DiffJson(const ComparedDocuments& compared);

} // namespace orvane::cli
