// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace orvane {

// A disk of that size, as `mount` takes it, on a folder that is there; gone again at the end of the block.
// Only root can have one, and not on every machine.
class SmallDisk {
  public:
    SmallDisk(std::filesystem::path folder, const std::string& size) : folder_(std::move(folder)) {
        mounted_ = Command("mount -t tmpfs -o size=" + size + " tmpfs ") == 0;
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk() {
        if (mounted_)
            Command("umount ");
    }

    bool IsThere() const { return mounted_; }

    // Until the file with this name cannot grow any more.
    void FillUp(const std::string& name) const {
        std::ofstream file(folder_ / name, std::ios::binary);
        for (const std::string block(512, 'x'); file.write(block.data(), 512).flush();) {
        }
    }

  private:
    int Command(const std::string& command) const {
        return std::system((command + "'" + folder_.string() + "' 2>/dev/null").c_str());
    }

    std::filesystem::path folder_;
    bool mounted_ = false;
};

} // namespace orvane
