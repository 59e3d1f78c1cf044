// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/OrderedWork.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace orvane::cli {

namespace {

class Pool {
  public:
    Pool(std::size_t count, const std::function<Outcome(std::size_t)>& work, std::size_t most)
        : outcomes_(count), work_(work) {
        const std::size_t cores = std::max(1u, std::thread::hardware_concurrency());
        try {
            while (threads_.size() < std::min(most == 0 ? cores : most, count))
                threads_.emplace_back([this] { WorkOff(); });
        } catch (const std::system_error&) {
            if (threads_.empty()) // as many as the system gives will do, also none
                WorkOff();
        }
    }
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;
    ~Pool() {
        for (std::thread& thread : threads_)
            thread.join();
    }

    // Waits for it. To be asked for once.
    Outcome Take(std::size_t index) {
        std::unique_lock lock(mutex_);
        arrived_.wait(lock, [&] { return outcomes_[index].has_value(); });
        Outcome outcome = std::move(*outcomes_[index]);
        return outcome;
    }

  private:
    void WorkOff() {
        for (std::size_t index = next_++; index < outcomes_.size(); index = next_++) {
            Outcome outcome = work_(index);
            const std::lock_guard lock(mutex_);
            outcomes_[index] = std::move(outcome);
            arrived_.notify_one();
        }
    }

    std::vector<std::optional<Outcome>> outcomes_;
    const std::function<Outcome(std::size_t)>& work_;
    std::atomic<std::size_t> next_ = 0;
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::vector<std::thread> threads_; // last, so that they start when all else is there
};

} // namespace

void WorkInOrder(std::size_t count, const std::function<Outcome(std::size_t)>& work,
                 const std::function<void(const Outcome&)>& deliver, std::size_t most) {
    if (count == 1) {
        deliver(work(0));
        return;
    }
    Pool pool(count, work, most);
    for (std::size_t index = 0; index < count; ++index)
        deliver(pool.Take(index));
}

} // namespace orvane::cli
