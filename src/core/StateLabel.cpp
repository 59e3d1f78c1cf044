// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/StateLabel.h"

#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane {

std::string StateLabel(StateNumber number, std::string_view name) {
    return std::string(Trim(NumberText(number.Number()) + ":" + std::string(name)));
}

} // namespace orvane
