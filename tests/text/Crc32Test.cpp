// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Crc32.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

TEST(Crc32, IsTheOneThatToolsForFilesCompute) {
    EXPECT_EQ(Crc32("123456789"), 0xCBF43926u);
    EXPECT_EQ(Crc32(""), 0u);
    EXPECT_EQ(Crc32("The quick brown fox jumps over the lazy dog"), 0x414FA339u);
    EXPECT_EQ(Crc32(std::string(32, '\xFF')), 0xFF6CAB0Bu);
}

} // namespace
} // namespace orvane
