// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Arguments.h"

#include "cli/BracketArgument.h"
#include "cli/BuildOptions.h"
#include "cli/ExportOptions.h"
#include "cli/FindOptions.h"
#include "cli/MachineOptions.h"
#include "cli/ReviewOptions.h"
#include "cli/TestOptions.h"
#include "cli/UsageHints.h"
#include "cli/UsageRules.h"
#include "core/ProgramVersion.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace orvane::cli {

namespace {

constexpr const char* kProgramNotes =
    "Example: orvanec generate pump.zfsm\n"
    "         writes pump.zls beside the document, and what was found to standard error\n\n"
    "Exit status: 0 no design errors, 1 a design error or a failed test, 2 wrong usage,\n"
    "             3 a file could not be read or written, or a document broke off";
constexpr const char* kGenerateNotes =
    "Example: SOURCE_DATE_EPOCH=0 orvanec generate -o - pump.zfsm\n"
    "         shows the program, dated 01/01/1970 00:00:00\n\n"
    "A design with errors writes nothing. SOURCE_DATE_EPOCH, in seconds, stands for the clock.";
constexpr const char* kCheckNotes = "Example: orvanec check --format=json *.zfsm\n"
                                    "         writes one line of JSON for each document";
constexpr const char* kFormatNotes =
    "Example: orvanec format pump.zfsm -o tidy.zfsm\n\n"
    "A document that breaks off is only written with -o, never over the original.";

constexpr const char* kTestNotes =
    "Example: orvanec test --coverage=100 pump.zfsm\n"
    "         runs the tests in pump.ztest and wants every transition to be taken\n\n"
    "Without a name all tests in the folder and below it are run. Exit status 1 is a failed test, 3 one "
    "that\n"
    "could not be understood.";
constexpr const char* kSimulateNotes =
    "Example: orvanec simulate pump.zfsm pump.ztest \"stops by itself\" --vcd pump.vcd\n"
    "         prints the run of that test and writes it for a viewer of signals\n\n"
    "Without a file of tests the machine is switched on, and that is all. Steps alone do on standard\n"
    "input. Exit status 1 is an expectation that failed, 3 a file that could not be understood.";

constexpr const char* kTourNotes =
    "Example: orvanec tour pump.zfsm --empty-cells -o pump.ztest\n"
    "         writes tests that take every transition and try what should do nothing\n\n"
    "The tests say what the machine does now, right or wrong: read them once, and they notice what\n"
    "changes. What they leave out is told on standard error.";
constexpr const char* kExploreNotes =
    "Example: orvanec explore pump.zfsm\n"
    "         tells timeouts that can never be due, states with no way back and the like\n"
    "Example: orvanec explore garage.zfsm --from Open --to Fault\n"
    "         prints the shortest way as a test\n\n"
    "Exit status: 0 nothing is found, or the way; 1 something is, or no way; 2 wrong usage; 3 a file that\n"
    "             could not be read, or a state that is not there";

constexpr const char* kFindNotes =
    "Example: orvanec find --word PST_Horn *.zfsm\n"
    "         prints DOC:LINE: PLACE: TEXT for each place where it stands, DOC being open at LINE\n\n"
    "Regular expressions: . [a-z] [^;] \\d \\w \\s \\t ^ $ \\b ( ) | * + ? {2,5}, within a line.\n"
    "Exit status: 0 found, 1 nothing found, 2 wrong usage, 3 a file that could not be read to its end";

constexpr std::array<std::pair<const char*, Verb>, 16> kVerbs{{{"generate", Verb::Generate},
                                                               {"check", Verb::Check},
                                                               {"format", Verb::Format},
                                                               {"find", Verb::Find},
                                                               {"test", Verb::Test},
                                                               {"simulate", Verb::Simulate},
                                                               {"explore", Verb::Explore},
                                                               {"tour", Verb::Tour},
                                                               {"diagram", Verb::Diagram},
                                                               {"export", Verb::Export},
                                                               {"import", Verb::Import},
                                                               {"diff", Verb::Diff},
                                                               {"show", Verb::Show},
                                                               {"merge", Verb::Merge},
                                                               {"conflicts", Verb::Conflicts},
                                                               {"git", Verb::Git}}};

std::vector<std::string> VerbNames() {
    std::vector<std::string> names;
    for (const auto& [name, verb] : kVerbs)
        names.emplace_back(name);
    return names;
}

constexpr const char* kDiagramNotes =
    "Example: orvanec diagram pump.zfsm -o pump.svg\n"
    "         draws the machine; orvanec diagram --focus=Idle pump.zfsm what is around one state\n\n"
    "A design with errors is drawn with signs where they are. Above 600 lines between states only what is\n"
    "around state 1 is drawn.";
constexpr const char* kExportNotes =
    "Example: orvanec export --format=html pump.zfsm -o pump.html\n\n"
    "json has all that the document holds, and csv-long all transitions; import reads them again.";
constexpr const char* kImportNotes = "Example: orvanec import pump.csv -o pump.zfsm\n\n"
                                     "Reads json, both forms of csv, and flat state charts (scxml). What is "
                                     "left out is told on standard error.";
constexpr const char* kDiffNotes =
    "Example: orvanec diff old.zfsm new.zfsm\n"
    "         tells what was done: states and events that came, went, moved or have another name, and\n"
    "         cells that lead elsewhere, whatever their numbers are now\n\n"
    "Exit status: 0 nothing is different, 1 something is, 2 wrong usage, 3 a file that is no whole document";
constexpr const char* kShowNotes =
    "Example: orvanec show pump.zfsm\n"
    "         writes the document as text with names in place of numbers, as git compares it";
constexpr const char* kMergeNotes =
    "Example: orvanec merge base.zfsm ours.zfsm theirs.zfsm -o merged.zfsm\n\n"
    "A conflict keeps ours and has theirs in a comment block, and stands in merged.zfsm.conflicts.\n"
    "Exit status: 0 merged, 1 with conflicts, 2 wrong usage, 3 a file that is no whole document";
constexpr const char* kConflictsNotes = "Example: orvanec conflicts *.zfsm || exit 1\n\n"
                                        "Exit status: 0 there are none, 1 there are some";
constexpr const char* kGitNotes =
    "Example: orvanec git enable\n"
    "         shows what it writes into .gitattributes and the configuration, and asks";

class CommandLine {
  public:
    explicit CommandLine(const std::vector<std::string>& words);

