// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvane::review {

// Numbers for texts, so that thousands of cells are compared without reading their texts again. The texts
// must outlive this.
class TextIds {
  public:
    static constexpr int kNoText = 0; // of the empty text, and of that alone

    int Of(std::string_view text);

    // How much of two texts is the same, from 0 to 1: the part of their lines that both have. 1 for two that
    // are empty.
    double Likeness(int one, int other);

  private:
    const std::vector<int>& LinesOf(int id);

    std::unordered_map<std::string_view, int> ids_;
    std::vector<std::string_view> texts_; // by id - 1
    std::vector<std::vector<int>> lines_; // by id - 1, sorted; empty until they are asked for
};

} // namespace orvane::review
