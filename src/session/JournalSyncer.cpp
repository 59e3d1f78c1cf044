// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalSyncer.h"

#include <utility>

namespace orvane {

JournalSyncer::JournalSyncer(FileSystem& files, FileSystem::Path folder, How how,
                             std::chrono::milliseconds delay)
    : files_(files), folder_(std::move(folder)), how_(how), delay_(delay) {}

JournalSyncer::~JournalSyncer() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable())
        thread_.join();
}

void JournalSyncer::Want(FileHandle file) {
    const std::lock_guard lock(mutex_);
    Wait(file);
}

void JournalSyncer::WantNew(FileHandle file, std::vector<RetiredJournal> retired) {
    const std::lock_guard lock(mutex_);
    Wait(file);
    isNew_ = true;
    retired_.insert(retired_.end(), retired.begin(), retired.end());
}

// The moment is that of the oldest bytes that wait: it does not move when more are written.
void JournalSyncer::Wait(FileHandle file) {
    if (!waiting_)
        due_ = std::chrono::steady_clock::now() + delay_;
    waiting_ = file;
    if (how_ == How::ByThread && !thread_.joinable())
        thread_ = std::thread([this] { Run(); });
    changed_.notify_all();
}

void JournalSyncer::Run() {
    std::unique_lock lock(mutex_);
    while (!ending_) {
        if (!waiting_)
            changed_.wait(lock);
        else if (std::chrono::steady_clock::now() < due_)
            changed_.wait_until(lock, due_);
        else
            DoWaiting(lock);
    }
}

void JournalSyncer::Finish() {
    std::unique_lock lock(mutex_);
    DoWaiting(lock);
}

std::vector<RetiredJournal> JournalSyncer::Forget() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return !busy_; });
    waiting_.reset();
    isNew_ = false;
    failure_.clear();
    return std::exchange(retired_, {});
}

std::error_code JournalSyncer::TakeFailure() {
    const std::lock_guard lock(mutex_);
    return std::exchange(failure_, {});
}

void JournalSyncer::DoWaiting(std::unique_lock<std::mutex>& lock) {
    changed_.wait(lock, [this] { return !busy_; });
    if (!waiting_)
        return;
    const FileHandle file = *std::exchange(waiting_, std::nullopt);
    const bool isNew = std::exchange(isNew_, false);
    std::vector<RetiredJournal> retired = std::exchange(retired_, {});
    busy_ = true;
    lock.unlock();
    const std::error_code failure = Sync(file, isNew);
    if (!failure)
        PutAway(files_, folder_, retired);
    lock.lock();
    busy_ = false;
    if (failure) { // what was to go stays until something newer is safe
        failure_ = failure;
        retired_.insert(retired_.end(), retired.begin(), retired.end());
    }
    changed_.notify_all();
}

std::error_code JournalSyncer::Sync(FileHandle file, bool isNew) {
    std::error_code failure = files_.Sync(file);
    if (!failure && isNew) {
        failure = files_.SyncFolder(folder_);
        if (failure == std::errc::invalid_argument) // not every file system knows how
            failure.clear();
    }
    return failure;
}

} // namespace orvane
