// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <initializer_list>
#include <optional>
#include <string_view>

namespace orvane {

// Writes a file that can be made again at any time, as these pieces in a row. Whoever reads it meanwhile sees
// all of the old bytes or all of the new ones. It does not wait until they are on the disk, which takes many
// times as long as all the rest: a power failure right behind it may cost the file. Returns why it failed,
// nothing when it did not; the old file stays as it was then.
[[nodiscard]] std::optional<QString> WriteRenewableFile(const QString& path,
                                                        std::initializer_list<std::string_view> pieces);

} // namespace orvane
