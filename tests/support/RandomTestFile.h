// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/TestText.h"

#include <rapidcheck.h>

#include <string>

namespace orvane::test {

// A file with any lines that a reader can give: names that need quotes, comments, expressions, all checks.
rc::Gen<run::TestFile> AnyTestFile();

// Bytes made of the words and signs of the language, in no order.
rc::Gen<std::string> TestWordSoup();

} // namespace orvane::test
