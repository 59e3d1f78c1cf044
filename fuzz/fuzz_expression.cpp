// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are read as a query and a text: the first byte says how to look, the first line is the
// expression. What is found lies in the text, in order, and the work stays within its bound.
#include "Require.h"
#include "find/TextSearch.h"

#include <cstdint>
#include <string>
#include <string_view>

using namespace orvane;
using namespace orvane::find;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (bytes.empty())
        return 0;
    const std::string_view rest = bytes.substr(1);
    const std::string_view expression = rest.substr(0, rest.find('\n'));
    const std::string_view text = rest.substr(std::min(expression.size() + 1, rest.size()));
    const auto read = ReadPattern({.Text = std::string(expression),
                                   .MatchCase = (bytes.front() & 1) != 0,
                                   .WholeWord = (bytes.front() & 2) != 0,
                                   .IsExpression = (bytes.front() & 4) != 0});
    if (const auto* fault = std::get_if<PatternFault>(&read)) {
        Require(!fault->Text.empty(), "a fault says something");
        return 0;
    }
    const Pattern& pattern = std::get<Pattern>(read);
    const auto* program = std::get_if<PatternProgram>(&pattern);
    const std::size_t length = program == nullptr ? 1 : program->Steps.size();
    Require(length <= kMostInstructions, "a program is bounded");
    TextSearch search(pattern, true, 1'000'000);
    std::size_t behind = 0;
    search.Each(text, [&](Span match) {
        Require(match.Start >= behind && match.End > match.Start && match.End <= text.size(),
                "matches lie in the text, one behind the other, and none is empty");
        for (std::size_t at = match.Start; at < match.End; ++at)
            Require(program == nullptr || !IsLineEnd(text[at]), "a match stays in its line");
        for (const std::optional<Span>& group : search.Groups())
            Require(!group || (group->Start <= group->End && group->End <= text.size()),
                    "groups lie in the text");
        behind = match.End;
        return true;
    });
    return 0;
}