    Arguments Parse(const std::vector<std::string>& words);
    Outcome Answer(const CLI::ParseError& error);

  private:
    Verb Asked() const;
    std::string WhatIsMissing() const;
    std::string WhatIsLeftOver() const;

    void Add(Verb verb);
    void AddGenerate() {
        CLI::App& verb = AddVerb("generate", "Write the controller program of each document", kGenerateNotes);
        AddDocuments(verb);
        AddOutput(verb, "Write to FILE instead of beside the document; - is standard output");
        build_.AddGenerate(verb);
    }
    void AddCheck() {
        CLI::App& verb =
            AddVerb("check", "Report what is wrong with each design; write no program", kCheckNotes);
        verb.add_option("DOC", documents_, "The documents; - is standard input")->type_name("");
        build_.AddCheck(verb);
    }
    void AddFormat() {
        CLI::App& verb = AddVerb("format", "Write documents as the editor would save them", kFormatNotes);
        AddDocuments(verb);
        AddOutput(verb, "Write to FILE instead of over the document; - is standard output");
        build_.AddFormat(verb);
    }
    void AddTest() {
        CLI::App& verb = AddVerb("test", "Run the tests of machines", kTestNotes);
        verb.add_option("FILE", documents_, "Files of tests, documents, or folders")->type_name("");
        tests_.AddTo(verb);
    }
    void AddTour() {
        CLI::App& verb = AddVerb("tour", "Write tests that take every transition", kTourNotes);
        machines_.AddTour(verb);
        AddOutput(verb, "Write to FILE instead of standard output");
    }
    void AddDiagram() {
        CLI::App& verb = AddVerb("diagram", "Draw a machine", kDiagramNotes);
        export_.AddDiagram(verb);
        AddOutput(verb, "Write to FILE instead of standard output");
    }
    void AddExport() {
        CLI::App& verb = AddVerb("export", "Write a document in another form", kExportNotes);
        export_.AddExport(verb);
        AddOutput(verb, "Write to FILE instead of standard output");
    }
    void AddImport() {
        CLI::App& verb = AddVerb("import", "Make a document of a file in another form", kImportNotes);
        export_.AddImport(verb);
        AddOutput(verb, "The document to write; - is standard output");
    }
    void AddReview(Verb verb);

