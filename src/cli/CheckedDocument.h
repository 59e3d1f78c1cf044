// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/Report.h"
#include "core/DocumentReader.h"
#include "core/TextStarts.h"
#include "run/Advice.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::cli {

// What there is to say about one document.
struct CheckedDocument {
    std::string_view Path; // as given
    const FsmDocument& Document;
    const Report& Findings;
    const std::vector<ReaderMessage>& Messages;       // of the reader
    const std::vector<std::string>& Failures;         // to read or to write a file; UTF-8
    const TextStarts& Starts;                         // where everything stands in its file
    bool Complete;                                    // the document was read to its end
    const std::vector<run::Advice>* Advice = nullptr; // when it was asked for
};

} // namespace orvane::cli
