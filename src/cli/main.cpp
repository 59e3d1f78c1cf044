// SPDX-License-Identifier: GPL-3.0-or-later
// orvanec: checks documents and writes their programs without a window.
#include "cli/Arguments.h"
#include "cli/OrderedWork.h"
#include "cli/StandardStreams.h"
#include "cli/Verbs.h"
#include "codegen/BannerDate.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>

namespace orvane::cli {

namespace {

int Run(const Arguments& arguments) {
    if (const std::optional<Outcome> clash = ProgramClash(arguments))
        return Deliver(*clash);
    // All programs of a run have one date. Only a program has a date at all.
    const std::string date = arguments.What == Verb::Generate
                                 ? BannerDate(std::time(nullptr), std::getenv("SOURCE_DATE_EPOCH"))
                                 : "";
    int status = kSuccess;
    WorkInOrder(
        arguments.Documents.size(), [&](std::size_t index) { return RunVerb(arguments, date, index); },
        [&](const Outcome& outcome) { status = std::max(status, Deliver(outcome)); });
    return status;
}

} // namespace

} // namespace orvane::cli

int main(int argc, char* argv[]) {
    using namespace orvane::cli;
    PrepareStandardStreams();
    const std::variant<Arguments, Outcome> parsed = ParseArguments(argc, argv);
    const auto* arguments = std::get_if<Arguments>(&parsed);
    return arguments ? Run(*arguments) : Deliver(std::get<Outcome>(parsed));
}