    CLI::App& AddVerb(const char* name, const char* purpose, const char* notes) {
        CLI::App* verb = app_.add_subcommand(name, purpose);
        verb->group("Verbs");
        verb->footer(notes);
        return *verb;
    }
    void AddDocuments(CLI::App& verb) {
        verb.add_option("DOC", documents_, "The documents; - is standard input")->required()->type_name("");
    }
    void AddOutput(CLI::App& verb, const char* purpose) {
        verb.add_option("-o,--output", output_, purpose)->type_name("FILE");
    }

    CLI::App app_{"Checks Orvane documents and writes their controller programs, without a window."};
    std::vector<std::string> documents_;
    std::optional<std::string> output_;
    BuildOptions build_;
    FindOptions find_;
    TestOptions tests_;
    MachineOptions machines_;
    ExportOptions export_;
    ReviewOptions review_;
    std::string firstWord_;
};

// A verb that is asked for is the only one that is made: to make them all takes longer than many a document.
CommandLine::CommandLine(const std::vector<std::string>& words)
    : firstWord_(words.empty() ? "" : words.front()) {
    app_.name("orvanec");
    app_.set_version_flag("--version", "orvanec " + VersionNumber());
    app_.footer(kProgramNotes);
    app_.require_subcommand(1);
    app_.get_formatter()->label("SUBCOMMAND", "VERB");
    app_.allow_windows_style_options(false);
    const auto isAsked = [&](const auto& each) { return firstWord_ == each.first; };
    const bool any = std::none_of(kVerbs.begin(), kVerbs.end(), isAsked);
    for (const auto& each : kVerbs) {
        if (any || isAsked(each))
            Add(each.second);
    }
}

void CommandLine::Add(Verb verb) {
    switch (verb) {
    case Verb::Generate:
        return AddGenerate();
    case Verb::Check:
        return AddCheck();
    case Verb::Format:
        return AddFormat();
    case Verb::Find:
        return find_.AddTo(AddVerb("find", "Print where a text stands in documents", kFindNotes));
    case Verb::Test:
        return AddTest();
    case Verb::Simulate:
        return machines_.AddSimulate(
            AddVerb("simulate", "Print what a machine does, step by step", kSimulateNotes));
    case Verb::Explore:
        return machines_.AddExplore(
            AddVerb("explore", "Tell what holds in all behaviours of a machine", kExploreNotes));
    case Verb::Tour:
        return AddTour();
    case Verb::Diagram:
        return AddDiagram();
    case Verb::Export:
        return AddExport();
    case Verb::Import:
        return AddImport();
    default:
        return AddReview(verb);
    }
}

void CommandLine::AddReview(Verb verb) {
    if (verb == Verb::Diff)
        review_.AddDiff(AddVerb("diff", "Tell what leads from one document to another", kDiffNotes));
    else if (verb == Verb::Show)
        review_.AddShow(
            AddVerb("show", "Write a document as text with names in place of numbers", kShowNotes));
    else if (verb == Verb::Merge)
        review_.AddMerge(AddVerb("merge", "Put two versions that came from one together", kMergeNotes));
    else if (verb == Verb::Conflicts)
        review_.AddConflicts(
            AddVerb("conflicts", "Tell the conflicts that stand in documents", kConflictsNotes));
    else
        review_.AddGit(AddVerb("git", "Make git compare and merge documents by orvanec", kGitNotes));
}

Verb CommandLine::Asked() const {
    const std::string asked = app_.get_subcommands().front()->get_name(); // one is required
    const auto* const verb =
        std::find_if(kVerbs.begin(), kVerbs.end(), [&](const auto& each) { return asked == each.first; });
    return verb->second;
}

Arguments CommandLine::Parse(const std::vector<std::string>& words) {
    std::vector<std::string> reversed; // as the parser takes them
    std::transform(words.rbegin(), words.rend(), std::back_inserter(reversed), HideBracket);
    app_.parse(std::move(reversed));

    Arguments arguments;
    arguments.What = Asked();
    arguments.Documents = arguments.What == Verb::Find       ? find_.TakeDocuments()
                          : LooksIntoOne(arguments.What)     ? std::vector{machines_.TakeDocument()}
                          : GivesAnotherForm(arguments.What) ? std::vector{export_.TakeDocument()}
                          : ComparesVersions(arguments.What) ? review_.TakeDocuments()
                                                             : std::move(documents_);
    arguments.Finding = find_.Take();
    arguments.Reviewing = review_.Take();
    if (arguments.What == Verb::Test)
        arguments.Testing = tests_.Take();
    arguments.Simulating = machines_.TakeSimulate();
    arguments.Exploring = machines_.TakeExplore();
    arguments.Touring = machines_.TakeTour();
    arguments.Drawing = export_.TakeDiagram();
    arguments.Exporting = export_.TakeExport();
    arguments.Building = build_.Take();
    if (arguments.What == Verb::Test && arguments.Documents.empty())
        arguments.Documents = {"."};
    std::for_each(arguments.Documents.begin(), arguments.Documents.end(), ShowBracket);
    arguments.Output = std::move(output_);
    if (arguments.Output)
        ShowBracket(*arguments.Output);
    return arguments;
}

Outcome CommandLine::Answer(const CLI::ParseError& error) {
    const std::string name = error.get_name();
    if (name == "RequiredError")
        return WrongUsage(WhatIsMissing());
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::ExtrasError))
        return WrongUsage(WhatIsLeftOver());
    if (error.get_exit_code() != static_cast<int>(CLI::ExitCodes::Success))
        return WrongUsage(error.what());
    Outcome asked;
    asked.Output = name == "CallForVersion" ? std::string(error.what()) + "\n" : app_.help();
    return asked;
}

