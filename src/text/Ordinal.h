// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace orvane {

// The place of an enumerator among those of its type, from 0, where a table stands beside an enumeration: the
// two must be in the same order and the enumeration without gaps.
template <typename Enumeration>
constexpr std::size_t Ordinal(Enumeration enumerator) {
    return static_cast<std::size_t>(enumerator);
}

// The enumerator at a place; `ordinal` must be at least 0 and less than how many there are.
template <typename Enumeration, typename Integer>
constexpr Enumeration FromOrdinal(Integer ordinal) {
    return static_cast<Enumeration>(ordinal);
}

} // namespace orvane
