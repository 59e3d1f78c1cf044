// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/Report.h"
#include "core/DocumentReader.h"
#include "run/Advice.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::cli {

// A text as a JSON string, quotes included. Malformed UTF-8 becomes U+FFFD, so that the line stays valid.
std::string JsonString(std::string_view utf8);

// What there is to say about one document.
struct CheckedDocument {
    std::string_view Path; // as given
    const FsmDocument& Document;
    const Report& Findings;
    const std::vector<ReaderMessage>& Messages;
    bool Complete;                             // the document was read to its end
    const run::AdviceResult* Advice = nullptr; // when it was asked for
};

// One line:
// {"path":...,"complete":...,"counts":{"notes":...,"warnings":...,"errors":...},"findings":[...],"messages":[...]}
// A finding is {"severity":...,"kind":...,"state":...,"stateName":...,"row":...,"message":...}, a message of
// the reader
// {"line":...,"message":...}. What there is none of is null. Advice, where it is asked for, is one more list,
// {"kind":...,"state":...,"row":...,"text":...}.
std::string JsonLine(const CheckedDocument& checked);

// [{"kind":...,"state":...,"row":...,"text":...},...]; what there is none of is null.
std::string JsonOfAdvice(const std::vector<run::Advice>& list);

} // namespace orvane::cli
