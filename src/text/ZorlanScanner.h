// SPDX-License-Identifier: GPL-3.0-or-later
// What the words of controller code are, so that a code pane can colour and complete them.
#pragma once

#include "text/Vocabulary.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvane {

enum class TokenKind : unsigned char { Plain, Comment, String, Instruction, Directive };

struct Token {
    std::size_t Length; // bytes
    TokenKind Kind;

    bool operator==(const Token&) const = default;
};

// The vocabulary made ready for looking words up. A match ignores the case of A to Z.
class ZorlanWords {
  public:
    // The vocabulary has to be in the encoding of the texts that are scanned.
    explicit ZorlanWords(const Vocabulary& vocabulary = {});

    TokenKind KindOf(std::string_view word) const;

    // Letters, digits, "_", every byte above 0x7F, and whatever else stands in a word of the vocabulary.
    bool IsWordCharacter(char character) const;

    // The words as the vocabulary spells them, in no particular order.
    std::vector<std::string> All() const;

  private:
    void Add(std::string_view words, TokenKind kind);

    struct Entry {
        std::string Spelling;
        TokenKind Kind;
    };
    std::unordered_map<std::string, Entry> entries_; // by the word in capitals
    std::array<bool, 256> wordCharacters_{};
};

// The tokens of the text, one after the other without a gap. ";" and "*" start a comment, a double quote a
// string; both end with their line at the latest.
std::vector<Token> ScanZorlan(std::string_view text, const ZorlanWords& words);

// The words of the vocabulary and of the text that go on where the prefix ends, sorted and without doubles,
// in both cases ignoring case. The prefix itself is none of them.
std::vector<std::string> CompletionWords(std::string_view text, std::string_view prefix,
                                         const ZorlanWords& words);

} // namespace orvane
