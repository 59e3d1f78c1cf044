// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <QString>

#include <memory>
#include <optional>

namespace orvane {

// A version of a document that somebody has at hand.
struct NamedVersion {
    QString Name; // as the user calls it: "what was not saved"
    std::shared_ptr<const FsmDocument> Document;
};

// What is to be compared: by itself the open document with its file as it is now.
struct VersionsToCompare {
    std::optional<NamedVersion> Here;  // in the place of the open document
    std::optional<NamedVersion> Other; // in the place of its file
};

} // namespace orvane
