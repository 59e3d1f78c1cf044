// SPDX-License-Identifier: GPL-3.0-or-later
// The names of the files that stand beside others while these are written.
#pragma once

#include <filesystem>

namespace orvane {

// A name that no file has yet, as far as chance can promise that.
std::filesystem::path TemporaryName();

// Whether this program, and hardly anybody else, gives such names.
bool IsTemporaryName(const std::filesystem::path& name);

} // namespace orvane
