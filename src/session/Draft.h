// SPDX-License-Identifier: GPL-3.0-or-later
// What open editors hold: typed, but not yet in the document.
#pragma once

#include "core/Cell.h"
#include "core/EventRecord.h"
#include "core/GeneralCode.h"
#include "core/StateRecord.h"

#include <optional>
#include <string>
#include <variant>

namespace orvane {

struct TypedTarget {
    std::string Text; // digits, as they stand in the box over the cell
};

struct ActionText {
    std::string Code;
};

struct BuilderText {
    std::string Script; // UTF-8: it can hold more than its file
};

// The place says what is edited: (0..3, state) a state, (row, 0) an event, (0, 0) what belongs to the machine
// as a whole, (4..54, state) a transition.
struct Draft {
    Cell Place;
    std::variant<StateRecord, EventRecord, GeneralCode, ActionText, TypedTarget, BuilderText> Content;
};

// An editor that can be open.
class DraftSource {
  public:
    // None while nothing was edited.
    virtual std::optional<Draft> CurrentDraft() const = 0;

  protected:
    ~DraftSource() = default;
};

} // namespace orvane
