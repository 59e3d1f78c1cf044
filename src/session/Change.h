// SPDX-License-Identifier: GPL-3.0-or-later
// What is told of everything that happens to the open document.
#pragma once

#include "core/Cell.h"

#include <string_view>

namespace orvane {

enum class ChangeKind {
    Replaced,      // another document is open: new, read, recovered
    Edited,        // the design was edited; an undo step when it differs now
    Undone,        // a step back, named as what was undone
    Redone,        // a step forward again
    Typed,         // a letter that an editor writes through: in the document, the step comes when it closes
    Drafted,       // what an open editor holds and the document does not is another now
    Viewed,        // how the document is looked at: widths, heights, rows shown, the script it names
    RowsToggled,   // one of the four special rows was shown or hidden by its command
    Multitasking,  // Polytask was turned on or off: another program, but no step
    Saved,         // the file has the document now; its name may be another one
    ProgramWanted, // nothing changed, the program is asked for
    Left,          // the document is left with the program
    Moved,         // the current cell, the current state, Shift, a pane: where the user is, not what he draws
    Ran,           // the machine that runs looks another way, or runs no more
    Judged,        // what there is to be told of the design is something else
};

// After these the table may be another one: states, events, targets, actions, timeouts. What is typed letter
// by letter is general code.
constexpr bool ChangesTheTable(ChangeKind kind) {
    return kind == ChangeKind::Replaced || kind == ChangeKind::Edited || kind == ChangeKind::Undone ||
           kind == ChangeKind::Redone;
}

// After these the machine may do something else.
constexpr bool ChangesTheMachine(ChangeKind kind) {
    return ChangesTheTable(kind) || kind == ChangeKind::Multitasking;
}

// After these the texts of the document may be others: names, comments, code, targets.
constexpr bool ChangesTexts(ChangeKind kind) { return ChangesTheTable(kind) || kind == ChangeKind::Typed; }

// After these the program may be another one.
constexpr bool ChangesTheProgram(ChangeKind kind) {
    return ChangesTexts(kind) || kind == ChangeKind::Multitasking;
}

// After these the generator runs: the program may be another one, or somebody waits for it.
constexpr bool RunsTheGenerator(ChangeKind kind) {
    return ChangesTheProgram(kind) || kind == ChangeKind::ProgramWanted;
}

// Which part of the table shows the change.
struct Touched {
    enum class Extent { Nothing, Column, RowHeads, AllColumns, Everything };

    Extent What = Extent::Nothing;
    StateNumber State; // for Extent::Column

    constexpr bool operator==(const Touched&) const = default;
};

struct Change {
    ChangeKind Kind;
    Touched Where;
    std::string_view Name = {}; // of the edit, as the status bar tells when it is undone: "insert state"
    bool Committed = false;     // there is a new undo step
    bool RowsForced = false;    // the special rows have come into sight, because something is in them
    bool Discarded = false;     // Replaced and Left: there was unsaved work, and the user did not want it
};

class SessionObserver {
  public:
    virtual void Told(const Change& change) = 0;

  protected:
    ~SessionObserver() = default;
};

// Who is told when. The table is painted before the program is written, which the disk can take its time for;
// the journal has the change before anything else can fail; boxes come last, because they run an event loop.
enum class ObserverRank { Table, Journal, Title, Generator, Rooms, Messages };

} // namespace orvane
