// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane::exports {

// The name of a field as a member of an object: "entry action" is entryAction, "timer I.D." timerId,
// "CODESEG" codeseg.
std::string FieldKey(std::string_view fieldName);

} // namespace orvane::exports
