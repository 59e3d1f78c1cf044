// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/TestFileAccess.h"

#include "files/FileReader.h"
#include "files/FileWriter.h"
#include "files/NativeFiles.h"
#include "kit/FilePath.h"
#include "kit/UserMessageBox.h"
#include "run/Recorder.h"
#include "run/RunWords.h"
#include "run/TestPlan.h"
#include "run/TestReader.h"
#include "run/TourText.h"
#include "run/ui/StateText.h"
#include "session/Session.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>

namespace orvane {

namespace {

constexpr std::size_t kLargestTestFile = 16 << 20;

QString TrTestFile(const char* text) { return QCoreApplication::translate("TestFileAccess", text); }

// Why there is nothing to write down; empty when there is.
QString WhyNoTest(const FsmDocument& document, const run::LiveRun& run) {
    if (run.State() == kNoState)
        return TrTestFile(
            "A test begins with power on. Power on, do what the test is to show, and save it then.");
    const run::Outcome end = run.Past()->End();
    if (run::IsIdle(end) || end == run::Outcome::Spins)
        return {};
    return TrTestFile("A test cannot end here: %1. Go a step back first.")
        .arg(QString::fromStdString(run::OutcomeText(document, *run.Past())));
}

std::vector<run::RunStep> StepsUpTo(const run::History& past) {
    const run::Moment at = past.At();
    std::vector<run::RunStep> steps(past.Steps().begin(), past.Steps().begin() + std::ptrdiff_t(at.Steps));
    if (at.Into > 0)
        steps.push_back(run::WaitFor(at.Into));
    return steps;
}

// The first thing that the file would not be understood for, with its place.
QString FirstSlip(const std::string& bytes, const Session& session, const QString& path) {
    const run::TestReadResult read = run::ReadTestFile(bytes);
    const run::TestPlan plan = run::PlanTests(read.File, session.Document(), DocumentFileName(session));
    for (const std::vector<run::TestMessage>& slips : {read.Slips, plan.Slips}) {
        if (!slips.empty())
            return TrTestFile("%1, line %2: %3")
                .arg(QFileInfo(path).fileName())
                .arg(slips.front().At.Line)
                .arg(QString::fromStdString(slips.front().Text));
    }
    return {};
}

bool WriteTests(QWidget& window, const QString& path, const std::string& bytes) {
    NativeFiles files;
    const WrittenFile written = WriteFile(files, NativePath(path), {bytes});
    if (written.Failure)
        Tell(&window, TrTestFile("The test was not saved: %1.").arg(Message(*written.Failure)),
             QMessageBox::Warning);
    return !written.Failure;
}

QString ChooseTestFile(QWidget& window, const Session& session) {
    if (const QString beside = TestFileBeside(session); !beside.isEmpty())
        return beside;
    return QFileDialog::getSaveFileName(&window, TrTestFile("Save as test"), {},
                                        TrTestFile("Tests (*.ztest)"));
}

} // namespace

std::optional<run::TestTime> UnitTime(const QString& unit) {
    const QStringList parts = unit.split(QLatin1Char(' '));
    if (parts.size() != 2)
        return std::nullopt;
    run::TestTime time{parts[0].toStdString(), run::TimeSuffix::Hours, {}};
    if (parts[1] == QLatin1String("ms"))
        time.Suffix = run::TimeSuffix::Milliseconds;
    else if (parts[1] == QLatin1String("s"))
        time.Suffix = run::TimeSuffix::Seconds;
    else if (parts[1] == QLatin1String("min"))
        time.Suffix = run::TimeSuffix::Minutes;
    return time;
}

QString TestFileBeside(const Session& session) {
    if (session.Path().empty())
        return {};
    const QFileInfo document(QString::fromStdString(session.Path()));
    return document.path() + QLatin1Char('/') + document.completeBaseName() + QLatin1String(".ztest");
}

std::string DocumentFileName(const Session& session) {
    if (session.Path().empty())
        return "this document";
    return QFileInfo(QString::fromStdString(session.Path())).fileName().toStdString();
}

std::optional<std::string> ReadTests(QWidget& window, const QString& path) {
    NativeFiles files;
    const FileContent file = ReadFile(files, NativePath(path), kLargestTestFile);
    if (!file.Failure)
        return std::string(file.Bytes());
    Tell(&window,
         TrTestFile("%1 cannot be read: %2.").arg(QFileInfo(path).fileName(), Message(*file.Failure)),
         QMessageBox::Warning);
    return std::nullopt;
}

QString SaveRunAsTest(QWidget& window, const Session& session, const run::LiveRun& run, const QString& unit) {
    if (const QString why = WhyNoTest(session.Document(), run); !why.isEmpty()) {
        Tell(&window, why);
        return {};
    }
    bool given = false;
    const QString name =
        QInputDialog::getText(
            &window, TrTestFile("Save as test"), TrTestFile("What the test shows:"), QLineEdit::Normal,
            TrTestFile("goes to %1").arg(StateText(session.Document(), run.State())), &given)
            .simplified();
    const QString path = given && !name.isEmpty() ? ChooseTestFile(window, session) : QString();
    if (path.isEmpty())
        return {};
    std::string former;
    if (QFileInfo::exists(path)) {
        std::optional<std::string> bytes = ReadTests(window, path);
        if (!bytes)
            return {};
        former = *std::move(bytes);
    }
    const std::vector<run::RunStep> steps = StepsUpTo(*run.Past());
    const std::string bytes = run::WithTest(
        former, run::RecordTest(session.Document(), {steps, run.Given(), name.toStdString(), UnitTime(unit),
                                                     std::nullopt, run.Read()}));
    if (const QString slip = FirstSlip(bytes, session, path); !slip.isEmpty()) {
        Tell(&window,
             TrTestFile("The test was not saved, because the file would not be understood any more.\n%1")
                 .arg(slip),
             QMessageBox::Warning);
        return {};
    }
    if (!WriteTests(window, path, bytes))
        return {};
    return TrTestFile("The test \"%1\" is in %2 now.").arg(name, QFileInfo(path).fileName());
}

QString ChooseTourFile(QWidget& window, const Session& session) {
    const QString beside = TestFileBeside(session);
    const QString offered = beside.isEmpty() ? QStringLiteral("tour.ztest")
                                             : beside.chopped(int(std::string_view(".ztest").size())) +
                                                   QLatin1String("-tour.ztest");
    return QFileDialog::getSaveFileName(&window, TrTestFile("Save the tour"), offered,
                                        TrTestFile("Tests (*.ztest)"));
}

QString SaveTour(QWidget& window, const Session& session, const run::Tour& tour, const QString& path) {
    std::optional<std::string> machine;
    if (!session.Path().empty() && path != TestFileBeside(session))
        machine =
            QFileInfo(path).dir().relativeFilePath(QString::fromStdString(session.Path())).toStdString();
    if (!WriteTests(window, path, run::TourFile(tour, machine)))
        return {};
    QStringList said{
        TrTestFile("%1: %2").arg(QFileInfo(path).fileName(), QString::fromStdString(run::TourSummary(tour)))};
    if (tour.StepsRanOut)
        said += TrTestFile("the rest needs more steps than were allowed");
    const std::vector<std::string> gaps = run::TourGaps(tour, session.Document());
    if (!gaps.empty())
        said += QString::fromStdString(gaps.front());
    if (gaps.size() > 1)
        said += TrTestFile("and %1 more").arg(gaps.size() - 1);
    return said.join(QLatin1String("; "));
}

} // namespace orvane
