// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace orvane {

// One event: one row of the table. Texts are ANSI bytes with CR LF line ends.
struct EventRecord {
    std::string Name;
    std::string Code; // leaves the controller's condition flag true when the event has occurred
    std::string Tooltip;
    std::int16_t LastTab = 0; // the tab of the event editor that was last shown; not stored

    bool operator==(const EventRecord&) const = default;
};

// No name, no code and no tooltip: such a row is not stored.
bool IsEmpty(const EventRecord& event);

} // namespace orvane
