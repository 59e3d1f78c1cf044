// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/GitHead.h"

#include "core/DocumentReader.h"
#include "kit/AnsiString.h"

#include <QFileInfo>

#include <utility>

namespace orvane {

namespace {

constexpr int kKillPatience = 1000; // milliseconds until a killed process is gone

} // namespace

GitHead::GitHead(QObject* parent, std::chrono::milliseconds patience) : QObject(parent) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("GIT_TERMINAL_PROMPT"), QStringLiteral("0"));
    environment.insert(QStringLiteral("GIT_OPTIONAL_LOCKS"), QStringLiteral("0"));
    process_.setProcessEnvironment(environment);
    process_.setStandardInputFile(QProcess::nullDevice());
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    connect(&patience_, &QTimer::timeout, this, [this] { GiveUp(tr("Git does not answer.")); });
    connect(&process_, &QProcess::finished, this, &GitHead::TakeAnswer);
    connect(&process_, &QProcess::errorOccurred, this, &GitHead::TakeFailure);
    connect(&process_, &QProcess::readyReadStandardOutput, this, &GitHead::LookAtSize);
}

GitHead::~GitHead() { Drop(); }

// Git follows no links inside a repository: it is asked where the file really is.
void GitHead::Ask(const QString& path) {
    Drop();
    isAsked_ = true;
    const QString real = QFileInfo(path).canonicalFilePath();
    const QFileInfo file(real.isEmpty() ? path : real);
    folder_ = file.absolutePath();
    name_ = file.fileName();
    patience_.start();
    if (QFileInfo(folder_).isDir())
        Start(Question::Content);
    else
        GiveUp(tr("The folder %1 is not there.").arg(folder_));
}

void GitHead::Drop() {
    isAsked_ = false;
    patience_.stop();
    if (process_.state() == QProcess::NotRunning)
        return;
    process_.kill();
    process_.waitForFinished(kKillPatience);
}

// The content comes as a checkout would write it, with the line ends that the user's settings ask for.
void GitHead::Start(Question question) {
    question_ = question;
    process_.setWorkingDirectory(folder_);
    const QString git = QStringLiteral("git");
    if (question == Question::Content)
        process_.start(git, {QStringLiteral("cat-file"), QStringLiteral("--filters"),
                             QStringLiteral("HEAD:./") + name_});
    else if (question == Question::Repository)
        process_.start(git, {QStringLiteral("rev-parse"), QStringLiteral("--git-dir")});
    else
        process_.start(git, {QStringLiteral("rev-parse"), QStringLiteral("--quiet"),
                             QStringLiteral("--verify"), QStringLiteral("HEAD")});
}

void GitHead::TakeAnswer(int status, QProcess::ExitStatus how) {
    if (!isAsked_)
        return;
    const bool did = how == QProcess::NormalExit && status == 0;
    if (question_ == Question::Content && did) {
        Drop();
        Q_EMIT Got(process_.readAllStandardOutput());
    } else if (question_ == Question::Content) {
        Start(Question::Repository);
    } else if (question_ == Question::Repository && did) {
        Start(Question::Commit);
    } else if (question_ == Question::Repository) {
        GiveUp(tr("The file is in no git repository that git can use. Git says: %1")
                   .arg(QString::fromLocal8Bit(process_.readAllStandardError()).simplified()));
    } else if (did) {
        GiveUp(tr("The last commit does not have %1.").arg(name_));
    } else {
        GiveUp(tr("The repository has no commit yet."));
    }
}

void GitHead::TakeFailure() {
    if (isAsked_ && process_.error() == QProcess::FailedToStart)
        GiveUp(tr("There is no git on this computer, or it cannot be started."));
}

void GitHead::LookAtSize() {
    if (isAsked_ && process_.bytesAvailable() > qint64(kLargestDocument))
        GiveUp(tr("The file is ") + FromAnsi(kTooLargeForADocument) + QLatin1Char('.'));
}

void GitHead::GiveUp(const QString& why) {
    Drop();
    Q_EMIT Failed(why);
}

} // namespace orvane
