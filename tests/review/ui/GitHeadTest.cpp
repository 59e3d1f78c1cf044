// SPDX-License-Identifier: GPL-3.0-or-later
// With the real git, in repositories of their own.
#include "review/ui/GitHead.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

#include <optional>

namespace orvane {
namespace {

using std::chrono::milliseconds;

class GitHeadTest : public testing::Test {
  protected:
    GitHeadTest() : path_(qgetenv("PATH")) {
        qputenv("GIT_CONFIG_GLOBAL", "/dev/null");
        qputenv("GIT_CONFIG_NOSYSTEM", "1");
        for (const char* who :
             {"GIT_AUTHOR_NAME", "GIT_AUTHOR_EMAIL", "GIT_COMMITTER_NAME", "GIT_COMMITTER_EMAIL"})
            qputenv(who, "somebody");
    }
    ~GitHeadTest() override { qputenv("PATH", path_); }

    QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
    void Write(const char* name, const QByteArray& bytes) const {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void Git(const QStringList& arguments) const {
        QProcess git;
        git.setWorkingDirectory(folder_.path());
        git.start(QStringLiteral("git"), arguments);
        ASSERT_TRUE(git.waitForFinished());
        ASSERT_EQ(git.exitCode(), 0) << git.readAllStandardError().toStdString();
    }
    void Commit() const {
        Git({QStringLiteral("add"), QStringLiteral("-A")});
        Git({QStringLiteral("commit"), QStringLiteral("-qm"), QStringLiteral("one")});
    }
    // The program that is found as git from now on.
    void PutInItsPlace(const QByteArray& script) {
        Write("git", script);
        QFile::setPermissions(Path("git"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", folder_.path().toLocal8Bit() + ":" + path_);
    }
    // The bytes, or why there are none.
    std::string Answer(const QString& path, milliseconds patience = GitHead::kPatience) {
        GitHead head(nullptr, patience);
        QEventLoop loop;
        std::vector<std::string> answers;
        const auto take = [&](const std::string& answer) {
            answers.push_back(answer);
            loop.quit();
        };
        QObject::connect(&head, &GitHead::Got, &loop,
                         [&](const QByteArray& bytes) { take(bytes.toStdString()); });
        QObject::connect(&head, &GitHead::Failed, &loop,
                         [&](const QString& why) { take("failed: " + why.toStdString()); });
        head.Ask(path);
        if (answers.empty())
            loop.exec();
        QCoreApplication::processEvents();
        EXPECT_EQ(answers.size(), 1u) << "one answer for a question";
        return answers.front();
    }

    QTemporaryDir folder_;
    QByteArray path_;
};

TEST_F(GitHeadTest, TheFileComesAsTheLastCommitHasItByteForByte) {
    Git({QStringLiteral("init"), QStringLiteral("-q")});
    const QByteArray bytes("one\r\n\xA4 two\n\0three", 17);
    ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("below")));
    Write("below/a machine.zfsm", bytes);
    Commit();
    Write("below/a machine.zfsm", "edited since");
    EXPECT_EQ(Answer(Path("below/a machine.zfsm")), bytes.toStdString());
}

TEST_F(GitHeadTest, ALinkIsFollowedToWhereTheFileIs) {
    Git({QStringLiteral("init"), QStringLiteral("-q")});
    Write("machine.zfsm", "real");
    Commit();
    const QTemporaryDir elsewhere;
    const QString link = elsewhere.filePath(QStringLiteral("link.zfsm"));
    ASSERT_TRUE(QFile::link(Path("machine.zfsm"), link));
    EXPECT_EQ(Answer(link), "real");
}

TEST_F(GitHeadTest, WhatIsMissingIsTold) {
    EXPECT_THAT(Answer(Path("machine.zfsm")),
                testing::StartsWith("failed: The file is in no git repository that git can use. Git says: "));
    Git({QStringLiteral("init"), QStringLiteral("-q")});
    EXPECT_EQ(Answer(Path("machine.zfsm")), "failed: The repository has no commit yet.");
    Write("other.zfsm", "other");
    Commit();
    EXPECT_EQ(Answer(Path("machine.zfsm")), "failed: The last commit does not have machine.zfsm.");
    EXPECT_EQ(Answer(Path("gone/machine.zfsm")),
              "failed: The folder " + Path("gone").toStdString() + " is not there.");
}

TEST_F(GitHeadTest, AComputerWithoutGitIsTold) {
    qputenv("PATH", folder_.path().toLocal8Bit());
    EXPECT_EQ(Answer(Path("machine.zfsm")),
              "failed: There is no git on this computer, or it cannot be started.");
}

TEST_F(GitHeadTest, AGitThatDoesNotAnswerIsGivenUp) {
    PutInItsPlace("#!/bin/sh\nexec sleep 60\n");
    EXPECT_EQ(Answer(Path("machine.zfsm"), milliseconds(100)), "failed: Git does not answer.");
}

TEST_F(GitHeadTest, AnAnswerWithoutEndIsNotTakenIn) {
    PutInItsPlace("#!/bin/sh\nexec cat /dev/zero\n");
    EXPECT_EQ(Answer(Path("machine.zfsm")), "failed: The file is larger than 64 MiB, which no document is.");
}

TEST_F(GitHeadTest, ADroppedQuestionHasNoAnswer) {
    Git({QStringLiteral("init"), QStringLiteral("-q")});
    Write("machine.zfsm", "bytes");
    Commit();
    GitHead head(nullptr);
    int answers = 0;
    QObject::connect(&head, &GitHead::Got, &head, [&] { ++answers; });
    QObject::connect(&head, &GitHead::Failed, &head, [&] { ++answers; });
    head.Ask(Path("machine.zfsm"));
    head.Drop();
    head.Ask(Path("machine.zfsm"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return answers > 0; }));
    EXPECT_EQ(answers, 1);
}

} // namespace
} // namespace orvane