std::string CommandLine::WhatIsMissing() const {
    const std::vector<CLI::App*> verbs = app_.get_subcommands();
    if (verbs.empty())
        return NoSuchVerb(firstWord_, VerbNames());
    const std::vector<CLI::Option*> options = verbs.front()->get_options();
    const auto missing = std::find_if(options.begin(), options.end(), [](const CLI::Option* option) {
        return option->get_required() && option->count() == 0;
    });
    if (missing == options.end())
        return "No document is given";
    return Missing(verbs.front()->get_name(), (*missing)->get_name(), (*missing)->get_description());
}

std::string CommandLine::WhatIsLeftOver() const {
    const std::vector<CLI::App*> verbs = app_.get_subcommands();
    if (verbs.empty() || firstWord_.starts_with('-'))
        return NoSuchVerb(firstWord_, VerbNames());
    std::vector<std::string> options;
    for (const CLI::Option* option : verbs.front()->get_options()) {
        for (const std::string& name : option->get_lnames())
            options.push_back("--" + name);
    }
    std::vector<std::string> left = app_.remaining(true);
    const auto isOption = [](const std::string& word) { return word.starts_with('-'); };
    const auto word = std::find_if(left.begin(), left.end(), isOption);
    std::string shown = word != left.end() ? *word : left.empty() ? "" : left.front();
    ShowBracket(shown);
    return LeftOver(verbs.front()->get_name(), shown, options);
}

} // namespace

Outcome WrongUsage(const std::string& what) {
    Outcome wrong;
    wrong.Errors = "orvanec: " + what + "\nRun \"orvanec --help\" for how it is used.\n";
    wrong.Status = kWrongUsage;
    return wrong;
}

std::variant<Arguments, Outcome> ParseArguments(const std::vector<std::string>& words) {
    CommandLine commandLine(words);
    try {
        Arguments arguments = commandLine.Parse(words);
        if (const std::optional<std::string> fault = WrongTogether(arguments))
            return WrongUsage(*fault);
        return arguments;
    } catch (const CLI::ParseError& error) {
        return commandLine.Answer(error);
    }
}

} // namespace orvane::cli
