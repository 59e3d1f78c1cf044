// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CheckedDocument.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::cli {

// "null" for 0, which in a place or a line says that there is none.
std::string NumberOrNull(std::int64_t number);

// One line:
// {"version":1,"path":...,"complete":...,"counts":{"notes":...,"warnings":...,"errors":...},"findings":[...],
// "messages":[...]}
// A finding is {"severity":...,"kind":...,"line":...,"state":...,"stateName":...,"row":...,"message":...}, a
// message of the reader {"line":...,"message":...}. What there is none of is null. Advice, where it is asked
// for, is one more list, {"kind":...,"line":...,"state":...,"row":...,"text":...}.
std::string JsonLine(const CheckedDocument& checked);

// [{"kind":...,"state":...,"row":...,"text":...},...]; what there is none of is null.
std::string JsonOfAdvice(const std::vector<run::Advice>& list);

} // namespace orvane::cli
