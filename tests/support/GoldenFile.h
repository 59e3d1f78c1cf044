// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/FileBytes.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace orvane::test {

// The bytes are those of the file. With ORVANE_BLESS=1 in the environment the file is written instead.
inline void ExpectGolden(const std::filesystem::path& path, const std::string& bytes) {
    const char* bless = std::getenv("ORVANE_BLESS");
    if (bless != nullptr && std::string_view(bless) == "1") {
        std::filesystem::create_directories(path.parent_path());
        return WriteFileBytes(path, bytes);
    }
    ASSERT_TRUE(std::filesystem::exists(path)) << path << " is missing: run scripts/bless";
    EXPECT_TRUE(FileBytes(path) == bytes)
        << path << " is another one: run scripts/bless and read the difference";
}

} // namespace orvane::test
