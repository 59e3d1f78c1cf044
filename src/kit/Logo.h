// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace orvane {

// What stands at a window's title and in lists of windows: 16 to 64 pixels. Every start waits for these to be
// read.
QIcon WindowIcon();

// All the sizes there are, up to 256 pixels.
QIcon Logo();

} // namespace orvane
