// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orvane::cli {

// All kinds of findings and advice as the rules of a log, each with what it says in one sentence.
std::string SarifRules();

// The place of the kind among them.
std::size_t SarifRuleIndex(std::string_view kind);

} // namespace orvane::cli
