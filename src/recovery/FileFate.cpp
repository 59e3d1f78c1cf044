// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/FileFate.h"

namespace orvane {

std::optional<FileFate> FateBySizeAndTime(const FileAsKnown& known, const FileMeasure& now) {
    if (now.Size != known.Size)
        return FileFate::ChangedSince;
    if (now.Modified == known.Modified)
        return FileFate::AsItWas;
    return std::nullopt;
}

FileFate FateByBytes(const FileAsKnown& known, const std::array<std::uint8_t, 32>& sha256) {
    return sha256 == known.Sha256 ? FileFate::AsItWas : FileFate::ChangedSince;
}

} // namespace orvane
