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

#ifdef __GLIBC__
#include <malloc.h>
#endif

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

// Memory that a document gave back is used again for its program: asking the system for fresh pages is what a
// run would spend most of its time with.
void KeepFreedMemory() {
#ifdef __GLIBC__
    constexpr int large = 32 << 20; // bytes, the most that the library takes
    mallopt(M_MMAP_THRESHOLD, large);
    mallopt(M_TRIM_THRESHOLD, large);
    mallopt(M_TOP_PAD, 1 << 20);
#endif
}

} // namespace

} // namespace orvane::cli

int main(int argc, char* argv[]) {
    using namespace orvane::cli;
    KeepFreedMemory();
    PrepareStandardStreams();
    const std::variant<Arguments, Outcome> parsed = ParseArguments(argc, argv);
    const auto* arguments = std::get_if<Arguments>(&parsed);
    return arguments ? Run(*arguments) : Deliver(std::get<Outcome>(parsed));
}
