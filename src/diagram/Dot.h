// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/Layered.h"
#include "diagram/Scene.h"

#include <string>

namespace orvane::diagram {

// The scene for programs that lay graphs out themselves (DOT, UTF-8). Nodes are s1, s2 and so on by the
// numbers of their states.
std::string DotOf(const Scene& scene, Direction direction);

} // namespace orvane::diagram
