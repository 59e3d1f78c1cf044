// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileError.h"

#include <filesystem>
#include <string>

namespace orvane::cli {

// Why a file was not written, with the name of the folder where that is what stands in the way.
std::string WhyNotWritten(const FileError& error, const std::filesystem::path& target);

} // namespace orvane::cli
