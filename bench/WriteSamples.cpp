// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the sample documents as files, to measure the programs that read them: write_samples FOLDER
#include "SampleDocuments.h"
#include "core/DocumentWriter.h"

#include <fstream>
#include <iostream>

namespace {

bool WriteFile(const std::string& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(file.flush());
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "write_samples FOLDER\n";
        return 2;
    }
    const std::string folder = argv[1];
    const bool written =
        WriteFile(folder + "/midsize.zfsm", orvane::WriteDocument(orvane::MidSizeDocument())) &&
        WriteFile(folder + "/limit.zfsm", orvane::WriteDocument(orvane::DocumentAtTheLimit()));
    if (!written)
        std::cerr << "cannot write to " << folder << '\n';
    return written ? 0 : 1;
}
