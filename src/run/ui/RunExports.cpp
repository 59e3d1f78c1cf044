// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/RunExports.h"

#include "files/FileWriter.h"
#include "files/NativeFiles.h"
#include "kit/FilePath.h"
#include "kit/UserMessageBox.h"
#include "run/TestTimes.h"
#include "run/TraceOfRun.h"
#include "run/TraceVcd.h"
#include "run/ui/TestFileAccess.h"
#include "session/Session.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>

namespace orvane {

namespace {

QString TrExport(const char* text) { return QCoreApplication::translate("RunExports", text); }

// Asks for the file, the document's name with this ending first.
QString ChooseFile(QWidget& window, const Session& session, const QString& ending, const QString& filter) {
    QString offered = QFileInfo(QString::fromStdString(session.Path())).completeBaseName();
    if (offered.isEmpty())
        offered = QStringLiteral("run");
    const QString folder = QFileInfo(QString::fromStdString(session.Path())).path();
    return QFileDialog::getSaveFileName(&window, TrExport("Save the run"),
                                        folder + QLatin1Char('/') + offered + ending, filter);
}

void Save(QWidget& window, const QString& path, std::string_view bytes) {
    NativeFiles files;
    const WrittenFile written = WriteFile(files, NativePath(path), {bytes});
    if (written.Failure)
        Tell(&window,
             TrExport("%1 was not saved: %2.").arg(QFileInfo(path).fileName(), Message(*written.Failure)),
             QMessageBox::Warning);
}

} // namespace

void SavePicture(QWidget& window, const Session& session, const QPixmap& picture) {
    const QString path = ChooseFile(window, session, QStringLiteral(".png"), TrExport("Pictures (*.png)"));
    if (path.isEmpty())
        return;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "PNG"))
        return Tell(&window, TrExport("The picture could not be made."), QMessageBox::Warning);
    Save(window, path, {bytes.constData(), std::size_t(bytes.size())});
}

void SaveVcd(QWidget& window, const Session& session, const run::LiveRun& run, const QString& unit) {
    if (run.State() == kNoState)
        return Tell(&window, TrExport("There is nothing to save before power on."));
    const QString path =
        ChooseFile(window, session, QStringLiteral(".vcd"), TrExport("Value change dumps (*.vcd)"));
    if (path.isEmpty())
        return;
    run::RunTrace trace = run::TraceOfRun(session.Document(), *run.Built(), *run.Past());
    run::TimeScale scale;
    if (const std::optional<run::TestTime> time = UnitTime(unit); time && !scale.Set(*time))
        trace.Unit = scale.Unit();
    Save(window, path, run::TraceVcd(trace, session.Document(), *run.Built()));
}

} // namespace orvane
