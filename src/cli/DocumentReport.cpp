// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/DocumentReport.h"

#include "cli/GccReport.h"
#include "cli/JsonReport.h"
#include "cli/MessageText.h"
#include "text/AnsiText.h"

namespace orvane::cli {

namespace {

bool HasFindings(const CheckedDocument& checked) {
    return !checked.Findings.Findings.empty() || (checked.Advice != nullptr && !checked.Advice->empty());
}

bool HasMessages(const CheckedDocument& checked) {
    return !checked.Complete || !checked.Messages.empty() || !checked.Failures.empty();
}

// What the report pane shows, and advice behind it.
std::string TextReport(const CheckedDocument& checked, bool isHeaded) {
    std::string text =
        (isHeaded ? ShownName(checked.Path) + ":\n" : "") + StreamText(ReportText(checked.Findings));
    if (checked.Advice != nullptr) {
        for (const run::Advice& each : *checked.Advice)
            text += "Advice: " + ShownName(ToUtf8(each.Message)) + " [" +
                    std::string(AdviceKindName(each.Kind)) + "]\n";
    }
    return text;
}

} // namespace

std::string DocumentReport(const CheckedDocument& checked, const ReportStyle& style) {
    switch (style.Format) {
    case ReportFormat::Text:
        return style.Quiet && !HasFindings(checked) ? "" : TextReport(checked, style.Headed);
    case ReportFormat::Gcc:
        return GccReport(checked);
    case ReportFormat::Json:
        return style.Quiet && !HasFindings(checked) && !HasMessages(checked) ? "" : JsonLine(checked);
    case ReportFormat::Sarif:
        break;
    }
    return "";
}

} // namespace orvane::cli
