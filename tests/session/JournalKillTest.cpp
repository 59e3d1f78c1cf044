// SPDX-License-Identifier: GPL-3.0-or-later
// A process that writes a journal is killed at any moment, for real: nothing that a call has returned from is
// lost, also when the next one goes on with it and is killed too.
#ifndef _WIN32

#include "files/NativeFiles.h"
#include "session/RecoveryFolder.h"
#include "support/JournaledWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <random>
#include <thread>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane::test {
namespace {

// The image of each moment follows from its number, so that both processes know it.
std::string ImageOf(int moment) {
    std::minstd_rand random(static_cast<unsigned>(moment) + 1);
    std::string image = "0 moment " + std::to_string(moment) + " ";
    for (auto left = random() % 2000; left > 0; --left)
        image += static_cast<char>('a' + random() % 26);
    return image;
}

int MomentOf(const RecoveredJournal& journal) {
    const std::string& image = journal.History.at(journal.Current).Image;
    return std::atoi(image.substr(std::string("0 moment ").size()).c_str());
}

// Tells the parent, through memory that outlives the child, how far it has come.
class Progress {
  public:
    Progress() {
        void* shared = mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                            MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        EXPECT_NE(shared, MAP_FAILED);
        moment_ = new (shared) std::atomic<int>(0);
    }
    ~Progress() { munmap(moment_, sizeof(std::atomic<int>)); }
    void Reached(int moment) { *moment_ = moment; }
    void Add() { ++*moment_; }
    int Moment() const { return *moment_; }

  private:
    std::atomic<int>* moment_ = nullptr;
};

class JournalKillTest : public testing::Test {
  protected:
    void SetUp() override {
        std::string name = (std::filesystem::temp_directory_path() / "orvane-kill-XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        Folder = name;
    }
    void TearDown() override { std::filesystem::remove_all(Folder); }

    // A short delay: the sync, and the end of what was replaced, are to be hit as well.
    JournalPlace Place() {
        return {
            Files, Folder, "Orvane 1", TestClock, JournalSyncer::How::ByThread, std::chrono::milliseconds(2)};
    }

    // Goes on with what there is and commits moment after moment, until it is killed.
    [[noreturn]] void Live(int life) {
        const RecoveryFolder folder(Files, Folder);
        JournaledWindow window(Place(), ImageOf(0));
        int moment = 0;
        for (const OrphanedJournal& orphan : folder.Orphans()) {
            Result<AdoptedJournal> adopted = folder.Adopt(orphan.Name, TestClock());
            if (adopted.Failure)
                _exit(1);
            moment = MomentOf(adopted.Got.Journal);
            window.Continue(std::move(adopted.Got));
            break;
        }
        for (++moment;; ++moment) {
            window.Edit(ImageOf(moment), std::to_string(life));
            Reached.Reached(moment);
            if (moment % 700 == 0) // a file is begun anew now and then, also by these few
                window.Writer.Adopt({}, 0);
        }
    }

    // A lifetime from birth may end while the child goes on with what the one before has left. Any other
    // begins with the first moment that the child has reached, however long that took on a busy machine.
    enum class Since { Birth, FirstMoment };
    void KillAfter(std::chrono::microseconds lifetime, Since since, int life) {
        const int before = Reached.Moment();
        const pid_t child = fork();
        ASSERT_NE(child, -1);
        if (child == 0)
            Live(life);
        while (since == Since::FirstMoment && Reached.Moment() == before)
            ASSERT_EQ(waitpid(child, nullptr, WNOHANG), 0) << "ended by itself";
        std::this_thread::sleep_for(lifetime); // any moment will do
        ASSERT_EQ(kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "ended by itself";
    }

    NativeFiles Files;
    std::filesystem::path Folder;
    Progress Reached;
    Progress Tried;
};

int Lives() {
    const char* lives = std::getenv("ORVANE_KILLS");
    return lives ? std::max(std::atoi(lives), 1) : 200;
}

TEST_F(JournalKillTest, NothingThatWasCommittedIsLost) {
    std::mt19937 random(20261121);
    std::uniform_int_distribution<int> lifetime(0, 8'000);
    int lost = 0;
    for (int life = 0; life < Lives(); ++life) {
        const Since since = life % 4 == 0 ? Since::Birth : Since::FirstMoment;
        ASSERT_NO_FATAL_FAILURE(KillAfter(std::chrono::microseconds(lifetime(random)), since, life));
        const std::vector<OrphanedJournal> orphans = RecoveryFolder(Files, Folder).Orphans();
        ASSERT_LE(orphans.size(), 1u);
        if (orphans.empty()) {
            lost += Reached.Moment() > 0 ? 1 : 0;
            continue;
        }
        EXPECT_FALSE(orphans.front().WasDamaged);
        const Result<AdoptedJournal> adopted =
            RecoveryFolder(Files, Folder).Adopt(orphans.front().Name, TestClock());
        ASSERT_FALSE(adopted.Failure);
        const int moment = MomentOf(adopted.Got.Journal);
        lost += moment < Reached.Moment() ? 1 : 0;
        for (std::size_t i = 0; i < adopted.Got.Journal.History.size(); ++i) {
            const int back = static_cast<int>(adopted.Got.Journal.History.size() - 1 - i);
            ASSERT_EQ(adopted.Got.Journal.History[i].Image, ImageOf(moment - back));
        }
        RecoveryFolder(Files, Folder).LetGo(adopted.Got);
    }
    EXPECT_EQ(lost, 0);
    EXPECT_GE(Reached.Moment(), Lives() * 3 / 4);
}

// Both start at once; one of them gets the work, and it is all there.
TEST_F(JournalKillTest, OfTwoStartersOneGetsTheOrphan) {
    KillAfter(std::chrono::milliseconds(20), Since::FirstMoment, 0);
    const std::vector<OrphanedJournal> orphans = RecoveryFolder(Files, Folder).Orphans();
    ASSERT_EQ(orphans.size(), 1u);
    for (int round = 0; round < 50; ++round) {
        std::array<pid_t, 2> starters{};
        for (pid_t& starter : starters) {
            starter = fork();
            ASSERT_NE(starter, -1);
            if (starter != 0)
                continue;
            // The loser finds the lock taken; the winner keeps it until both have tried.
            const bool won = !RecoveryFolder(Files, Folder).Adopt(orphans.front().Name, TestClock()).Failure;
            Tried.Add();
            while (Tried.Moment() < 2 * (round + 1))
                std::this_thread::yield();
            _exit(won ? 10 : 11);
        }
        int won = 0;
        for (const pid_t starter : starters) {
            int status = 0;
            ASSERT_EQ(waitpid(starter, &status, 0), starter);
            ASSERT_TRUE(WIFEXITED(status));
            won += WEXITSTATUS(status) == 10 ? 1 : 0;
        }
        ASSERT_EQ(won, 1) << round;
    }
}

} // namespace
} // namespace orvane::test

#endif
