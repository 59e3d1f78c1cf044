// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/HelpPage.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(HelpPage, TheAddressIsTheBaseTheNumberAndHtm) {
    EXPECT_EQ(HelpPageAddress("https://help.example/kb/", 4835), "https://help.example/kb/4835.htm");
}

} // namespace
} // namespace orvane
