// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DocumentTexts.h"

#include <cstddef>
#include <map>
#include <string_view>
#include <tuple>

namespace orvane {

// Where the fields and the blocks of a document begin in the file that it was read from. A text has as many
// lines there as in the document, so that each line of it can be found in the file.
class TextStarts {
  public:
    // The record as the cell that edits it, with row 0 for a state, and the field's tag or that of the
    // block's head. Of a field that stands there more than once the last one counts, as it does for the
    // reader. The tag lives as long as the program.
    void Add(Cell record, std::string_view tag, std::size_t line) {
        lines_[{record.State, record.Row, tag}] = line;
    }

    // From 1; 0 for what the file does not have.
    std::size_t LineOf(const TextPlace& place) const;
    std::size_t LineOf(Cell record, std::string_view tag) const;

  private:
    std::map<std::tuple<StateNumber, RowNumber, std::string_view>, std::size_t> lines_;
};

} // namespace orvane
