// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/ComparisonWorker.h"

#include <utility>

namespace orvane {

namespace {

KnownIdentities CarriedOn(const ComparisonTask& task) {
    const bool hasWishes = !task.Known.Wishes.States.empty() || !task.Known.Wishes.Rows.empty();
    if (!hasWishes)
        return {};
    if (*task.Known.Here == *task.Here)
        return {task.Known.Wishes, task.Here};
    return {review::CarriedOn(task.Known.Wishes, review::Match(*task.Known.Here, *task.Here)), task.Here};
}

Comparison Compared(const ComparisonTask& task) {
    KnownIdentities known = CarriedOn(task);
    const FsmDocument& before = task.OtherIsOlder ? *task.Other : *task.Here;
    const FsmDocument& after = task.OtherIsOlder ? *task.Here : *task.Other;
    auto versions = std::make_shared<const review::ComparedVersions>(
        before, after, task.OtherIsOlder ? known.Wishes.Mirrored() : known.Wishes, task.View);
    return {std::move(versions), std::move(known)};
}

} // namespace

void ComparisonWorker::Begin(ComparisonTask task) {
    if (work_.IsOn())
        next_ = std::move(task);
    else
        Start(std::move(task));
}

void ComparisonWorker::Start(ComparisonTask task) {
    isWanted_ = true;
    work_.Begin([task = std::move(task)](const std::stop_token&) { return Compared(task); },
                [this](const Comparison& comparison) { Finish(comparison); });
}

void ComparisonWorker::Finish(const Comparison& comparison) {
    if (next_)
        return Start(*std::exchange(next_, std::nullopt));
    if (std::exchange(isWanted_, false))
        Q_EMIT Done(comparison);
}

} // namespace orvane
