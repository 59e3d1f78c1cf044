// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <string>

namespace orvane {

// The bytes of the .zfsm file that holds the document, CR LF line ends.
std::string WriteDocument(const FsmDocument& document);

} // namespace orvane
