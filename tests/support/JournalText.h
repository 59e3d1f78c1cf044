// SPDX-License-Identifier: GPL-3.0-or-later
// Journals as bytes, for tests.
#pragma once

#include "session/JournalRecord.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane::test {

inline constexpr std::string_view kTestSalt = "8 salts.";

inline JournalTime SecondsAfterStart(int seconds) {
    return JournalTime(std::chrono::seconds(1'790'000'000 + seconds));
}

// A journal that is written record after record, one a second.
class JournalText {
  public:
    explicit JournalText(std::string_view salt = kTestSalt) : salt_(salt), bytes_(EncodeJournalHead(salt)) {
        ends_.push_back(bytes_.size());
    }

    JournalText& Add(RecordContent content) {
        const JournalTime time = SecondsAfterStart(next_);
        EXPECT_TRUE(AppendRecord({next_++, time, std::move(content)}, salt_, bytes_));
        ends_.push_back(bytes_.size());
        return *this;
    }

    // Of the document's first image, which counts as saved.
    JournalText& Begin(std::string image) {
        Add(HeadRecord{{"Orvane 1", "/work/pump.zfsm", JournalStamp{3, 4, {}}, {}}});
        image_ = std::move(image);
        return Add(ImageRecord{{0, 0, image_}, true});
    }
    JournalText& Commit(std::string image, std::string_view name = "edit") {
        const std::string before = std::exchange(image_, std::move(image));
        return Add(CommitRecord{name, Difference(before, image_)});
    }

    const std::string& Bytes() const { return bytes_; }
    // Where the head and then each record ends.
    const std::vector<std::size_t>& Ends() const { return ends_; }

  private:
    std::string salt_;
    std::string bytes_;
    std::string image_;
    std::vector<std::size_t> ends_;
    std::uint32_t next_ = 0;
};

} // namespace orvane::test
