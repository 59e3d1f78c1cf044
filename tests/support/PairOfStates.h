// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/CodeGenerator.h"

#include <string>
#include <vector>

namespace orvane {

inline const GenerationContext kPumpContext = {"C:\\work\\pump.zfsm", "16/11/2026 01:02:03"};

inline std::string Generated(const FsmDocument& document) {
    return GenerateProgram(document, kPumpContext).Text;
}

inline std::vector<std::string> MessagesOf(const FsmDocument& document) {
    std::vector<std::string> messages;
    for (const Finding& finding : GenerateProgram(document, kPumpContext).Findings.Findings)
        messages.push_back(finding.Message);
    return messages;
}

// States 1 and 2 go to each other in event row 6, so that both have blocks.
inline FsmDocument PairOfStates() {
    FsmDocument document;
    document.General.FsmName = "P";
    document.General.LaunchSeg = false;
    document.Event(6).Code = ";six?";
    document.State(1).Targets[6] = 2;
    document.State(2).Targets[6] = 1;
    return document;
}

} // namespace orvane
