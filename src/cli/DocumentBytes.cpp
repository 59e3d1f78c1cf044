// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/DocumentBytes.h"

#include "cli/Arguments.h"
#include "cli/DocumentPath.h"
#include "cli/StandardStreams.h"
#include "core/DocumentReader.h"

#include <utility>

namespace orvane::cli {

DocumentBytes::DocumentBytes(FileSystem& files, const std::string& name) : isInput_(name == kStandardInput) {
    if (isInput_) {
        InputBytes input = ReadStandardInput();
        input_ = std::move(input.Bytes);
        if (input.Failure)
            Fail(input.Failure, ReasonText(input.Failure));
        return;
    }
    file_ = ReadStream(files, PathOf(name), kLargestDocument);
    if (file_.Failure)
        Fail(file_.Failure->Reason, ReasonText(*file_.Failure));
}

void DocumentBytes::Fail(std::error_code failure, const std::string& reason) {
    const bool tooLarge = failure == std::errc::file_too_large;
    whyNot_ = tooLarge ? "is " + std::string(kTooLargeForADocument) : "cannot be read (" + reason + ")";
}

} // namespace orvane::cli
