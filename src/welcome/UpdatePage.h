// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the latest version on the download page and decides whether it is worth telling.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

// The version that the page offers, in capitals (V1.0.010): the text between the phrase that introduces it
// and the next "<", cut to its first line and to 40 characters. None when the page does not say.
std::optional<std::string> LatestVersion(std::string_view page);

// Compares the revisions alone, that is the last three characters of the version's text as a number; major
// and minor numbers do not count.
bool IsNewerRevision(std::string_view latestVersion, int revision);

// The question that tells of the latest version, CR LF line ends.
std::string UpdateQuestion(std::string_view programVersion, std::string_view latestVersion);

} // namespace orvane
