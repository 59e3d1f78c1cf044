// SPDX-License-Identifier: GPL-3.0-or-later
// Documents out of other forms. All of them take any bytes, as UTF-8.
#pragma once

#include "core/DocumentReader.h"

#include <optional>
#include <string_view>
#include <vector>

namespace orvane::exports {

struct ImportResult {
    std::optional<FsmDocument> Document; // none when the text is no such form; the last message says why
    std::vector<ReaderMessage> Messages; // ANSI, by line; with a document: what was left out of it
};

// What JsonOf writes; every member may be missing, and those that no field has are told and left out.
ImportResult ReadJson(std::string_view utf8);

// Both forms of tables, told apart by their first line. A state may be named by number and name (3:Idle), by
// one of them, or by a name that is new: then it becomes the next state.
ImportResult ReadCsv(std::string_view utf8);

// A flat chart: states within states, parallel ones and history are refused by name and line.
ImportResult ReadScxml(std::string_view utf8);

} // namespace orvane::exports
