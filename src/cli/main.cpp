// SPDX-License-Identifier: GPL-3.0-or-later
// orvanec: checks documents and writes their programs without a window.
#include "cli/ArgumentFiles.h"
#include "cli/Arguments.h"
#include "cli/DocumentVerbs.h"
#include "cli/EndingSignals.h"
#include "cli/ExportVerbs.h"
#include "cli/FindVerb.h"
#include "cli/MachineVerbs.h"
#include "cli/MessageText.h"
#include "cli/ProgramTargets.h"
#include "cli/ProjectVerb.h"
#include "cli/ReviewVerbs.h"
#include "cli/StandardStreams.h"
#include "cli/TestVerb.h"
#include "cli/Verbs.h"
#include "codegen/BannerDate.h"
#include "files/NativeFiles.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <memory>

#ifdef _WIN32
#include <functional>
#include <iterator>

#include <windows.h>
#endif

namespace orvane::cli {

namespace {

// All programs of a run have one date. Only a program has a date at all.
BannerMoment DateOfPrograms(const Arguments& arguments) {
    if (arguments.What != Verb::Generate)
        return {};
    return BannerDate(std::time(nullptr), std::getenv("SOURCE_DATE_EPOCH"));
}

int Do(const Arguments& arguments, NativeFiles& files) {
    if (const std::optional<Outcome> clash = ProgramClash(arguments, files))
        return Deliver(*clash);
    const BannerMoment date = DateOfPrograms(arguments);
    if (!date.Fault.empty())
        return Deliver(WrongUsage(ShownName(date.Fault)));
    const auto unfinished = std::make_shared<UnfinishedFiles>(files);
    if (arguments.What != Verb::Check && arguments.What != Verb::Find)
        RemoveWhenTold(unfinished);
    if (arguments.What == Verb::Find)
        return RunFind(arguments, files);
    if (arguments.What == Verb::Test)
        return RunTests(arguments, TestFiles(files, *unfinished));
    if (LooksIntoOne(arguments.What))
        return Deliver(RunMachineVerb(arguments, TestFiles(files, *unfinished)));
    if (GivesAnotherForm(arguments.What))
        return Deliver(RunExportVerb(arguments, TestFiles(files, *unfinished)));
    if (ComparesVersions(arguments.What))
        return Deliver(RunReviewVerb({arguments, date.Date, files, *unfinished}));
    if (arguments.Building.Project)
        return RunOnProject(arguments, files, *unfinished);
    return RunOnDocuments(arguments, files, *unfinished, date.Date);
}

int Main(int count, const char* const* values) {
    PrepareStandardStreams();
    OutliveFileSizeLimit();
    NativeFiles files;
    const auto words = WithArgumentFiles(count, values, files);
    if (const auto* unread = std::get_if<Outcome>(&words))
        return Deliver(*unread);
    const auto parsed = ParseArguments(std::get<std::vector<std::string>>(words));
    const auto* arguments = std::get_if<Arguments>(&parsed);
    return arguments ? Do(*arguments, files) : Deliver(std::get<Outcome>(parsed));
}

#ifdef _WIN32
std::string Utf8Argument(const wchar_t* argument) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, argument, -1, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, argument, -1, utf8.data(), size, nullptr, nullptr);
    utf8.pop_back(); // the NUL
    return utf8;
}
#endif

} // namespace

} // namespace orvane::cli

#ifdef _WIN32

// The runtime expands * and ? itself, as the shells of other systems do.
extern "C" int _dowildcard;
int _dowildcard = -1;

// The narrow arguments lack what the system's code page does not have.
int wmain(int argc, wchar_t* argv[]) {
    using namespace orvane::cli;
    std::vector<std::string> utf8;
    std::transform(argv, argv + argc, std::back_inserter(utf8), Utf8Argument);
    std::vector<const char*> values;
    std::transform(utf8.begin(), utf8.end(), std::back_inserter(values), std::mem_fn(&std::string::c_str));
    return Main(argc, values.data());
}

#else

int main(int argc, char* argv[]) { return orvane::cli::Main(argc, argv); }

#endif
