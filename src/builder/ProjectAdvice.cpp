// SPDX-License-Identifier: GPL-3.0-or-later
#include "builder/ProjectAdvice.h"

#include "text/AnsiText.h"

#include <algorithm>
#include <map>
#include <set>

namespace orvane {

namespace {

constexpr std::string_view kLaunchMark = ";<LAUNCHSEG>";
constexpr std::string_view kDirectoryMark = ";<NVEM0DIR>";
constexpr std::string_view kDataMark = ";<NVEM0DATA>";
constexpr std::string_view kOriginMark = ";By Orvane from ";

// The controller's tools get the file; where there is none, the document says what it will hold.
std::string_view TextOf(const ProjectProgram& program) {
    return program.Generated ? *program.Generated : program.File ? *program.File : std::string_view();
}

template <typename Visit>
void ForEachLine(std::string_view text, Visit visit) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        visit(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

// Without the date, and without the path of the document, which differs on another machine.
std::string Code(std::string_view program) {
    std::string code;
    bool isFirst = true;
    ForEachLine(program, [&](std::string_view line) {
        if (!isFirst && !line.empty())
            code.append(line.substr(0, line.find(kOriginMark))).append("\n");
        isFirst = false;
    });
    return code;
}

bool HasLine(const ProjectProgram& program, std::string_view mark) {
    bool has = false;
    ForEachLine(TextOf(program), [&](std::string_view line) { has = has || line.starts_with(mark); });
    return has;
}

// A label begins in column 1 and ends with ":".
std::set<std::string> LabelsIn(std::string_view program) {
    std::set<std::string> labels;
    ForEachLine(program, [&](std::string_view line) {
        const std::size_t end = line.find_first_of(": \t;");
        if (end != std::string_view::npos && end != 0 && line[end] == ':')
            labels.emplace(line.substr(0, end));
    });
    return labels;
}

// A blank in a machine's name stands as "_" in its labels.
std::string LabelPrefix(const ProjectProgram& program) { return Replace(program.Prefix, ' ', '_'); }

class Project {
  public:
    explicit Project(const std::vector<ProjectProgram>& programs) : programs_(programs) {}

    std::vector<ProjectAdvice> Advice();

  private:
    void TellFiles();
    // Dates alone prove nothing: a checkout or a copy gives both files new ones.
    void TellDifference(const ProjectProgram& program);
    void TellPrefixes();
    void TellLabels();
    void TellLaunches();
    void TellDirectories();
    // More than one, or none where one is needed.
    void TellCount(ProjectAdviceKind kind, std::string_view mark, std::string_view what, bool isNeeded,
                   const std::string& whyNeeded);

    void Tell(ProjectAdviceKind kind, const ProjectProgram& program, std::string message) {
        advice_.push_back({kind, program.Line, std::move(message)});
    }

    const std::vector<ProjectProgram>& programs_;
    std::vector<ProjectAdvice> advice_;
};

std::vector<ProjectAdvice> Project::Advice() {
    TellFiles();
    TellPrefixes();
    TellLabels();
    TellLaunches();
    TellDirectories();
    std::stable_sort(advice_.begin(), advice_.end(),
                     [](const ProjectAdvice& a, const ProjectAdvice& b) { return a.Kind < b.Kind; });
    return std::move(advice_);
}

void Project::TellFiles() {
    for (const ProjectProgram& program : programs_) {
        if (!program.File) {
            Tell(ProjectAdviceKind::FileMissing, program,
                 program.Name + (program.HasDocument ? " is not there yet: generate it from its document"
                                                     : " is not there, and no document to generate it from"));
            continue;
        }
        if (program.Generated && Code(*program.File) != Code(*program.Generated))
            TellDifference(program);
    }
}

void Project::TellDifference(const ProjectProgram& program) {
    if (program.IsOlder)
        Tell(ProjectAdviceKind::ProgramOlder, program,
             program.Name + " is older than its document: generate it again");
    else
        Tell(ProjectAdviceKind::ProgramDiffers, program,
             program.Name + " is not what its document gives: generate it again");
}

void Project::TellPrefixes() {
    std::map<std::string, const ProjectProgram*> firstOf;
    for (const ProjectProgram& program : programs_) {
        if (program.Prefix.empty())
            continue;
        const auto [first, isNew] = firstOf.emplace(LabelPrefix(program), &program);
        if (!isNew)
            Tell(ProjectAdviceKind::PrefixTwice, program,
                 program.Name + " and " + first->second->Name + " have the same prefix, " + first->first +
                     ": give one of the machines another name");
    }
}

void Project::TellLabels() {
    std::map<std::string, const ProjectProgram*> firstOf;
    for (const ProjectProgram& program : programs_) {
        for (const std::string& label : LabelsIn(TextOf(program))) {
            const auto [first, isNew] = firstOf.emplace(label, &program);
            const bool isOfPrefix = !isNew && !program.Prefix.empty() && // which is told already
                                    LabelPrefix(program) == LabelPrefix(*first->second);
            if (!isNew && !isOfPrefix)
                Tell(ProjectAdviceKind::LabelInTwo, program,
                     "The label " + label + " stands in " + program.Name + " and in " + first->second->Name);
        }
    }
}

void Project::TellLaunches() {
    const bool isNeeded = std::any_of(programs_.begin(), programs_.end(),
                                      [](const ProjectProgram& program) { return program.IsTask; });
    TellCount(ProjectAdviceKind::LaunchSegments, kLaunchMark, "a launch segment", isNeeded,
              "and the tasks need one: check LAUNCHSEG in one of the machines");
}

void Project::TellDirectories() {
    const bool isNeeded = std::any_of(programs_.begin(), programs_.end(), [](const ProjectProgram& program) {
        return HasLine(program, kDataMark);
    });
    TellCount(ProjectAdviceKind::NonVolatileDirectories, kDirectoryMark, "a non-volatile directory", isNeeded,
              "and the non-volatile data needs one");
}

void Project::TellCount(ProjectAdviceKind kind, std::string_view mark, std::string_view what, bool isNeeded,
                        const std::string& whyNeeded) {
    const ProjectProgram* first = nullptr;
    for (const ProjectProgram& program : programs_) {
        if (!HasLine(program, mark))
            continue;
        if (first != nullptr)
            Tell(kind, program,
                 program.Name + " has " + std::string(what) + ", and so has " + first->Name +
                     ": a project has only one");
        else
            first = &program;
    }
    if (first == nullptr && isNeeded)
        Tell(kind, programs_.front(), "No program has " + std::string(what) + ", " + whyNeeded);
}

} // namespace

std::string_view ProjectAdviceKindName(ProjectAdviceKind kind) {
    switch (kind) {
    case ProjectAdviceKind::FileMissing:
        return "file-missing";
    case ProjectAdviceKind::ProgramOlder:
        return "program-older";
    case ProjectAdviceKind::ProgramDiffers:
        return "program-differs";
    case ProjectAdviceKind::PrefixTwice:
        return "prefix-twice";
    case ProjectAdviceKind::LabelInTwo:
        return "label-in-two";
    case ProjectAdviceKind::LaunchSegments:
        return "launch-segments";
    case ProjectAdviceKind::NonVolatileDirectories:
        break;
    }
    return "nv-directories";
}

std::vector<ProjectAdvice> AdviceOnProject(const std::vector<ProjectProgram>& programs) {
    return Project(programs).Advice();
}

} // namespace orvane
