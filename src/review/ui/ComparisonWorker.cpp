// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/ComparisonWorker.h"

#include <utility>

namespace orvane {

ComparisonWorker::~ComparisonWorker() {
    if (thread_.joinable())
        thread_.join();
}

void ComparisonWorker::Begin(ComparisonTask task) {
    if (thread_.joinable())
        next_ = std::move(task);
    else
        Start(std::move(task));
}

void ComparisonWorker::Start(ComparisonTask task) {
    isWanted_ = true;
    thread_ = std::thread([this, task = std::move(task)] {
        auto versions =
            std::make_shared<const review::ComparedVersions>(*task.Old, *task.New, task.Wishes, task.View);
        QMetaObject::invokeMethod(
            this, [this, versions] { Finish(versions); }, Qt::QueuedConnection);
    });
}

void ComparisonWorker::Finish(const std::shared_ptr<const review::ComparedVersions>& versions) {
    thread_.join();
    if (next_)
        return Start(*std::exchange(next_, std::nullopt));
    if (std::exchange(isWanted_, false))
        Q_EMIT Done(versions);
}

} // namespace orvane
