// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/GitVerb.h"

#include "cli/DocumentPath.h"
#include "cli/GitProgram.h"
#include "cli/MessageText.h"
#include "cli/StandardStreams.h"
#include "cli/UsageHints.h"
#include "files/FileReader.h"
#include "files/FileWriter.h"

#include <array>
#include <cstdlib>
#include <iostream>
#include <utility>

namespace orvane::cli {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kAttributes = "*.zfsm -text diff=orvane merge=orvane";
constexpr std::size_t kLargestAttributes = 16u << 20;

struct Setting {
    const char* Key;
    const char* Value;
};

// A merge of bases, which git makes for itself when two branches have several, is not asked of us: nobody
// would see its conflicts.
constexpr std::array kSettings = {Setting{"diff.orvane.textconv", "orvanec show --textconv"},
                                  Setting{"merge.orvane.name", "state machines, by state and event"},
                                  Setting{"merge.orvane.driver", "orvanec merge %O %A %B -o %A --path %P"},
                                  Setting{"merge.orvane.recursive", "binary"}};

class GitEnabler {
  public:
    explicit GitEnabler(const Run& run) : run_(run), isGlobal_(run.Asked.Reviewing.Global) {}

    Outcome Do() {
        if (FindAttributesFile() && ReadAttributes() && IsWanted())
            Write();
        return std::move(outcome_);
    }

  private:
    // git's answer; the outcome says so when there is none.
    std::optional<GitAnswer> Ask(const std::vector<std::string>& arguments) {
        std::optional<GitAnswer> answer = AskGit(arguments);
        if (!answer)
            Fail("git cannot be run; install it, or say where it is in PATH");
        return answer;
    }
    void Fail(const std::string& what) {
        outcome_.Errors += "orvanec: " + what + "\n";
        outcome_.Raise(kFileError);
    }

    bool FindAttributesFile() {
        if (isGlobal_)
            return FindGlobalAttributes();
        const std::optional<GitAnswer> top = Ask({"rev-parse", "--show-toplevel"});
        if (!top)
            return false;
        if (top->Status != 0 || top->Output.empty()) {
            outcome_ = WrongUsage("this folder is in no work tree of git; go into one, or use --global");
            return false;
        }
        attributes_ = PathOf(top->Output) / ".gitattributes";
        return true;
    }

    // Where git looks for them when nothing else is said.
    bool FindGlobalAttributes() {
        const std::optional<GitAnswer> told =
            Ask({"config", "--global", "--type=path", "core.attributesFile"});
        if (!told)
            return false;
        const char* config = std::getenv("XDG_CONFIG_HOME");
        const char* home = std::getenv("HOME");
        if (told->Status == 0 && !told->Output.empty())
            attributes_ = PathOf(told->Output);
        else if (config != nullptr && *config != '\0')
            attributes_ = fs::path(config) / "git" / "attributes";
        else if (home != nullptr && *home != '\0')
            attributes_ = fs::path(home) / ".config" / "git" / "attributes";
        else
            Fail("there is no home folder to write to: HOME is not set");
        return !attributes_.empty();
    }

    bool ReadAttributes() {
        const FileContent file = ReadFile(run_.Files, attributes_, kLargestAttributes);
        if (file.Failure && file.Failure->Reason != std::errc::no_such_file_or_directory) {
            Fail(ShownName(Utf8(attributes_)) + ": cannot be read (" + ReasonText(*file.Failure) + ")");
            return false;
        }
        if (!file.Failure)
            before_ = file.Bytes();
        return true;
    }

    bool HasLine() const {
        const std::string lines = "\n" + before_ + "\n";
        return lines.find("\n" + std::string(kAttributes) + "\n") != std::string::npos ||
               lines.find("\n" + std::string(kAttributes) + "\r\n") != std::string::npos;
    }

    bool IsWanted() {
        std::string plan =
            HasLine() ? "" : "In " + ShownName(Utf8(attributes_)) + ":\n  " + std::string(kAttributes) + "\n";
        plan +=
            std::string("In the configuration of ") + (isGlobal_ ? "this user" : "this repository") + ":\n";
        for (const Setting& setting : kSettings)
            plan += std::string("  ") + setting.Key + " = " + setting.Value + "\n";
        if (run_.Asked.Reviewing.Yes) {
            outcome_.Output = plan;
            return true;
        }
        (void)Deliver({plan + "Write this? [y/N] ", {}, kSuccess});
        std::string answer;
        std::getline(std::cin, answer);
        if (answer == "y" || answer == "Y" || answer == "yes")
            return true;
        outcome_.Output = "Nothing was written.\n";
        outcome_.Raise(kDifferent);
        return false;
    }

    void Write() {
        for (const Setting& setting : kSettings) {
            const std::optional<GitAnswer> answer =
                Ask({"config", isGlobal_ ? "--global" : "--local", setting.Key, setting.Value});
            if (!answer)
                return;
            if (answer->Status != 0)
                return Fail(std::string("git does not take ") + setting.Key);
        }
        if (!HasLine())
            WriteAttributes();
    }

    void WriteAttributes() {
        std::error_code failure;
        fs::create_directories(attributes_.parent_path(), failure);
        const std::string end = before_.empty() || before_.ends_with('\n') ? "" : "\n";
        const WrittenFile written =
            WriteFile(run_.Files, attributes_, {before_, end, kAttributes, "\n"},
                      {Outlives::Machine, SpecialFiles::Refused, kSavingPatience, &run_.Unfinished});
        if (written.Failure)
            Fail(ShownName(Utf8(attributes_)) + ": cannot be written (" + ReasonText(*written.Failure) + ")");
    }

    const Run& run_;
    bool isGlobal_;
    fs::path attributes_;
    std::string before_;
    Outcome outcome_;
};

} // namespace

Outcome EnableGit(const Run& run) {
    if (run.Asked.Documents != std::vector<std::string>{"enable"})
        return WrongUsage(kGitTakes);
    return GitEnabler(run).Do();
}

} // namespace orvane::cli
