// SPDX-License-Identifier: GPL-3.0-or-later
// The names of the files in the recovery folder. All begin with TIME-RANDOM, and the time is that from which
// the file's age counts:
//
//   20261121T205300Z-0123ABCD.orj              a journal
//   20261121T205300Z-0123ABCD.orj.new          one that is being begun
//   20261121T205300Z-0123ABCD.discarded        one whose changes the user did not want, and when
//   20261121T205300Z-0123ABCD-pump.zls         the bytes of a file that was replaced
//
// Whatever else lies in the folder is not this program's and is left alone.
#pragma once

#include "session/JournalRecord.h"

#include <filesystem>
#include <optional>
#include <string>

namespace orvane {

enum class RecoveryFileKind { Journal, Unfinished, Discarded, ReplacedBytes };

struct RecoveryName {
    RecoveryFileKind Kind;
    JournalTime Time; // to the second
};

inline constexpr const char* kJournalSuffix = ".orj";
inline constexpr const char* kUnfinishedSuffix = ".orj.new";
inline constexpr const char* kDiscardedSuffix = ".discarded";

// TIME-RANDOM, as no other file begins, as far as chance can promise that.
std::string RecoveryStem(JournalTime now);

// None for a name that this program does not give.
std::optional<RecoveryName> ParseRecoveryName(const std::filesystem::path& name);

} // namespace orvane
