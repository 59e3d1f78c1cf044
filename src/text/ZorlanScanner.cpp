// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/ZorlanScanner.h"

#include "text/Ascii.h"
#include "text/ByteOf.h"

#include <algorithm>
#include <map>

namespace orvane {

namespace {

bool StartsComment(char c) { return c == ';' || c == '*'; }
bool StartsString(char c) { return c == '"'; }

bool IsAlwaysWordCharacter(std::size_t byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
           byte == '_' || byte >= 0x80;
}

std::size_t LengthUpToLineEnd(std::string_view text) {
    return std::min(text.find_first_of("\r\n"), text.size());
}

std::size_t StringLength(std::string_view text) {
    const std::size_t line = LengthUpToLineEnd(text);
    const std::size_t quote = text.substr(0, line).find('"', 1);
    return quote == std::string_view::npos ? line : quote + 1;
}

std::size_t WordLength(std::string_view text, const ZorlanWords& words) {
    std::size_t length = 0;
    while (length < text.size() && words.IsWordCharacter(text[length]))
        ++length;
    return length;
}

// The token that a non-empty text starts with.
Token FirstToken(std::string_view text, const ZorlanWords& words) {
    if (StartsComment(text.front()))
        return {LengthUpToLineEnd(text), TokenKind::Comment};
    if (StartsString(text.front()))
        return {StringLength(text), TokenKind::String};
    if (const std::size_t length = WordLength(text, words); length > 0)
        return {length, words.KindOf(text.substr(0, length))};
    return {1, TokenKind::Plain};
}

} // namespace

ZorlanWords::ZorlanWords(const Vocabulary& vocabulary) {
    for (std::size_t byte = 0; byte < wordCharacters_.size(); ++byte)
        wordCharacters_[byte] = IsAlwaysWordCharacter(byte);
    Add(vocabulary.InstructionWords, TokenKind::Instruction);
    Add(vocabulary.DirectiveWords, TokenKind::Directive);
}

void ZorlanWords::Add(std::string_view words, TokenKind kind) {
    while (!words.empty()) {
        const std::string_view word = words.substr(0, words.find('\n'));
        words.remove_prefix(std::min(word.size() + 1, words.size()));
        if (word.empty())
            continue;
        for (const char c : word)
            wordCharacters_[ByteOf(c)] |= c > ' ' && !StartsComment(c) && !StartsString(c);
        entries_.try_emplace(AsciiUpper(word), Entry{std::string(word), kind});
    }
}

TokenKind ZorlanWords::KindOf(std::string_view word) const {
    const auto entry = entries_.find(AsciiUpper(word));
    return entry == entries_.end() ? TokenKind::Plain : entry->second.Kind;
}

bool ZorlanWords::IsWordCharacter(char character) const { return wordCharacters_[ByteOf(character)]; }

std::vector<std::string> ZorlanWords::All() const {
    std::vector<std::string> all;
    all.reserve(entries_.size());
    for (const auto& [capitals, entry] : entries_)
        all.push_back(entry.Spelling);
    return all;
}

std::vector<Token> ScanZorlan(std::string_view text, const ZorlanWords& words) {
    std::vector<Token> tokens;
    while (!text.empty()) {
        const Token token = FirstToken(text, words);
        text.remove_prefix(token.Length);
        const bool goesOn =
            token.Kind == TokenKind::Plain && !tokens.empty() && tokens.back().Kind == TokenKind::Plain;
        if (goesOn)
            tokens.back().Length += token.Length;
        else
            tokens.push_back(token);
    }
    return tokens;
}

std::vector<std::string> CompletionWords(std::string_view text, std::string_view prefix,
                                         const ZorlanWords& words) {
    std::map<std::string, std::string> found; // by the word in capitals
    const std::string start = AsciiUpper(prefix);
    const auto offer = [&](std::string_view word) {
        std::string capitals = AsciiUpper(word);
        if (capitals.size() > start.size() && capitals.compare(0, start.size(), start) == 0)
            found.try_emplace(std::move(capitals), word);
    };
    for (const std::string& word : words.All())
        offer(word);
    while (!text.empty()) {
        const Token token = FirstToken(text, words);
        if (words.IsWordCharacter(text.front()))
            offer(text.substr(0, token.Length));
        text.remove_prefix(token.Length);
    }
    std::vector<std::string> sorted;
    sorted.reserve(found.size());
    for (auto& [capitals, word] : found)
        sorted.push_back(std::move(word));
    return sorted;
}

} // namespace orvane
