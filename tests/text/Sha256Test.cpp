// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Sha256.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

std::string Text(std::string_view bytes) { return DigestText(Sha256(bytes)); }

// The examples that are published with the standard.
TEST(Sha256, GivesThePublishedDigests) {
    EXPECT_EQ(Text(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(Text("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(Text("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(
        Text(
            "abcdefghbcdefghicdefghijdefghijkefghijklfghijklmghijklmnhijklmnoijklmnopjklmnopqklmnopqrlmnopqrs"
            "mnopqrstnopqrstu"),
        "cf5b16a778af8380036ce59e7b0492370b249b11e8f07a51afac45037afee9d1");
    EXPECT_EQ(Text(std::string(1000000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

// Where the end of the bytes falls into the last block decides whether another one follows.
TEST(Sha256, EveryLengthAroundABlockIsToldApart) {
    EXPECT_EQ(Text(std::string(55, 'a')), "9f4390f8d30c2dd92ec9f095b65e2b9ae9b0a925a5258e241c9f1e910f734318");
    EXPECT_EQ(Text(std::string(56, 'a')), "b35439a4ac6f0948b6d6f9e3c6af0f5f590ce20f1bde7090ef7970686ec6738a");
    EXPECT_EQ(Text(std::string(63, 'a')), "7d3e74a05d7db15bce4ad9ec0658ea98e3f06eeecf16b4c6fff2da457ddc2f34");
    EXPECT_EQ(Text(std::string(64, 'a')), "ffe054fe7ae0cb6dc65c3af9b61d5209f439851db43d0ba5997337df154668eb");
    EXPECT_EQ(Text(std::string(65, 'a')), "635361c48bb9eab14198e76ea8ab7f1a41685d6ad62aa9146d301d4f17eb0ae0");
}

TEST(Sha256, BytesAbove127AreTakenAsTheyAre) {
    EXPECT_EQ(Text("\xA4\xFF"), "548d8a361a4dacec867c5fa0c04e2f0512f1c3065fb71f4d09e9de3f4d3efeb9");
}

} // namespace
} // namespace orvane
