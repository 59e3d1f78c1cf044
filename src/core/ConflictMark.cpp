// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ConflictMark.h"

namespace orvane {

// Every text of a document is asked at every run of the generator. Most have no "<" at all, and one character
// is looked for several times as fast as the mark.
bool HoldsConflict(std::string_view text) {
    if (text.find('<') == std::string_view::npos)
        return false;
    for (std::size_t at = text.find(kConflictMark); at != std::string_view::npos;
         at = text.find(kConflictMark, at + 1)) {
        if (at == 0 || text[at - 1] == '\n' || text[at - 1] == '\r')
            return true;
    }
    return false;
}

} // namespace orvane
