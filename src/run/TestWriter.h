// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/TestText.h"

#include <string>
#include <string_view>

namespace orvane::run {

// The file's text, UTF-8 with LF line ends: steps indented, their arrows one below the other within a test.
// What is read from it is equal to the file, comments included.
std::string WriteTestFile(const TestFile& file);

// Parts of it, for those who change a line and leave the rest of a file as its author wrote it.
std::string NameText(const TestName& name);
std::string TimeText(const TestTime& time);
std::string ExpectationText(const TestExpectation& expectation);

// A name that is read back as this text, whatever it is.
TestName NameOf(std::string text);

} // namespace orvane::run
