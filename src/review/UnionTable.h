// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/Change.h"
#include "review/DocumentPair.h"

#include <map>
#include <string>
#include <vector>

namespace orvane::review {

// A state or event of either version; 0 on the side that does not have it.
template <typename Number>
struct UnionLine {
    Number Old;
    Number New;
    char Sign = ' '; // + came, - went, > moved
    bool IsGuess = false;

    bool operator==(const UnionLine&) const = default;
};

// A place of the table of both, from 0. Row 0 has what states are beside their transitions, column 0 what
// events are, and (0, 0) the machine as a whole.
struct UnionPlace {
    int Row = 0;
    int Column = 0;

    bool operator<(const UnionPlace& other) const {
        return Row != other.Row ? Row < other.Row : Column < other.Column;
    }
};

// One table for two versions: every row and every column that either of them has, in the order of the new
// one, what went behind what it stood behind. Texts are UTF-8 on one line.
class UnionTable {
  public:
    // The documents must outlive it. The list is theirs.
    UnionTable(const DocumentPair& documents, const ChangeList& list);

    int RowCount() const { return int(rows_.size()) + 1; }
    int ColumnCount() const { return int(columns_.size()) + 1; }
    // Not of row or column 0. Timeout and ELSE are the first two.
    const UnionLine<RowNumber>& Row(int row) const { return rows_[std::size_t(row) - 1]; }
    const UnionLine<StateNumber>& Column(int column) const { return columns_[std::size_t(column) - 1]; }

    // Both numbers, with the sign in front and a question mark behind when it was guessed: "3 → 4 ?". Nothing
    // for row and column 0, Timeout and ELSE.
    std::string RowNumbers(int row) const;
    std::string ColumnNumbers(int column) const;
    // As it is called in the new version, if it is there.
    std::string RowName(int row) const;
    std::string ColumnName(int column) const;

    // + - > or ~ where something is different, else a blank.
    char SignAt(UnionPlace place) const;
    // What a cell leads to, with a star for an action, and what it led to; of a field that it is different.
    std::string TextAt(UnionPlace place) const;

    // Which changes of the list are at a place, by their index, and where a change is.
    const std::vector<std::size_t>& ChangesAt(UnionPlace place) const;
    UnionPlace PlaceOf(const Change& change) const;

  private:
    bool IsTransition(UnionPlace place) const { return place.Row > 0 && place.Column > 0; }
    std::string FieldsText(UnionPlace place) const;
    std::string TransitionText(UnionPlace place) const;
    const StateNumber* OldTarget(UnionPlace place) const;
    const StateNumber* NewTarget(UnionPlace place) const;
    bool HasAction(UnionPlace place) const;

    DocumentPair documents_;
    const ChangeList& list_;
    std::vector<UnionLine<RowNumber>> rows_;
    std::vector<UnionLine<StateNumber>> columns_;
    std::map<UnionPlace, std::vector<std::size_t>> changes_;
};

} // namespace orvane::review
