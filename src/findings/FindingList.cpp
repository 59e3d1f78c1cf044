// SPDX-License-Identifier: GPL-3.0-or-later
#include "findings/FindingList.h"

#include "codegen/DesignChecks.h"
#include "run/DesignAdvice.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::findings {

namespace {

DesignFinding FindingOf(run::Advice advice) {
    return {FindingLevel::Advice, advice.Place, std::move(advice.Message)};
}

std::string RowTitle(const FsmDocument& document, RowNumber row) {
    if (row == RowNumber(kTimingModeRow))
        return "timeout mode";
    if (row == RowNumber(kTimeoutRow))
        return "timeout";
    if (row == RowNumber(kElseRow))
        return "ELSE";
    if (row < kFirstEventRow)
        return "row " + NumberText(row.Number());
    const std::string name(Trim(document.Event(row).Name));
    return name.empty() ? "row " + NumberText(row.Number()) : name;
}

} // namespace

std::vector<DesignFinding> FindingList(std::vector<DesignFinding> report, const FsmDocument& document) {
    std::stable_sort(report.begin(), report.end(),
                     [](const DesignFinding& a, const DesignFinding& b) { return a.Level < b.Level; });
    for (run::Advice& advice : run::AdviceOnDesign(document))
        report.push_back(FindingOf(std::move(advice)));
    return report;
}

Explored Explore(const FsmDocument& document, const std::stop_token& stop) {
    const std::vector<run::Advice> known = run::AdviceOnDesign(document);
    run::AdviceResult advice = run::AdviceOn(document, stop);
    Explored explored{{}, advice.Complete};
    for (run::Advice& each : advice.List) {
        if (std::find(known.begin(), known.end(), each) == known.end())
            explored.Advice.push_back(FindingOf(std::move(each)));
    }
    return explored;
}

std::string PlaceText(const FsmDocument& document, Cell place) {
    if (place.State == kNoState)
        return place.Row == RowNumber(kNoRow) ? "The machine" : "Event " + RowTitle(document, place.Row);
    const std::string state = StateTitle(document, place.State);
    return place.Row == RowNumber(kNoRow) ? "State " + state
                                          : state + ", on " + RowTitle(document, place.Row);
}

} // namespace orvane::findings
