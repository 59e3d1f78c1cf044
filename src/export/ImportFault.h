// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "export/Imports.h"

#include <string>
#include <string_view>
#include <utility>

namespace orvane::exports {

// What keeps a text from being read, and where: thrown within a reader, never out of it.
struct ImportFault {
    std::string Text; // ANSI
    std::size_t Line;
};

// A text of the other form as document text. Characters that no document can hold are a fault.
std::string DocumentText(std::string_view utf8, std::size_t line);

// Runs the reader, and makes a message of the fault that it threw.
template <typename Read>
ImportResult Guarded(Read read) {
    ImportResult result;
    try {
        result.Document = read(result.Messages);
    } catch (const ImportFault& fault) {
        result.Messages.push_back({fault.Text, fault.Line});
    }
    return result;
}

} // namespace orvane::exports
