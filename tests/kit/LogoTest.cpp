// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/Logo.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Logo, EverySizeIsThere) {
    const QIcon logo = Logo();
    for (const int size : {16, 32, 48, 64, 128, 256})
        EXPECT_TRUE(logo.availableSizes().contains(QSize(size, size))) << size;
}

} // namespace
} // namespace orvane
