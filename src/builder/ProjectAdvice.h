// SPDX-License-Identifier: GPL-3.0-or-later
// What the author of a project should know of the programs that its builder script lists: one controller gets
// all of them, and each is sound by itself.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// Tools know the kinds by their words, so no word ever changes.
enum class ProjectAdviceKind {
    FileMissing,
    ProgramOlder,
    ProgramDiffers,
    PrefixTwice,
    LabelInTwo,
    LaunchSegments,
    NonVolatileDirectories
};

inline constexpr auto kProjectAdviceKinds = std::to_array(
    {ProjectAdviceKind::FileMissing, ProjectAdviceKind::ProgramOlder, ProjectAdviceKind::ProgramDiffers,
     ProjectAdviceKind::PrefixTwice, ProjectAdviceKind::LabelInTwo, ProjectAdviceKind::LaunchSegments,
     ProjectAdviceKind::NonVolatileDirectories});

// The word that tools know the kind by, such as "prefix-twice".
std::string_view ProjectAdviceKindName(ProjectAdviceKind kind);

// A program of the project, with what is known of it.
struct ProjectProgram {
    std::string Name;                // as the script lists it, document text
    std::size_t Line = 0;            // of the script
    std::optional<std::string> File; // its bytes; none when it is not there
    bool IsOlder = false;            // ... than its document
    bool HasDocument = false;
    std::string Prefix;                   // of the document's labels
    bool IsTask = false;                  // the document is a Polytask one, which somebody has to launch
    std::optional<std::string> Generated; // what the document gives now; none when it has errors
};

struct ProjectAdvice {
    ProjectAdviceKind Kind{};
    std::size_t Line = 0; // of the script
    std::string Message;  // document text on one line

    bool operator==(const ProjectAdvice&) const = default;
};

// By kind, then in the order of the script.
std::vector<ProjectAdvice> AdviceOnProject(const std::vector<ProjectProgram>& programs);

} // namespace orvane
