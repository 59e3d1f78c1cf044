// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Obstacles.h"

#include "codegen/CodeGenerator.h"
#include "codegen/DesignChecks.h"
#include "codegen/LabelClashes.h"
#include "run/LimitText.h"
#include "run/Machine.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::run {

namespace {

std::string OnOneLine(std::string text) {
    for (std::size_t at = text.find(kLineEnd); at != std::string::npos; at = text.find(kLineEnd, at))
        text.replace(at, kLineEnd.size(), " ");
    return text;
}

void AddLimit(std::vector<std::string>& obstacles, const FsmDocument& document, StateNumber state) {
    const std::optional<std::int64_t> limit = LimitNumber(document.State(state).TimeConst);
    if (!limit || (*limit >= 0 && *limit <= kLongestTime))
        return;
    const std::string why =
        *limit < 0 ? "below zero" : "beyond the " + NumberText(kLongestTime) + " that a timer can count";
    obstacles.push_back("State " + StateTitle(document, state) + " has a time constant " + why);
}

} // namespace

std::vector<std::string> Obstacles(const FsmDocument& document) {
    std::vector<std::string> obstacles;
    for (const Finding& finding : GenerateProgram(document, {}).Findings.Findings) {
        if (finding.Level() == Severity::Error)
            obstacles.push_back(OnOneLine(finding.Message));
    }
    if (!obstacles.empty())
        return obstacles;
    const Machine machine(document);
    if (machine.Start() == StateNumber())
        obstacles.push_back("No state is entered by a transition, so that the program has none");
    for (const std::string& label : LabelClashes(document))
        obstacles.push_back("The label " + label + " stands twice in the program");
    for (const StateNumber state : StateNumbers()) {
        if (machine.State(state).Limit == LimitKind::Constant)
            AddLimit(obstacles, document, state);
    }
    return obstacles;
}

} // namespace orvane::run
