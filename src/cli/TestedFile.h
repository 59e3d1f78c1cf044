// SPDX-License-Identifier: GPL-3.0-or-later
// What became of the tests of one file.
#pragma once

#include "core/FsmDocument.h"
#include "run/Coverage.h"
#include "run/TestRunner.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvane::cli {

struct TestedTest {
    std::string Name; // empty for a slip that stands outside every test
    std::size_t Line = 0;
    std::size_t Column = 1;
    run::Verdict Is = run::Verdict::Passed;
    std::string Message;
    std::vector<run::TestMessage> Notes;
};

struct TestedFile {
    std::string Name;     // as messages name it
    std::string Document; // likewise
    std::vector<TestedTest> Tests;
    std::vector<run::TestMessage> Notes;        // that concern the file, not one test
    std::optional<run::Coverage> Seen;          // none when nothing was run
    std::shared_ptr<const FsmDocument> Machine; // there with Seen
    int Status = 0;
};

} // namespace orvane::cli
