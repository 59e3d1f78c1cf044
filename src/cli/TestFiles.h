// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"
#include "files/FileWriter.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::cli {

// The test files that the arguments stand for, as messages name them, each once: a folder for all that are in
// it and below, sorted; a document for the file of the same name beside it. A folder without any is told.
std::vector<std::string> TestFilesOf(const std::vector<std::string>& arguments, Outcome& outcome);

// The document that belongs to a test file: the one it names, seen from its own folder, or else that of the
// same name beside it.
std::string DocumentOf(const std::string& testFile, const std::optional<std::string>& named);

// Files in and out for the verb `test`; safe to use from several threads.
class TestFiles {
  public:
    // Both must outlive this.
    TestFiles(FileSystem& files, UnfinishedFiles& unfinished) : files_(files), unfinished_(unfinished) {}

    // The bytes of a file, or none: then the outcome says why.
    std::optional<std::string> BytesOf(const std::string& name, Outcome& outcome) const;

    // A file of tests that was changed, whole or not at all; the outcome says so when it cannot be written.
    void WriteTests(const std::string& name, const std::string& bytes, Outcome& outcome) const;

    // A report, which may also go into a pipe or a device.
    void WriteReport(const std::string& name, const std::string& bytes, Outcome& outcome) const;

  private:
    void Write(const std::string& name, const std::string& bytes, const WriteOptions& options,
               Outcome& outcome) const;

    FileSystem& files_;
    UnfinishedFiles& unfinished_;
};

} // namespace orvane::cli
