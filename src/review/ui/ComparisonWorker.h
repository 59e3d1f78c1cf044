// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/ComparedVersions.h"

#include <QObject>

#include <memory>
#include <optional>
#include <thread>

namespace orvane {

struct ComparisonTask {
    std::shared_ptr<const FsmDocument> Old;
    std::shared_ptr<const FsmDocument> New;
    review::Wishes Wishes;
    review::ComparedVersions::View View = review::ComparedVersions::View::Compared;
};

// Compares in a thread: documents without names can take a second. The newest task wins; of one that another
// came after nothing is told.
class ComparisonWorker : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;
    ~ComparisonWorker() override;

    void Begin(ComparisonTask task);
    // Nothing is told any more of what is under way.
    void Drop() { next_.reset(), isWanted_ = false; }

  Q_SIGNALS:
    void Done(const std::shared_ptr<const orvane::review::ComparedVersions>& versions);

  private:
    void Start(ComparisonTask task);
    void Finish(const std::shared_ptr<const review::ComparedVersions>& versions);

    std::thread thread_; // joinable from Start to Finish
    std::optional<ComparisonTask> next_;
    bool isWanted_ = false;
};

} // namespace orvane
