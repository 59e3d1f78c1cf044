// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/TestText.h"

#include <string_view>
#include <vector>

namespace orvane::run {

// After this many slips the rest of a file is not looked at.
inline constexpr std::size_t kMostSlips = 100;

struct TestReadResult {
    TestFile File;                  // lines with a slip have nothing on them
    std::vector<TestMessage> Slips; // in the order of the file
};

// Reads the bytes of a .ztest file: UTF-8, lines that end in LF or CR LF. Never fails; what cannot be
// understood is a slip with its place and what could stand there.
TestReadResult ReadTestFile(std::string_view bytes);

} // namespace orvane::run
