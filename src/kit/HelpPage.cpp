// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/HelpPage.h"

namespace orvane {

std::string HelpPageAddress(std::string_view baseAddress, int page) {
    return std::string(baseAddress) + std::to_string(page) + ".htm";
}

} // namespace orvane
