// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/Layout.h"

#include <string>

namespace orvane::diagram {

// The picture as a file of its own for browsers and drawing programs (SVG 1.1, UTF-8). States are groups with
// the id "state-N", edges "edge-A-B" by their states' numbers. Colour is never the only sign.
std::string SvgOf(const Scene& scene, const Layout& layout, const TextSizes& sizes);

} // namespace orvane::diagram
