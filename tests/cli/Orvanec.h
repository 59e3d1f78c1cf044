// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the real program in a folder of its own. ORVANEC_PROGRAM, when set, is the command that runs it; one
// whose name ends in ".exe" sees this machine's files as its drive Z.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace orvane {

struct RunResult {
    int Status = -1;
    std::string Output;
    std::string Errors;
};

// A folder that is there for one test, and the program run inside it.
class Orvanec : public testing::Test {
  protected:
    Orvanec();
    ~Orvanec() override;

    // The shell takes the arguments, so that they may hold redirections and quotes. The programs' date is
    // fixed. `before` stands before the program: variables to set, a shell command and ";".
    RunResult Run(const std::string& arguments, const std::string& before = {}) const;

    std::filesystem::path Path(std::string_view name) const { return folder_ / name; }
    // The path as the program itself names it.
    std::string PathText(std::string_view name) const;
    // A path that the program put together, with the separators of its system.
    static std::string NativeText(std::string path);
    // Whether the program is one for Windows, on which some of this system's files cannot be shown.
    static bool IsForWindows();
    void WriteFile(std::string_view name, std::string_view bytes) const;
    std::string ReadFile(std::string_view name) const;
    bool Exists(std::string_view name) const { return std::filesystem::exists(Path(name)); }
    // The names in the folder, sorted, each ended by a blank.
    std::string Listing(std::string_view subfolder = ".") const;

  private:
    std::filesystem::path folder_;
};

// The bytes of documents and what the program makes of them.
std::string PumpDocument();
std::string PumpProgram(std::string_view path, std::string_view date = "01/01/1970 00:00:00");
std::string DocumentWithoutName();
std::string DocumentWithErrors();

// Pieces of a document; a state's transitions stand as "row:target".
std::string Field(const std::string& tag, const std::string& value);
std::string State(const std::string& number, const std::string& name, const std::string& fields,
                  const std::vector<std::string>& transitions);

// The text with another piece for each `from`.
std::string Replaced(std::string text, std::string_view from, std::string_view to);

inline constexpr std::string_view kCleanReport = "Errors and warnings\n";
inline constexpr std::string_view kNoNameReport =
    "** Error ** You must supply a distinguishing label prefix in the \"Name\"\n"
    "box of the General Code editor. This should be unique within your\n"
    "project as a whole. Typically this would be a 3-letter mnemonic for\n"
    "the overall function of this FSM, for example \"PMP\" for a pump\n"
    "control FSM\n";

} // namespace orvane
