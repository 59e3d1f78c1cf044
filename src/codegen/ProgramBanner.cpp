// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ProgramBanner.h"

namespace orvane {

namespace {

std::string_view FirstLine(std::string_view text) { return text.substr(0, text.find_first_of("\r\n")); }

} // namespace

bool HasProgramBanner(std::string_view program) {
    const std::string_view line = FirstLine(program);
    return line.starts_with(';') && line.find(kBannerWords) != std::string_view::npos;
}

std::string_view WithoutBanner(std::string_view program) {
    return HasProgramBanner(program) ? program.substr(FirstLine(program).size()) : program;
}

} // namespace orvane
