// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Booklet.h"

#include "codegen/CodeGenerator.h"
#include "codegen/PathInProgram.h"
#include "export/Names.h"
#include "print/Cover.h"
#include "print/DiagramSheets.h"
#include "print/Listing.h"
#include "print/PageFlow.h"
#include "print/TableTiles.h"
#include "text/AnsiText.h"
#include "text/Crc32.h"
#include "text/NumberText.h"

#include <utility>

namespace orvane::print {

namespace {

void WriteReport(PageFlow& flow, const FsmDocument& document) {
    flow.BeginChapter("Report");
    const Report report = GenerateProgram(document, {}).Findings;
    for (const ReportLine& line : ReportLines(report))
        flow.Write(0, Face::Code, ToUtf8(exports::OneLine(line.Text)));
    if (report.Findings.empty())
        flow.Write(0, Face::Code, "None.");
}

// The name of a file without its folders.
std::string FileName(const std::string& path) {
    const std::size_t slash = path.find_last_of("/\\");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

} // namespace

std::vector<Sheet> BookletOf(const FsmDocument& document, const CoverFacts& facts, const Parts& parts,
                             const Paper& paper, const Letters& letters) {
    const std::string machine = ToUtf8(exports::OneLine(document.General.FsmName));
    PageFlow flow(paper, letters);
    ContentsPlace contents;
    if (parts.Cover)
        contents = WriteCover(flow, machine, facts);
    if (parts.Diagram)
        WriteDiagram(flow, parts.Drawn);
    if (parts.Table)
        WriteTable(flow, document);
    if (parts.Listing)
        WriteListing(flow, document);
    if (parts.Report)
        WriteReport(flow, document);
    const std::string revision = facts.Revision.empty() ? "" : "Revision " + facts.Revision;
    std::vector<Sheet> sheets = flow.Take({machine + "  " + FileName(facts.File), revision});
    if (parts.Cover)
        WriteContents(sheets, contents, flow);
    return sheets;
}

std::string ProgramDigestOf(const FsmDocument& document, const std::string& path) {
    GeneratedProgram program = GenerateProgram(document, {PathInProgram(path), {}});
    if (program.Findings.HasErrors())
        return "none: the design has errors";
    const std::string bytes = ProgramFileBytes(std::move(program));
    const std::string hex = HexText(Crc32(std::string_view(bytes).substr(bytes.find('\n') + 1)));
    return std::string(8 - hex.size(), '0') + hex + " (without the first line, which has the date)";
}

} // namespace orvane::print
