// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace orvane {

// The program's logo in all the sizes there are, 16 to 256 pixels.
QIcon Logo();

} // namespace orvane
