// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WrittenProgram.h"

#include "app/TableStatusBar.h"
#include "session/Session.h"
#include "text/SiblingPath.h"

#include <QFileInfo>

namespace orvane {

// The last rank: the generator has been told before.
WrittenProgram::WrittenProgram(Session& session, TableStatusBar& status)
    : session_(session), status_(status) {
    session.Observe(ObserverRank::Messages, *this);
}

void WrittenProgram::Told(const Change& change) {
    if (change.Kind == ChangeKind::Replaced)
        return status_.ShowProgram({});
    if (!RunsTheGenerator(change.Kind))
        return;
    const QString path = QString::fromStdString(ProgramFilePath(session_.Path()));
    const bool isWritten = session_.Program().Written && !session_.Path().empty();
    status_.ShowProgram(isWritten ? QFileInfo(path).fileName() : QString());
}

} // namespace orvane
