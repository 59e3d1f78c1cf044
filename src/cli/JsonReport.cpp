// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/JsonReport.h"

#include "cli/FindingLine.h"
#include "cli/MessageText.h"
#include "text/JsonString.h"
#include "text/NumberText.h"

namespace orvane::cli {

namespace {

std::string FindingObject(const Finding& finding, const CheckedDocument& checked) {
    const std::string stateName = finding.Place.State == kNoState
                                      ? "null"
                                      : JsonStringOfAnsi(checked.Document.State(finding.Place.State).Name);
    return "{\"severity\":" + JsonString(SeverityName(checked.Findings.LevelOf(finding))) +
           ",\"kind\":" + JsonString(KindName(finding.Kind)) +
           ",\"line\":" + NumberText(LineOf(finding, checked.Document, checked.Starts)) +
           ",\"state\":" + NumberOrNull(finding.Place.State.Number()) + ",\"stateName\":" + stateName +
           ",\"row\":" + NumberOrNull(finding.Place.Row.Number()) +
           ",\"message\":" + JsonString(StreamText(finding.Message)) + "}";
}

// What stands behind the kind, the same with and without a line.
std::string RestOfAdvice(const run::Advice& advice) {
    return ",\"state\":" + NumberOrNull(advice.Place.State.Number()) +
           ",\"row\":" + NumberOrNull(advice.Place.Row.Number()) +
           ",\"text\":" + JsonStringOfAnsi(advice.Message) + "}";
}

std::string AdviceObject(const run::Advice& advice) {
    return "{\"kind\":" + JsonString(AdviceKindName(advice.Kind)) + RestOfAdvice(advice);
}

std::string AdviceWithLine(const run::Advice& advice, const TextStarts& starts) {
    return "{\"kind\":" + JsonString(AdviceKindName(advice.Kind)) +
           ",\"line\":" + NumberText(LineOf(advice, starts)) + RestOfAdvice(advice);
}

std::string MessageObject(std::size_t line, const std::string& shown) {
    return "{\"line\":" + NumberOrNull(line) + ",\"message\":" + JsonString(shown) + "}";
}

std::string MessageObjects(const CheckedDocument& checked) {
    std::string objects;
    const auto add = [&](const std::string& object) { objects += (objects.empty() ? "" : ",") + object; };
    for (const ReaderMessage& message : checked.Messages)
        add(MessageObject(message.Line, ShownMessage(message)));
    for (const std::string& failure : checked.Failures)
        add(MessageObject(0, failure));
    return objects;
}

template <typename Item, typename Object>
std::string Array(const std::vector<Item>& items, Object object) {
    std::string array = "[";
    for (const Item& item : items)
        array.append(array.size() > 1 ? "," : "").append(object(item));
    return array + "]";
}

} // namespace

std::string NumberOrNull(std::int64_t number) { return number == 0 ? "null" : NumberText(number); }

std::string JsonLine(const CheckedDocument& checked) {
    const auto count = [&](Severity severity) { return NumberText(checked.Findings.Count(severity)); };
    const auto finding = [&](const Finding& item) { return FindingObject(item, checked); };
    const auto advice = [&](const run::Advice& item) { return AdviceWithLine(item, checked.Starts); };
    return "{\"version\":1,\"path\":" + JsonString(checked.Path) +
           ",\"complete\":" + (checked.Complete ? "true" : "false") +
           ",\"counts\":{\"notes\":" + count(Severity::Note) + ",\"warnings\":" + count(Severity::Warning) +
           ",\"errors\":" + count(Severity::Error) +
           "},\"findings\":" + Array(checked.Findings.Findings, finding) + ",\"messages\":[" +
           MessageObjects(checked) + "]" +
           (checked.Advice == nullptr ? "" : ",\"advice\":" + Array(*checked.Advice, advice)) + "}\n";
}

std::string JsonOfAdvice(const std::vector<run::Advice>& list) { return Array(list, AdviceObject); }

} // namespace orvane::cli
