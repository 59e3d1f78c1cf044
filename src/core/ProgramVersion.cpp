// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ProgramVersion.h"

#include "core/Version.h"
#include "text/NumberText.h"

namespace orvane {

std::string ProgramVersion() {
    std::string revision = NumberText(kVersionRevision);
    if (revision.size() < 3)
        revision.insert(0, 3 - revision.size(), '0');
    return "V" + NumberText(kVersionMajor) + "." + NumberText(kVersionMinor) + "." + revision;
}

std::string VersionNumber() {
    return NumberText(kVersionMajor) + "." + NumberText(kVersionMinor) + "." + NumberText(kVersionRevision);
}

} // namespace orvane
