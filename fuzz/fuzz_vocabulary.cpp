// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are read as a vocabulary: what comes out is no longer than what went in, holds no line end of the
// file but those between words, and reads the same once more.
#include "Require.h"
#include "text/Vocabulary.h"

#include <cstdint>
#include <string>

using namespace orvane;

namespace {

std::string AsLines(const std::string& kind, const std::string& words) {
    std::string lines = kind;
    for (const char letter : words)
        lines += letter == '\n' ? "\r\n" + kind : std::string(1, letter);
    return lines + "\r\n";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const Vocabulary read = ParseVocabulary(bytes);
    const std::string& instructions = read.InstructionWords;
    const std::string& directives = read.DirectiveWords;
    Require(instructions.size() + directives.size() <= size, "nothing is made up");
    Require(instructions.find_first_of("=\r") == std::string::npos,
            "an instruction is one piece of one line");
    Require(directives.find_first_of("=\r") == std::string::npos, "a directive is one piece of one line");
    const Vocabulary again =
        ParseVocabulary(AsLines("Inst=", instructions) + AsLines("Directive=", directives));
    Require(again == read, "words that are written down read the same");
    return 0;
}
