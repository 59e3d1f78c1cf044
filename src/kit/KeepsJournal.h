// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace orvane {

// Whether unsaved changes are kept for recovery: yes, unless the user has switched that off for good, as
// plants do in which no copies of a design may lie about.
bool KeepsJournal();
// False when that could not be written down.
[[nodiscard]] bool SetKeepsJournal(bool keeps);

} // namespace orvane
