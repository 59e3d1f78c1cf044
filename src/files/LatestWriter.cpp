// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/LatestWriter.h"

#include <utility>

namespace orvane {

namespace {

using Clock = std::chrono::steady_clock;

} // namespace

LatestWriter::LatestWriter(Target& target, Listener& listener, std::chrono::milliseconds patience)
    : target_(target), listener_(listener), patience_(patience) {}

LatestWriter::~LatestWriter() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
        isAwaited_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable())
        thread_.join();
}

// To hand a text to a thread and back costs more than a quick drive: that one is written to right here, and a
// drive that becomes slow costs one wait. One that nothing is known of yet is waited for as long as for a
// quick one.
std::optional<WriteOutcome> LatestWriter::Write(const std::filesystem::path& path, std::string text) {
    std::unique_lock lock(mutex_);
    const bool isFree = !busy_ && !waiting_;
    if (isFree && took_ && *took_ < patience_) {
        lock.unlock(); // nobody else writes: the thread has nothing to do
        const Clock::time_point begin = Clock::now();
        WriteOutcome outcome = target_.WriteTo(path, text);
        took_ = Clock::now() - begin;
        return outcome;
    }
    const bool mayBeQuick = isFree && !took_;
    waiting_ = Job{path, std::move(text)};
    outcome_.reset();
    if (!thread_.joinable())
        thread_ = std::thread([this] { Run(); });
    changed_.notify_all();
    if (!mayBeQuick)
        return std::nullopt;
    isAwaited_ = true;
    const bool done = changed_.wait_for(lock, patience_, [this] { return !busy_ && !waiting_; });
    isAwaited_ = false;
    return done ? std::exchange(outcome_, std::nullopt) : std::nullopt;
}

std::optional<WriteOutcome> LatestWriter::TakeOutcome() {
    const std::lock_guard lock(mutex_);
    if (busy_ || waiting_)
        return std::nullopt;
    return std::exchange(outcome_, std::nullopt);
}

std::optional<WriteOutcome> LatestWriter::Finish() {
    std::unique_lock lock(mutex_);
    isAwaited_ = true;
    changed_.wait(lock, [this] { return !busy_ && !waiting_; });
    isAwaited_ = false;
    return std::exchange(outcome_, std::nullopt);
}

bool LatestWriter::IsWriting() const {
    const std::lock_guard lock(mutex_);
    return busy_ || waiting_;
}

void LatestWriter::Run() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return waiting_ || ending_; });
        if (!waiting_)
            return;
        const Job job = *std::exchange(waiting_, std::nullopt);
        busy_ = true;
        lock.unlock();
        const Clock::time_point begin = Clock::now();
        WriteOutcome outcome = target_.WriteTo(job.Path, job.Text);
        const Clock::duration took = Clock::now() - begin;
        lock.lock();
        busy_ = false;
        took_ = took;
        outcome_ = std::move(outcome);
        changed_.notify_all();
        if (!isAwaited_ && !waiting_)
            listener_.OutcomeIsThere();
    }
}

} // namespace orvane
