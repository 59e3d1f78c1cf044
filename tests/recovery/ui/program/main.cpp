// SPDX-License-Identifier: GPL-3.0-or-later
// Kills the program that is shipped, with what it has left to be recovered in its next life, and looks for
// what had been drawn: at every call of one session that changes a file, saves and half a word in an open
// editor included; at every call of the recovery of that; and at random moments.
//   orvane_program_kill_test PROGRAM PLUGINS KILL-LIBRARY EACH SESSIONS [SEED]
// EACH 1 takes every call, 7 every seventh; SESSIONS is how often it is killed at random.
#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "files/FileReader.h"
#include "files/NativeFiles.h"
#include "recovery/ui/kill/Aftermath.h"
#include "recovery/ui/program/DrawnProgram.h"
#include "recovery/ui/program/Expected.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <random>

namespace orvane::test {
namespace {

namespace fs = std::filesystem;

constexpr int kStrokes = 12;     // of the session that is killed at each call
constexpr int kMoreStrokes = 8;  // after its recovery
constexpr int kLongSession = 40; // strokes of one that is killed at random

class KillTest {
  public:
    KillTest(DrawnProgram program, int each, unsigned seed)
        : program_(std::move(program)),
          each_(each),
          random_(seed),
          saved_(program_.Folder.string() + "-saved") {}
    ~KillTest() { fs::remove_all(saved_); }

    void KillAtEachCall();
    void KillRecoveryAtEachCall();
    void KillAtRandom(int sessions);
    int Losses() const { return losses_; }

  private:
    fs::path Document() const { return program_.Folder / "machine.zfsm"; }
    fs::path Recovery() const { return program_.Folder / "state" / "orvane" / "recovery"; }
    void Begin();
    Report ReportOf(Expected& expected, const LifeEnd& end) const;
    std::string Judge(const LifeEnd& end, const Report& last, Aftermath& aftermath);
    void Count(const std::string& what, const std::string& loss);
    // Lives the session through once more and keeps what it leaves.
    void PrepareLeftWork();
    bool HasDraft();
    std::string LossOfRecovery(const LifeEnd& end);
    // The work that was left by a kill in this stroke is recovered, drawn on, and saved.
    void GoOn(const std::string& what, int stroke, const Aftermath& aftermath, Expected& expected);
    int Number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }

