// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaObject>
#include <QObject>

#include <memory>
#include <stop_token>
#include <thread>
#include <utility>

namespace orvane {

// Work that takes too long for the window, done in a thread while the window stays usable; one piece at a
// time. It works on a copy of what it needs and is given a stop token, which it should look at often, because
// whoever stops it waits for it.
template <typename Result>
class Background {
  public:
    // The owner has this as a member.
    explicit Background(QObject& owner) : owner_(owner) {}
    Background(const Background&) = delete;
    Background& operator=(const Background&) = delete;
    ~Background() { Drop(); }

    // Drops what is on and runs Result work(std::stop_token) in a thread, then done(Result) where the owner
    // lives. The work must not throw.
    template <typename Work, typename Done>
    void Begin(Work work, Done done) {
        Drop();
        stop_ = std::stop_source();
        isOn_ = true;
        thread_ =
            std::thread([this, stop = stop_.get_token(), work = std::move(work), done = std::move(done)] {
                const auto result = std::make_shared<Result>(work(stop));
                const auto tell = [this, stop, result, done] {
                    if (stop.stop_requested())
                        return;
                    isOn_ = false;
                    done(std::move(*result));
                };
                QMetaObject::invokeMethod(&owner_, tell, Qt::QueuedConnection);
            });
    }

    // Its result is not told any more.
    void Drop() {
        stop_.request_stop();
        isOn_ = false;
        if (thread_.joinable())
            thread_.join();
    }

    bool IsOn() const { return isOn_; }

  private:
    QObject& owner_;
    std::stop_source stop_;
    std::thread thread_;
    bool isOn_ = false;
};

} // namespace orvane
