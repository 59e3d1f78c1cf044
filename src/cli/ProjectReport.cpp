// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ProjectReport.h"

#include "cli/GccReport.h"
#include "cli/MessageText.h"
#include "text/JsonString.h"
#include "text/NumberText.h"

namespace orvane::cli {

namespace {

std::string TextLine(const ProjectAdvice& advice) {
    return "Advice: " + OneLine(advice.Message) + " [" + std::string(ProjectAdviceKindName(advice.Kind)) +
           "]\n";
}

std::string AdviceObject(const ProjectAdvice& advice) {
    return "{\"kind\":" + JsonString(ProjectAdviceKindName(advice.Kind)) +
           ",\"line\":" + NumberText(advice.Line) +
           ",\"state\":null,\"row\":null,\"text\":" + JsonStringOfAnsi(advice.Message) + "}";
}

std::string JsonOf(const std::string& script, const std::vector<ProjectAdvice>& list) {
    std::string objects;
    for (const ProjectAdvice& advice : list)
        objects += (objects.empty() ? "" : ",") + AdviceObject(advice);
    return "{\"version\":1,\"path\":" + JsonString(script) +
           ",\"complete\":true,\"counts\":{\"notes\":0,\"warnings\":0,\"errors\":0},\"findings\":[],"
           "\"messages\":[],\"advice\":[" +
           objects + "]}\n";
}

} // namespace

LastWord ReportOnProject(const std::string& script, const std::vector<ProjectAdvice>& list,
                         const BuildArguments& asked) {
    LastWord word;
    if (asked.Format == ReportFormat::Json && !(asked.Quiet && list.empty()))
        word.Output = JsonOf(script, list);
    if (asked.Format == ReportFormat::Text && !list.empty())
        word.Output = ShownName(script) + ":\n";
    for (const ProjectAdvice& advice : list) {
        const std::string_view kind = ProjectAdviceKindName(advice.Kind);
        if (asked.Format == ReportFormat::Text)
            word.Output += TextLine(advice);
        else if (asked.Format == ReportFormat::Gcc)
            word.Output += GccLine(script, {advice.Line, "note", advice.Message, kind});
        else if (asked.Format == ReportFormat::Sarif)
            word.Log.Results += (word.Log.Results.empty() ? "" : ",") +
                                SarifResult(script, {advice.Line, "note", advice.Message, kind});
    }
    return word;
}

} // namespace orvane::cli
