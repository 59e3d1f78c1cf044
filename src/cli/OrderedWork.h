// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"

#include <cstddef>
#include <functional>

namespace orvane::cli {

// Calls work(0) to work(count - 1) on all cores, or on `most` threads when that is not 0, and deliver() with
// their outcomes in that order, on the calling thread, each as soon as those before it were delivered. One
// piece of work starts no thread. The work must not throw.
void WorkInOrder(std::size_t count, const std::function<Outcome(std::size_t)>& work,
                 const std::function<void(const Outcome&)>& deliver, std::size_t most = 0);

} // namespace orvane::cli
