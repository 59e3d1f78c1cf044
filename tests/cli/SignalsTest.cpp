// SPDX-License-Identifier: GPL-3.0-or-later
// The program is told to end while it writes.
#include "cli/Orvanec.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace orvane {
namespace {

// Seconds after which the program is ended in any case, also when this test was ended before it.
constexpr unsigned kLongestLife = 300;

class Signals : public Orvanec, public testing::WithParamInterface<int> {
  protected:
    // So large that writing it takes a while. A shell's background job, as these tests may be, ignores an
    // interrupt, and so would what it starts.
    Signals() : before_(std::signal(GetParam(), SIG_DFL)) {
        WriteFile("large.zfsm",
                  "\xA4<FSM_NAME>D\xA4/\r\n\xA4<CODESEG>" + std::string(60u << 20, 'x') + "\xA4/\r\n\r\n");
    }
    ~Signals() override { std::signal(GetParam(), before_); }

    pid_t Start(const char* verb) const {
        const std::string folder = Path("").string();
        const pid_t child = fork();
        if (child != 0)
            return child;
        alarm(kLongestLife);
        if (chdir(folder.c_str()) == 0 && std::freopen("/dev/null", "w", stderr) != nullptr)
            execl(ORVANEC, "orvanec", verb, "large.zfsm", "-o", "out", nullptr);
        _exit(127);
    }
    // Its standard output can be read from `output` then.
    pid_t StartTests(FILE*& output) const {
        int ends[2] = {-1, -1};
        if (pipe(ends) != 0)
            return -1;
        const pid_t child = fork();
        if (child == 0) {
            alarm(kLongestLife);
            if (dup2(ends[1], STDOUT_FILENO) >= 0 && chdir(Path("").c_str()) == 0)
                execl(ORVANEC, "orvanec", "test", "-j", "1", "--junit", "out.xml", "done.ztest",
                      "endless.ztest", nullptr);
            _exit(127);
        }
        close(ends[1]);
        output = fdopen(ends[0], "r");
        return child;
    }
    bool IsWriting() const { return Listing().find(".orvane-") != std::string::npos; }
    static bool HasEnded(pid_t child, int& status) { return waitpid(child, &status, WNOHANG) == child; }

    // Sends the signal once the temporary file stands there; how the program ended.
    int EndWhileItWrites(const char* verb, int signal) const {
        const pid_t child = Start(verb);
        int status = 0;
        while (!IsWriting()) {
            if (HasEnded(child, status))
                return status;
        }
        kill(child, signal);
        waitpid(child, &status, 0);
        return status;
    }

  private:
    void (*before_)(int);
};

INSTANTIATE_TEST_SUITE_P(That, Signals, testing::Values(SIGINT, SIGTERM, SIGHUP), [](const auto& which) {
    return which.param == SIGINT ? "Interrupt" : which.param == SIGTERM ? "Terminate" : "HangUp";
});

TEST_P(Signals, LeaveTheOldFileAndNothingElseBehind) {
    if (std::getenv("ORVANEC_PROGRAM"))
        GTEST_SKIP() << "signals go to what runs the program";
    bool ended = false;
    for (int attempt = 0; attempt < 20 && !ended; ++attempt) { // it may be done before the signal comes
        WriteFile("out", "old");
        const int status = EndWhileItWrites(attempt % 2 == 0 ? "format" : "generate", GetParam());
        ended = WIFSIGNALED(status);
        if (ended) {
            EXPECT_EQ(WTERMSIG(status), GetParam());
            EXPECT_EQ(ReadFile("out"), "old");
        }
        EXPECT_EQ(Listing(), "large.zfsm out ");
    }
    EXPECT_TRUE(ended) << "the program was never caught while it wrote";
}

TEST_P(Signals, ThatItWasStartedToIgnoreStayIgnored) {
    if (std::getenv("ORVANEC_PROGRAM"))
        GTEST_SKIP() << "signals go to what runs the program";
    const auto before = std::signal(GetParam(), SIG_IGN);
    const int status = EndWhileItWrites("format", GetParam());
    std::signal(GetParam(), before);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    EXPECT_EQ(Listing(), "large.zfsm out ");
}

TEST_P(Signals, LeaveAReportOfTheTestsThatWereDone) {
    if (std::getenv("ORVANEC_PROGRAM"))
        GTEST_SKIP() << "signals go to what runs the program";
    WriteFile("pump.zfsm", PumpDocument());
    WriteFile("done.ztest", "machine pump.zfsm\ntest fails\n=> Run\n");
    std::string endless = "machine pump.zfsm\ntest goes on\n";
    for (int line = 0; line < 10000; ++line)
        endless += "on #6 scan 900000\noff #6 scan 900000\n";
    WriteFile("endless.ztest", endless);
    FILE* output = nullptr;
    const pid_t child = StartTests(output);
    ASSERT_NE(output, nullptr);
    EXPECT_NE(std::fgetc(output), EOF); // the first file's failure
    kill(child, GetParam());
    int status = 0;
    waitpid(child, &status, 0);
    std::fclose(output);
    EXPECT_TRUE(WIFSIGNALED(status)) << status;
    const std::string report = ReadFile("out.xml");
    EXPECT_NE(report.find("<failure message=\"expected 2:Run"), std::string::npos) << report;
    EXPECT_NE(report.find("the run was broken off before this file was done"), std::string::npos) << report;
    EXPECT_TRUE(report.ends_with("</testsuites>\n")) << report;
}

} // namespace
} // namespace orvane
