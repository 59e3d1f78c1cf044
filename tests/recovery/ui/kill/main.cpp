// SPDX-License-Identifier: GPL-3.0-or-later
// Kills a window in the middle of the work, many times and at random moments, and looks for what it had
// drawn.
//   orvane_kill_test SESSIONS [SEED]
#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "files/NativeFiles.h"
#include "recovery/ui/kill/Aftermath.h"
#include "recovery/ui/kill/Drawer.h"
#include "support/ui/TableFixture.h"

#include <QApplication>
#include <QTemporaryDir>

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane {
namespace {

constexpr int kMostReports = 25;      // of one window before it is killed
constexpr int kLongestDelay = 3000;   // microseconds between the last report and the kill
constexpr int kLongestStart = 60'000; // of a window that is killed while it starts
constexpr unsigned kHangSeconds = 60; // without a report, after which a window ends by itself

constexpr std::array<const char*, kDoings> kDoingNames{"starting", "recovering", "drawing",
                                                       "undoing",  "redoing",    "saving"};

class KillTest {
  public:
    KillTest(const std::filesystem::path& folder, unsigned seed)
        : document_(folder / "machine.zfsm"),
          state_(folder / "state"),
          recovery_(state_ / "orvane" / "recovery"),
          random_(seed) {}

    // False when something was lost.
    bool RunSession();
    void PrintResult() const;

  private:
    void Begin();
    void RunWindow(int pipe, unsigned seed);
    Report DriveAndKill(pid_t window, int pipe);
    int Number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }

    NativeFiles files_;
    std::filesystem::path document_;
    std::filesystem::path state_;
    std::filesystem::path recovery_;
    std::mt19937 random_;
    std::optional<Report> left_; // by the window before, to be recovered
    int sessions_ = 0;
    int recoveries_ = 0;
    int reports_ = 0;
    int losses_ = 0;
    int twice_ = 0; // the same work was offered two times
    std::array<int, kDoings> killedWhile_{};
};

void KillTest::Begin() {
    std::filesystem::remove_all(state_);
    std::ofstream(document_, std::ios::binary) << WriteDocument(PumpDocument());
}

void KillTest::RunWindow(int pipe, unsigned seed) {
    alarm(kHangSeconds);
    Drawer drawer(seed, pipe);
    if (left_)
        drawer.DrawOnRecovered();
    drawer.DrawOn(QString::fromStdString(document_.string()));
}

// A window that is killed before its first report has not lost what the one before it had left.
Report KillTest::DriveAndKill(pid_t window, int pipe) {
    Report last = left_ ? *left_ : Report{Doing::Starting, Pack(PumpDocument())};
    last.Next = left_ ? Doing::Recovering : Doing::Starting;
    ReportReader reader(pipe);
    const int wanted = Number(0, 5) == 0 ? 0 : Number(1, kMostReports);
    for (int count = 0; count < wanted; ++count) {
        std::optional<Report> report = reader.Next();
        if (!report)
            break;
        last = *std::move(report);
        ++reports_;
    }
    usleep(static_cast<useconds_t>(Number(0, wanted == 0 ? kLongestStart : kLongestDelay)));
    kill(window, SIGKILL);
    while (std::optional<Report> report = reader.Next())
        last = *std::move(report);
    return last;
}

bool KillTest::RunSession() {
    if (!left_)
        Begin();
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        throw std::runtime_error("no pipe");
    const auto seed = static_cast<unsigned>(random_());
    const pid_t window = fork();
    if (window == 0) {
        close(ends[0]);
        RunWindow(ends[1], seed);
        _exit(1);
    }
    close(ends[1]);
    const Report last = DriveAndKill(window, ends[0]);
    close(ends[0]);
    int status = 0;
    waitpid(window, &status, 0);
    Aftermath aftermath = LookAfter(files_, recovery_, document_, last);
    if (!WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL)
        aftermath.Loss = "the window ended by itself";
    ++sessions_;
    recoveries_ += left_ ? 1 : 0;
    ++killedWhile_[static_cast<std::size_t>(last.Next)];
    const bool isLost = !aftermath.Loss.empty();
    if (isLost) {
        ++losses_;
        std::cout << "session " << sessions_ << ", killed while "
                  << kDoingNames[static_cast<std::size_t>(last.Next)] << ": " << aftermath.Loss << "\n";
    }
    twice_ += aftermath.Offers > 1 ? 1 : 0;
    const bool goesOn = !aftermath.Image.empty() && !isLost && Number(0, 3) > 0;
    left_ = goesOn ? std::optional(Report{last.Next, aftermath.Image}) : std::nullopt;
    return !isLost;
}

void KillTest::PrintResult() const {
    std::cout << sessions_ << " windows were killed after " << reports_ << " changes, " << recoveries_
              << " of them had recovered the work of the one before;\nwhile";
    for (std::size_t i = 0; i < killedWhile_.size(); ++i)
        std::cout << (i > 0 ? ", " : " ") << kDoingNames[i] << " " << killedWhile_[i];
    std::cout << ".\nLost: " << losses_ << ". Offered twice: " << twice_ << ".\n";
}

} // namespace
} // namespace orvane

int main(int argc, char* argv[]) {
    const int sessions = argc > 1 ? std::atoi(argv[1]) : 300;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atol(argv[2])) : std::random_device()();
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_STATE_HOME", (path + "/state").c_str());
    qputenv("XDG_CONFIG_HOME", path.c_str());
    qputenv("APPDATA", path.c_str());
    std::signal(SIGPIPE, SIG_IGN);
    const QApplication application(argc, argv); // made once: each window is a fork of it
    std::cout << "seed " << seed << std::endl;
    orvane::KillTest test(path, seed);
    bool isGood = true;
    for (int i = 0; i < sessions; ++i)
        isGood = test.RunSession() && isGood;
    test.PrintResult();
    return isGood ? 0 : 1;
}
