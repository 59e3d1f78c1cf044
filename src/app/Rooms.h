// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"

#include <memory>
#include <vector>

namespace orvane {

// All rooms of the program, in the order in which they start and, within a rank, are told of changes.
std::vector<std::unique_ptr<Room>> MakeRooms(const RoomPlace& place);

} // namespace orvane
