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

InputBytes ReadStandardInput() {
    InputBytes input;
    std::array<char, 1 << 16> piece;
    errno = 0;
    while (const std::size_t length = std::fread(piece.data(), 1, piece.size(), stdin)) {
        input.Bytes.append(piece.data(), length);
        if (input.Bytes.size() > kLargestDocument)
            return {{}, make_error_code(std::errc::file_too_large)};
    }
    if (std::ferror(stdin) != 0)
        return {{}, {errno, std::generic_category()}};
    return input;
}

std::optional<std::string> ReadStandardInput(Outcome& outcome) {
    InputBytes input = ReadStandardInput();
    if (!input.Failure)
        return std::move(input.Bytes);
    const bool tooLarge = input.Failure == std::errc::file_too_large;
    outcome.Errors += tooLarge ? FailureLine("standard input", "is " + std::string(kTooLargeForADocument))
                               : FailureLine("standard input", "cannot be read", ReasonText(input.Failure));
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
