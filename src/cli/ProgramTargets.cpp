// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ProgramTargets.h"

#include "cli/DocumentPath.h"
#include "cli/MessageText.h"
#include "files/LinkTarget.h"
#include "files/RealPath.h"
#include "text/SiblingPath.h"

#include <map>

namespace orvane::cli {

namespace fs = std::filesystem;

namespace {

fs::path ProgramName(const std::string& document) { return ProgramPath(FullPath(document)).filename(); }

// What files are really called, whatever links lead there. Each folder is looked up once.
class RealPaths {
  public:
    explicit RealPaths(FileSystem& files) : files_(files) {}

    fs::path Of(const fs::path& path) {
        const Result<fs::path> end = LinkTarget(files_, path);
        const fs::path& file = end.Failure ? path : end.Got;
        const auto [folder, isNew] = folders_.try_emplace(file.parent_path());
        if (isNew)
            folder->second = RealFolder(folder->first);
        return folder->second / file.filename();
    }

  private:
    static fs::path RealFolder(const fs::path& folder) {
        const Result<fs::path> real = RealPath(folder.empty() ? fs::path(".") : folder);
        return real.Failure ? folder : real.Got;
    }

    FileSystem& files_;
    std::map<fs::path, fs::path> folders_;
};

} // namespace

fs::path ProgramTarget(const Arguments& arguments, const std::string& document) {
    if (arguments.Output)
        return PathOf(*arguments.Output);
    if (arguments.Building.OutputFolder)
        return (PathOf(*arguments.Building.OutputFolder) / ProgramName(document)).make_preferred();
    return ProgramPath(FullPath(document));
}

std::string NameOfTarget(const Arguments& arguments, const std::string& document) {
    const fs::path target = ProgramTarget(arguments, document);
    if (arguments.Output)
        return Utf8(target);
    if (arguments.Building.OutputFolder)
        return PortableText(target);
    // A dot in a folder that the name does not show may be the one that the extension begins with.
    std::string sibling = ProgramFilePath(document);
    return FullPath(sibling) == target ? sibling : Utf8(target);
}

std::optional<Outcome> ProgramClash(const Arguments& arguments, FileSystem& files) {
    if (arguments.What != Verb::Generate || arguments.Documents.size() < 2)
        return std::nullopt;
    RealPaths real(files);
    std::map<fs::path, const std::string*, FileNameOrder> firstOf; // by the path of the program
    for (const std::string& name : arguments.Documents) {
        const fs::path program = ProgramTarget(arguments, name);
        const auto [first, isNew] = firstOf.emplace(real.Of(program), &name);
        if (!isNew && FullPath(*first->second) != FullPath(name))
            return WrongUsage(ShownName(*first->second) + " and " + ShownName(name) +
                              " would have the same program, " + ShownName(Utf8(program)));
    }
    return std::nullopt;
}

} // namespace orvane::cli
