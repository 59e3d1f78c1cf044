// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/kill/Reports.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <unistd.h>

namespace orvane {

namespace {

constexpr std::size_t kHeadSize = 5; // what is begun, and the image's length

} // namespace

void Send(int pipe, const Report& report) {
    std::string bytes(kHeadSize, '\0');
    const auto length = static_cast<std::uint32_t>(report.Image.size());
    bytes[0] = static_cast<char>(report.Next);
    std::memcpy(bytes.data() + 1, &length, sizeof length);
    bytes += report.Image;
    for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t count = write(pipe, bytes.data() + sent, bytes.size() - sent);
        if (count < 0 && errno != EINTR)
            throw std::runtime_error("nobody reads the reports");
        sent += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
}

std::optional<Report> ReportReader::Next() {
    while (true) {
        std::uint32_t length = 0;
        if (bytes_.size() >= kHeadSize) {
            std::memcpy(&length, bytes_.data() + 1, sizeof length);
            if (bytes_.size() >= kHeadSize + length) {
                Report report{static_cast<Doing>(bytes_[0]), bytes_.substr(kHeadSize, length)};
                bytes_.erase(0, kHeadSize + length);
                return report;
            }
        }
        std::array<char, 1 << 16> room;
        const ssize_t count = read(pipe_, room.data(), room.size());
        if (count == 0)
            return std::nullopt;
        if (count < 0 && errno != EINTR)
            throw std::runtime_error("the reports cannot be read");
        bytes_.append(room.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    }
}

} // namespace orvane
