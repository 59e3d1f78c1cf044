// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text/AnsiText.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace orvane {

// The text of a program as it grows. Tabs and line ends are put here and nowhere else.
class ProgramText {
  public:
    // A line made of the pieces, as they are.
    template <typename... Pieces>
    void EmitLine(const Pieces&... pieces) {
        (text_.append(std::string_view(pieces)), ...);
        text_.append(kLineEnd);
    }

    template <typename... Pieces>
    void EmitLabel(const Pieces&... pieces) {
        EmitLine(pieces..., ":");
    }

    void EmitInstruction(std::string_view word) { EmitLine("\t", word); }

    template <typename... Pieces>
    void EmitInstruction(std::string_view word, const Pieces&... operand) {
        EmitLine("\t", word, "\t", operand...);
    }

    // Room for that many bytes, so that the text need not move while it grows.
    void Reserve(std::size_t size) { text_.reserve(size); }

    std::string Take() { return std::move(text_); }

  private:
    std::string text_;
};

} // namespace orvane
