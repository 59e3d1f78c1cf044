// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/Layered.h"

#include <stop_token>
#include <vector>

namespace orvane::diagram {

// How often lines cross. Lines with an end in common cross nowhere.
int CountCrossings(const Layered& layered);

// Orders the items of all layers so that few lines cross. The result depends on nothing but the layers, and
// not much on their first order. When it is stopped, the order is what was found so far.
void OrderLayers(Layered& layered, const std::stop_token& stop = {});

// The same with a short search.
void OrderRoughly(Layered& layered);

// Puts the given items where the fewest lines cross; all others keep their order.
void PlaceAmong(Layered& layered, const std::vector<int>& items);

} // namespace orvane::diagram
