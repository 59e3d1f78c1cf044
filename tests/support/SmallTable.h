// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "core/TimingMode.h"

#include <cstdint>
#include <string>

namespace orvane::test {

// A document to be filled cell by cell: prefix P, events 6..9 with names and test code, no states.
class SmallTable {
  public:
    SmallTable() {
        document_.General.FsmName = "P";
        for (const int row : {6, 7, 8, 9}) {
            document_.Event(row).Name = "E" + std::to_string(row);
            document_.Event(row).Code = ";test";
        }
    }

    SmallTable& Polytask() {
        document_.View.Polytask = true;
        return *this;
    }
    SmallTable& Name(int state, const std::string& name, const std::string& entry = "") {
        document_.State(state).Name = name;
        document_.State(state).EntryCode = entry;
        return *this;
    }
    SmallTable& Cell(int state, int row, int target, const std::string& action = "") {
        document_.State(state).Targets[row] = static_cast<std::int16_t>(target);
        document_.State(state).Actions[row] = action;
        return *this;
    }
    // The limit is the constant, or code that computes it, as the mode says.
    SmallTable& Timing(int state, std::int32_t mode, const std::string& limit,
                       const std::string& timer = "") {
        StateRecord& record = document_.State(state);
        record.TimingMode = mode;
        (HasVariableLimit(mode) ? record.TimingVar : record.TimeConst) = limit;
        record.TimerId = timer;
        return *this;
    }

    const FsmDocument& Document() const { return document_; }
    FsmDocument& Document() { return document_; }

  private:
    FsmDocument document_;
};

} // namespace orvane::test
