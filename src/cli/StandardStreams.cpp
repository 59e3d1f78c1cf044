// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/StandardStreams.h"

#include "cli/MessageText.h"
#include "core/DocumentReader.h"
#include "files/FileError.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#ifdef _WIN32
#include <io.h>
#include <windows.h>
#endif

namespace orvane::cli {

namespace {

// What kept the bytes from being written; no error when they were.
std::error_code Write(std::FILE* stream, std::string_view bytes) {
    if (bytes.empty())
        return {};
    errno = 0;
    if (std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size() && std::fflush(stream) == 0)
        return {};
    return {errno, std::generic_category()};
}

#ifdef _WIN32
// Until the program ends, because the console outlives it.
void ShowUtf8InConsole() {
    static const UINT before = GetConsoleOutputCP();
    if (before != 0 && SetConsoleOutputCP(CP_UTF8) != 0)
        std::atexit([] { SetConsoleOutputCP(before); });
}
#endif

} // namespace

void PrepareStandardStreams() {
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    ShowUtf8InConsole();
#else
    // Open the wrong way round, so that its use fails as that of a closed stream does.
    for (int stream = 0; stream <= 2; ++stream) {
        if (fcntl(stream, F_GETFD) == -1 && errno == EBADF)
            (void)open("/dev/null", stream == 0 ? O_WRONLY : O_RDONLY);
    }
#endif
}

std::optional<std::string> ReadStandardInput(Outcome& outcome) {
    std::string bytes;
    std::array<char, 1 << 16> piece;
    errno = 0;
    while (const std::size_t length = std::fread(piece.data(), 1, piece.size(), stdin)) {
        bytes.append(piece.data(), length);
        if (bytes.size() > kLargestDocument) {
            outcome.Errors += FailureLine("standard input", "is " + std::string(kTooLargeForADocument));
            outcome.Raise(kFileError);
            return std::nullopt;
        }
    }
    if (std::ferror(stdin) == 0)
        return bytes;
    outcome.Errors +=
        FailureLine("standard input", "cannot be read", ReasonText({errno, std::generic_category()}));
    outcome.Raise(kFileError);
    return std::nullopt;
}

int Deliver(const Outcome& outcome) {
    Outcome delivered{{}, {}, outcome.Status};
    if (Write(stderr, outcome.Errors))
        delivered.Raise(kFileError);
    if (const std::error_code reason = Write(stdout, outcome.Output)) {
        delivered.Raise(kFileError);
        (void)Write(stderr, FailureLine("standard output", "cannot be written", ReasonText(reason)));
    }
    return delivered.Status;
}

} // namespace orvane::cli
