// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <random>
#include <string>

namespace orvane {

// Tables full of transitions and actions, different for every seed.
class RandomTable {
  public:
    explicit RandomTable(unsigned seed) : random_(seed) {}

    int Number(int first, int last) { return std::uniform_int_distribution<int>(first, last)(random_); }
    bool OneIn(int n) { return Number(1, n) == 1; }

    // About every fourth cell holds something. Targets lie in 0..lastTarget.
    FsmDocument Document(int lastTarget = kStateCount) {
        FsmDocument document;
        for (const int row : EventRows())
            document.Event(row) = {Text("event"), Text(";code"), Text("tip"), Small()};
        for (const int state : StateNumbers())
            Fill(document.State(state), lastTarget);
        return document;
    }

  private:
    std::string Text(const char* kind) { return OneIn(3) ? "" : kind + std::to_string(Number(1, 999)); }
    std::int16_t Small() { return static_cast<std::int16_t>(Number(0, 3)); }

    void Fill(StateRecord& state, int lastTarget) {
        for (std::string* text : {&state.Name, &state.Tooltip, &state.EntryCode, &state.ExitCode,
                                  &state.TimeConst, &state.TimingVar, &state.TimerId})
            *text = Text("text");
        state.TimingMode = Number(0, 4);
        state.ColWidth = Number(0, 3000);
        state.LastTab = Small();
        for (const int row : CellRows()) {
            if (OneIn(4))
                state.Targets[row] = static_cast<std::int16_t>(Number(0, lastTarget));
            if (OneIn(4))
                state.Actions[row] = Text(";act");
        }
    }

    std::mt19937 random_;
};

} // namespace orvane
