// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ConflictsJson.h"

#include "cli/JsonReport.h"
#include "text/JsonString.h"

namespace orvane::cli {

namespace {

std::string ConflictObject(const review::Conflict& conflict) {
    return "{\"kind\":" + JsonString(ConflictKindName(conflict.Kind)) +
           ",\"what\":" + JsonString(conflict.What) +
           ",\"state\":" + NumberOrNull(conflict.Place.State.Number()) +
           ",\"row\":" + NumberOrNull(conflict.Place.Row.Number()) +
           ",\"field\":" + (conflict.Tag.empty() ? "null" : JsonString(conflict.Tag)) +
           ",\"base\":" + JsonStringOfAnsi(conflict.Base) + ",\"ours\":" + JsonStringOfAnsi(conflict.Ours) +
           ",\"theirs\":" + JsonStringOfAnsi(conflict.Theirs) + "}";
}

} // namespace

std::string ConflictsJson(const std::string& document, const std::vector<review::Conflict>& conflicts) {
    std::string json;
    for (const review::Conflict& conflict : conflicts)
        json += (json.empty() ? "\n" : ",\n") + ConflictObject(conflict);
    return "{\"version\":1,\"document\":" + JsonString(document) + ",\"conflicts\":[" + json + "\n]}\n";
}

} // namespace orvane::cli
