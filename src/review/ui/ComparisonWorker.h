// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Background.h"
#include "review/Identity.h"

#include <QObject>

#include <memory>
#include <optional>

namespace orvane {

// What somebody said about states and events. The old side is the document that is open here, with the
// numbers that it had then.
struct KnownIdentities {
    review::Wishes Wishes;
    std::shared_ptr<const FsmDocument> Here; // none without wishes
};

struct ComparisonTask {
    std::shared_ptr<const FsmDocument> Here;
    std::shared_ptr<const FsmDocument> Other;
    bool OtherIsOlder = true;
    KnownIdentities Known;
    review::ComparedVersions::View View = review::ComparedVersions::View::Compared;
};

struct Comparison {
    std::shared_ptr<const review::ComparedVersions> Versions;
    KnownIdentities Known; // with the numbers of the document as it was compared
};

// Compares in a thread: documents without names can take a second. The newest task wins; of one that another
// came after nothing is told.
class ComparisonWorker : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    void Begin(ComparisonTask task);
    // Nothing is told any more of what is under way.
    void Drop() { next_.reset(), isWanted_ = false; }

  Q_SIGNALS:
    void Done(const orvane::Comparison& comparison);

  private:
    void Start(ComparisonTask task);
    void Finish(const Comparison& comparison);

    std::optional<ComparisonTask> next_; // waits: a comparison that is under way cannot be stopped
    bool isWanted_ = false;
    Background<Comparison> work_{*this};
};

} // namespace orvane
