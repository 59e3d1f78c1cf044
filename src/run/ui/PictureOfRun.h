// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/LiveRun.h"
#include "session/RunPicture.h"

namespace orvane {

// How the table shows the run at the moment that it is at, with or without how often each cell was taken.
RunPicture PictureOfRun(const run::LiveRun& run, bool withCounts);

} // namespace orvane
