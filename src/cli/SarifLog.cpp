// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/SarifLog.h"

#include "cli/MessageText.h"
#include "cli/SarifRules.h"
#include "core/ProgramVersion.h"
#include "text/ByteOf.h"
#include "text/JsonString.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::cli {

namespace {

constexpr std::string_view kSchema =
    "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json";

// Without a line: the file as a whole.
std::string Locations(std::string_view path, std::size_t line) {
    const std::string region = line == 0 ? "" : ",\"region\":{\"startLine\":" + NumberText(line) + "}";
    return "\"locations\":[{\"physicalLocation\":{\"artifactLocation\":{\"uri\":" + JsonString(UriOf(path)) +
           "}" + region + "}}]";
}

std::string Notification(const CheckedDocument& checked, std::size_t line, bool isError,
                         const std::string& shown) {
    return std::string("{\"level\":\"") + (isError ? "error" : "warning") +
           "\",\"message\":{\"text\":" + JsonString(shown) + "}," + Locations(checked.Path, line) + "}";
}

void Add(std::string& list, const std::string& object) { list += (list.empty() ? "" : ",") + object; }

std::string Results(const CheckedDocument& checked) {
    std::string results;
    for (const Finding& finding : checked.Findings.Findings)
        Add(results, SarifResult(checked.Path, RemarkOf(finding, checked)));
    if (checked.Advice != nullptr) {
        for (const run::Advice& advice : *checked.Advice)
            Add(results, SarifResult(checked.Path, RemarkOf(advice, checked)));
    }
    return results;
}

std::string Notifications(const CheckedDocument& checked) {
    std::string notifications;
    for (const ReaderMessage& message : checked.Messages) {
        const bool isLast = &message == &checked.Messages.back(); // which says where it broke off
        Add(notifications,
            Notification(checked, message.Line, isLast && !checked.Complete, ShownMessage(message)));
    }
    for (const std::string& failure : checked.Failures)
        Add(notifications, Notification(checked, 0, true, failure));
    return notifications;
}

bool StandsInUris(char byte) {
    constexpr std::string_view marks = "-._~/";
    const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    return isLetter || (byte >= '0' && byte <= '9') || marks.find(byte) != std::string_view::npos;
}

void AppendToUri(std::string& uri, char byte) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    if (StandsInUris(byte)) {
        uri += byte;
        return;
    }
    uri += '%';
    uri += digits[ByteOf(byte) >> 4];
    uri += digits[ByteOf(byte) & 0xF];
}

} // namespace

std::string SarifResult(std::string_view path, const Remark& remark) {
    return "{\"ruleId\":" + JsonString(remark.Kind) +
           ",\"ruleIndex\":" + NumberText(SarifRuleIndex(remark.Kind)) +
           ",\"level\":" + JsonString(remark.Severity) +
           ",\"message\":{\"text\":" + JsonString(OneLine(remark.Message)) + "}," +
           Locations(path, remark.Line) + "}";
}

std::string UriOf(std::string_view name) {
    std::string path(name);
#ifdef _WIN32
    std::replace(path.begin(), path.end(), '\\', '/');
    const bool onDrive = path.size() > 2 && path[1] == ':' && path[2] == '/';
    std::string uri = onDrive ? "file:///" + path.substr(0, 2) : path.starts_with("//") ? "file:" : "";
    path.erase(0, onDrive ? 2 : 0);
#else
    std::string uri = path.starts_with('/') ? "file://" : "";
#endif
    for (const char byte : path)
        AppendToUri(uri, byte);
    return uri;
}

SarifPart SarifOf(const CheckedDocument& checked) {
    return {Results(checked), Notifications(checked), !checked.Complete || !checked.Failures.empty()};
}

std::string SarifLog(const std::vector<SarifPart>& parts) {
    std::string results;
    std::string notifications;
    bool failed = false;
    for (const SarifPart& part : parts) {
        if (!part.Results.empty())
            Add(results, part.Results);
        if (!part.Notifications.empty())
            Add(notifications, part.Notifications);
        failed = failed || part.Failed;
    }
    return "{\"$schema\":" + JsonString(kSchema) +
           ",\"version\":\"2.1.0\",\"runs\":[{\"tool\":{\"driver\":{\"name\":\"orvanec\",\"version\":" +
           JsonString(VersionNumber()) + ",\"rules\":[" + SarifRules() +
           "]}},\"invocations\":[{\"executionSuccessful\":" + (failed ? "false" : "true") +
           ",\"toolExecutionNotifications\":[" + notifications + "]}],\"results\":[" + results + "]}]}\n";
}

} // namespace orvane::cli