    DrawnProgram program_;
    int each_;
    std::mt19937 random_;
    fs::path saved_;
    NativeFiles files_;
    int lives_ = 0;
    int losses_ = 0;
};

void KillTest::Begin() {
    fs::remove_all(program_.Folder);
    fs::create_directories(program_.Folder);
    fs::permissions(program_.Folder, fs::perms::owner_all); // as the program wants its place for sockets
    std::ofstream(Document(), std::ios::binary) << WriteDocument(Expected::Beginning());
}

Report KillTest::ReportOf(Expected& expected, const LifeEnd& end) const {
    if (end.Stroke < 0)
        return {Doing::Starting, expected.Before(0)};
    return {Expected::DoingIn(end.Stroke), expected.Before(end.Stroke)};
}

std::string KillTest::Judge(const LifeEnd& end, const Report& last, Aftermath& aftermath) {
    ++lives_;
    if (end.EndedByItself)
        return "the program ended by itself";
    const FileContent document = ReadFile(files_, Document(), kLargestDocument);
    if (!document || ReadDocument(document.Bytes()).BrokeOff)
        return "the document is not whole";
    aftermath = LookAfter(files_, Recovery(), Document(), last);
    return aftermath.Loss;
}

void KillTest::Count(const std::string& what, const std::string& loss) {
    if (loss.empty())
        return;
    ++losses_;
    std::cout << what << ": " << loss << "\n";
}

void KillTest::KillAtEachCall() {
    long call = 1;
    for (bool isThrough = false; !isThrough; call += each_) {
        Begin();
        Expected expected;
        const LifeEnd end = program_.Live({.To = kStrokes, .KillAtCall = call});
        Aftermath aftermath;
        const std::string what = "killed at call " + std::to_string(call);
        Count(what, Judge(end, ReportOf(expected, end), aftermath));
        if (aftermath.Offers > 0 && end.Stroke < kStrokes)
            GoOn(what, end.Stroke, aftermath, expected);
        isThrough = end.IsThrough || end.EndedByItself;
    }
    std::cout << "one session: " << call - each_ - 1 << " calls\n";
}

void KillTest::GoOn(const std::string& what, int stroke, const Aftermath& aftermath, Expected& expected) {
    const int from = aftermath.Image == expected.Before(stroke + 1) ? stroke + 1 : stroke;
    const LifeEnd end = program_.Live({.From = from, .To = from + kMoreStrokes, .Recovers = true});
    Aftermath later;
    std::string loss = Judge(end, ReportOf(expected, end), later);
    if (loss.empty() && !end.IsThrough)
        loss = "the strokes were not done";
    Count(what + " and recovered", loss);
}

void KillTest::PrepareLeftWork() {
    Begin();
    const LifeEnd end = program_.Live({.To = kStrokes});
    if (!end.IsThrough || !HasDraft())
        throw std::runtime_error("the session does not come to its end with a draft");
    fs::remove_all(saved_);
    fs::copy(program_.Folder, saved_, fs::copy_options::recursive);
}

bool KillTest::HasDraft() {
    const std::vector<OrphanedJournal> orphans = RecoveryFolder(files_, Recovery()).Orphans();
    return !orphans.empty() && orphans.front().Drafts == 1;
}

// Half a target is a draft until it is taken over, and part of the document from then on.
std::string KillTest::LossOfRecovery(const LifeEnd& end) {
    Expected expected;
    const std::string before = expected.Before(kStrokes);
    expected.EnterHalfTyped(kStrokes);
    Report last = end.Stroke < 0 ? Report{Doing::Drawing, before} : ReportOf(expected, end);
    Aftermath aftermath;
    std::string loss = Judge(end, last, aftermath);
    if (loss.empty() && end.Stroke < 0 && aftermath.Image == before && !HasDraft())
        loss = "what was typed in an open editor is gone";
    return loss;
}

void KillTest::KillRecoveryAtEachCall() {
    PrepareLeftWork();
    long call = 1;
    for (bool isThrough = false; !isThrough; call += each_) {
        fs::remove_all(program_.Folder);
        fs::copy(saved_, program_.Folder, fs::copy_options::recursive);
        const LifeEnd end = program_.Live(
            {.From = kStrokes, .To = kStrokes + kMoreStrokes, .Recovers = true, .KillAtCall = call});
        Count("recovery killed at call " + std::to_string(call), LossOfRecovery(end));
        isThrough = end.IsThrough || end.EndedByItself;
    }
    std::cout << "its recovery and the strokes after it: " << call - each_ - 1 << " calls\n";
}

void KillTest::KillAtRandom(int sessions) {
    for (int session = 0; session < sessions; ++session) {
        Begin();
        Expected expected;
        const LifeEnd end = program_.Live({.To = kLongSession,
                                           .KillInStroke = Number(0, kLongSession),
                                           .Delay = std::chrono::microseconds(Number(0, 5000))});
        Aftermath aftermath;
        Count("session " + std::to_string(session + 1), Judge(end, ReportOf(expected, end), aftermath));
    }
    std::cout << "killed at random: " << sessions << " sessions\n";
}

} // namespace
} // namespace orvane::test

int main(int argc, char* argv[]) {
    if (argc < 6)
        return 2;
    const unsigned seed = argc > 6 ? static_cast<unsigned>(std::atol(argv[6])) : std::random_device()();
    std::string folder = (std::filesystem::temp_directory_path() / "orvane-program-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr)
        return 2;
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    std::cout << "seed " << seed << std::endl;
    int losses = 0;
    {
        orvane::test::KillTest test({argv[1], argv[2], argv[3], folder}, std::atoi(argv[4]), seed);
        test.KillAtEachCall();
        test.KillRecoveryAtEachCall();
        test.KillAtRandom(std::atoi(argv[5]));
        losses = test.Losses();
    }
    std::filesystem::remove_all(folder);
    std::cout << "Lost: " << losses << ".\n";
    return losses == 0 ? 0 : 1;
}
