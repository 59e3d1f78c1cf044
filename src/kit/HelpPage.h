// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// Where a page of the knowledge base stands: the base address, which ends with its own "/", and NUMBER.htm.
std::string HelpPageAddress(std::string_view baseAddress, int page);

} // namespace orvane
