// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ProjectVerb.h"

#include "builder/ProgramList.h"
#include "cli/DocumentPath.h"
#include "cli/DocumentVerbs.h"
#include "cli/MessageText.h"
#include "cli/ProjectReport.h"
#include "cli/StandardStreams.h"
#include "codegen/CodeGenerator.h"
#include "core/DocumentReader.h"
#include "files/FileReader.h"
#include "text/AnsiText.h"
#include "text/SiblingPath.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace orvane::cli {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLargestProgram = 256u << 20; // bytes
constexpr std::size_t kLargestScript = 16u << 20;

// A path of a script, which may have been written on another system, seen from the script's folder.
std::string PathFrom(const fs::path& folder, const std::string& listed) {
    std::string path = ToUtf8(listed);
#ifndef _WIN32
    std::replace(path.begin(), path.end(), '\\', '/');
#endif
    return Utf8((folder / PathOf(path)).make_preferred());
}

class ProjectRun {
  public:
    ProjectRun(const Arguments& arguments, FileSystem& files)
        : arguments_(arguments), script_(arguments.Building.Project.value()), files_(files) {}

    // False when the script cannot be read, which was told then.
    bool Read();
    int Check(UnfinishedFiles& unfinished) const;

  private:
    void Add(const ListedProgram& listed);
    // What the document says of its program, if it can be read.
    void LookInto(const std::string& document, ProjectProgram& program) const;

    const Arguments& arguments_;
    const std::string script_;
    FileSystem& files_;
    std::vector<ProjectProgram> programs_;
    std::vector<std::string> documents_;
};

bool ProjectRun::Read() {
    const FileContent script = ReadFile(files_, PathOf(script_), kLargestScript);
    if (script.Failure) {
        (void)Deliver({{}, FailureLine(script_, "cannot be read", ReasonText(*script.Failure)), kFileError});
        return false;
    }
    for (const ListedProgram& listed : ProgramsIn(script.Bytes()))
        Add(listed);
    return true;
}

void ProjectRun::Add(const ListedProgram& listed) {
    const std::string path = PathFrom(PathOf(script_).parent_path(), listed.Path);
    const std::string document = std::string(StripExtension(path)) + ".zfsm";
    ProjectProgram program;
    program.Name = listed.Path;
    program.Line = listed.Line;
    const FileContent file = ReadFile(files_, PathOf(path), kLargestProgram);
    if (file)
        program.File = std::string(file.Bytes());
    const Result<FileFacts> facts = files_.Look(PathOf(document));
    program.HasDocument = !facts.Failure;
    if (program.HasDocument) {
        program.IsOlder = file && file.Stamp.Changed < facts.Got.Changed;
        LookInto(document, program);
        if (std::find(documents_.begin(), documents_.end(), document) == documents_.end())
            documents_.push_back(document);
    }
    programs_.push_back(std::move(program));
}

void ProjectRun::LookInto(const std::string& document, ProjectProgram& program) const {
    const FileContent file = ReadFile(files_, PathOf(document), kLargestDocument);
    if (!file)
        return; // the check of the document tells it
    const ReadResult read = ReadDocument(file.Bytes());
    program.Prefix = read.Document.General.FsmName;
    program.IsTask = read.Document.View.Polytask;
    GeneratedProgram generated = GenerateProgram(read.Document, {});
    if (!read.BrokeOff && !generated.Findings.HasErrors())
        program.Generated = ProgramFileBytes(std::move(generated));
}

int ProjectRun::Check(UnfinishedFiles& unfinished) const {
    Arguments arguments = arguments_;
    arguments.Documents = documents_;
    return RunOnDocuments(arguments, files_, unfinished, "",
                          ReportOnProject(script_, AdviceOnProject(programs_), arguments.Building));
}

} // namespace

int RunOnProject(const Arguments& arguments, FileSystem& files, UnfinishedFiles& unfinished) {
    try {
        ProjectRun run(arguments, files);
        return run.Read() ? run.Check(unfinished) : kFileError;
    } catch (const std::exception& error) {
        return Deliver({{}, FailureLine(*arguments.Building.Project, error.what()), kFileError});
    }
}

} // namespace orvane::cli
