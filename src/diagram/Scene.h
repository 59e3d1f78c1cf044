// SPDX-License-Identifier: GPL-3.0-or-later
// What a picture of a machine shows, before anything has a place.
#pragma once

#include "core/FsmDocument.h"
#include "diagram/TextSizes.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::diagram {

// One line of a label, with the signs that stand before its text.
struct LabelLine {
    std::string Text;   // ANSI, on one line, as long as it may be
    bool Clock = false; // a timeout; the text is its limit
    bool Loop = false;  // the state is entered again

    bool operator==(const LabelLine&) const = default;
};

struct SceneState {
    StateNumber Number;
    std::string Title;            // number, ":" and name, cut to its room
    std::vector<LabelLine> Lines; // what leads back into the state, and stubs
    std::string OwnName;          // as in the document
    std::string Name;             // of the whole box for who does not see it
    bool IsStart = false;
    bool IsUnreachable = false;
    bool HasError = false;
};

// All transitions from one state to another, which are one line of the picture.
struct SceneEdge {
    StateNumber From;
    StateNumber To;
    std::vector<RowNumber> Rows; // in the order of the table
    std::vector<LabelLine> Label;
    std::string Name;      // with all its events
    bool IsDashed = false; // nothing but ELSE
};

struct Scene {
    std::vector<SceneState> States; // by number
    std::vector<SceneEdge> Edges;   // by numbers

    // Of States; none when the state is not drawn.
    std::optional<std::size_t> IndexOf(StateNumber state) const;
};

struct SceneOptions {
    bool HideElse = false;
    bool Stubs =
        false; // where more than a third of the others lead to one state, a line in their boxes says so
    std::optional<StateNumber> Focus = {}; // only this state, what leads there, and where it leads
    std::optional<RowNumber> OnlyRow = {}; // only the transitions of this row

    bool operator==(const SceneOptions&) const = default;
};

// Drawn are the states that have a name, a target, or something that leads to them. Throws BoundsError when a
// transition leads to a state that the table does not have.
Scene MakeScene(const FsmDocument& document, const TextSizes& sizes, const SceneOptions& options = {});

// The number of lines between states that the whole picture has.
std::size_t MergedEdges(const FsmDocument& document);

// Pictures with more lines than this show the neighbourhood of one state.
inline constexpr std::size_t kMostMergedEdges = 600;

} // namespace orvane::diagram
