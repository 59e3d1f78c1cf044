// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/SiblingPath.h"

namespace orvane {

std::string_view StripExtension(std::string_view path) {
    const std::size_t dot = path.rfind('.');
    return dot == std::string_view::npos || dot == 0 ? path : path.substr(0, dot);
}

std::string ProgramFilePath(std::string_view documentPath) {
    return std::string(StripExtension(documentPath)) + ".zls";
}

std::string BuilderScriptPath(std::string_view documentPath) {
    const std::size_t dot = documentPath.rfind('.');
    return dot == std::string_view::npos ? "" : std::string(documentPath.substr(0, dot)) + ".b1d";
}

} // namespace orvane
