// SPDX-License-Identifier: GPL-3.0-or-later
#include "welcome/UpdatePage.h"

#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::string_view kPhrase = "Download Orvane for Zorlan ";
constexpr std::size_t kRevisionDigits = 3;
constexpr std::size_t kLongestVersion = 40; // characters; what is longer is no version, and no part of a box

} // namespace

std::optional<std::string> LatestVersion(std::string_view page) {
    const std::size_t phrase = page.find(kPhrase);
    if (phrase == std::string_view::npos)
        return std::nullopt;
    page.remove_prefix(phrase + kPhrase.size());
    const std::size_t end = page.find('<');
    if (end == std::string_view::npos)
        return std::nullopt;
    page = page.substr(0, std::min(end, page.find_first_of("\r\n")));
    return ToUpper(page.substr(0, kLongestVersion));
}

bool IsNewerRevision(std::string_view latestVersion, int revision) {
    latestVersion.remove_prefix(latestVersion.size() - std::min(latestVersion.size(), kRevisionDigits));
    return revision < ParseNumber(latestVersion);
}

std::string UpdateQuestion(std::string_view programVersion, std::string_view latestVersion) {
    std::string text = "There is a new version of this program available\r\nYou have version ";
    text.append(programVersion).append(". The latest one is ").append(latestVersion).append(kLineEnd);
    return text + "\r\n\r\n\r\n"
                  "Do you want to download the new version?\r\n"
                  "If you click Yes you will be taken to the download page online "
                  "where you can download the latest version\r\n\r\n";
}

} // namespace orvane
