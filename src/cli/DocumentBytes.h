// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"
#include "files/FileReader.h"

#include <string>
#include <string_view>
#include <system_error>

namespace orvane::cli {

// The bytes of a document as they stand in its file, or came from standard input. They stay where they are
// for as long as this does.
class DocumentBytes {
  public:
    DocumentBytes(FileSystem& files, const std::string& name);

    // False when they could not be read; WhyNot() has the reason then.
    bool Are() const { return whyNot_.empty(); }
    std::string_view Bytes() const { return isInput_ ? std::string_view(input_) : file_.Bytes(); }
    // "cannot be read (No such file or directory)".
    const std::string& WhyNot() const { return whyNot_; }

  private:
    void Fail(std::error_code failure, const std::string& reason);

    bool isInput_;
    std::string input_;
    FileContent file_;
    std::string whyNot_;
};

} // namespace orvane::cli
