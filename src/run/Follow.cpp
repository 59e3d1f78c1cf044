// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Follow.h"

#include "core/RecordOf.h"
#include "run/TestPlan.h"

#include <numeric>
#include <tuple>

namespace orvane::run {

namespace {

auto Identity(const EventRecord& event) { return std::tie(event.Name, event.Code, event.Tooltip); }

// What a state is known by; its targets are renumbered when columns move.
auto Identity(const StateRecord& state) {
    return std::tie(state.Name, state.Tooltip, state.EntryCode, state.ExitCode, state.TimeConst,
                    state.TimingVar, state.TimerId);
}

// The rows or columns of one table beside those of another. An edit moves a stretch of them by one place:
// that is looked for first, because names may stand twice.
template <typename Number>
class Comparison {
  public:
    Comparison(const FsmDocument& before, const FsmDocument& after, NumberRange<Number> range)
        : before_(before), after_(after), first_(range.First().Number()), last_(range.Last().Number()) {}

    // For each place where it has gone, 0 when it is gone.
    template <typename Places>
    void Fill(Places& places) const {
        std::iota(places.begin(), places.end(), 0);
        const int same = Unmoved(first_, 0);
        if (same > last_)
            return;
        if (const int end = Unmoved(same, 1); IsInsertion(same, end)) {
            for (int i = same; i < end; ++i)
                places[std::size_t(i)] = i + 1;
            if (!IsEmpty(before_, end))
                places[std::size_t(end)] = 0;
        } else if (IsDeletion(same)) {
            places[std::size_t(same)] = 0;
            for (int i = same + 1; i <= last_; ++i)
                places[std::size_t(i)] = i - 1;
        } else {
            for (int i = same; i <= last_; ++i)
                places[std::size_t(i)] = ByName(i);
        }
    }

  private:
    bool Same(int before, int after) const {
        return Identity(RecordOf(before_, Number(before))) == Identity(RecordOf(after_, Number(after)));
    }
    bool IsEmpty(const FsmDocument& document, int i) const {
        return RecordOf(document, Number(i)).Name.empty();
    }

    // The first place from here on that has not gone up by just so many places.
    int Unmoved(int from, int places) const {
        while (from + places <= last_ && Same(from, from + places))
            ++from;
        return from;
    }

    // Something empty stands here, and what follows has moved on to `end`, which was empty or fell out.
    bool IsInsertion(int at, int end) const {
        return IsEmpty(after_, at) && end > at && Unmoved(end + 1, 0) > last_;
    }

    bool IsDeletion(int at) const {
        for (int i = at; i < last_; ++i) {
            if (!Same(i + 1, i))
                return false;
        }
        return at < last_ || IsEmpty(after_, at);
    }

    // The only one of that name; else what stands in its place now.
    int ByName(int place) const {
        const std::string& name = RecordOf(before_, Number(place)).Name;
        if (name.empty() || RecordOf(after_, Number(place)).Name == name)
            return place;
        int found = 0;
        for (int i = first_; i <= last_; ++i) {
            if (RecordOf(after_, Number(i)).Name == name)
                found = found == 0 ? i : -1;
        }
        return found > 0 ? found : place;
    }

    const FsmDocument& before_;
    const FsmDocument& after_;
    int first_;
    int last_;
};

} // namespace

Followed::Followed(const FsmDocument& before, const FsmDocument& after) {
    Comparison<RowNumber>(before, after, EventRows()).Fill(rows_);
    Comparison<StateNumber>(before, after, StateNumbers()).Fill(states_);
}

std::optional<RunStep> Followed::Step(const RunStep& before) const {
    RunStep now = before;
    if (before.What == RunAct::Limit) {
        const StateNumber state = State(StateNumber(before.State));
        now.State = std::uint8_t(state.Number());
        return state == kNoState ? std::nullopt : std::optional(now);
    }
    if (before.What != RunAct::Inputs && before.What != RunAct::Pulse)
        return now;
    now.Amount = 0;
    for (const RowNumber row : EventRows()) {
        if ((before.Amount & BitOf(row)) == 0)
            continue;
        if (Row(row) == RowNumber())
            return std::nullopt;
        now.Amount |= BitOf(Row(row));
    }
    return now;
}

} // namespace orvane::run
