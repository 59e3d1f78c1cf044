// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace orvane {

// What the program was started with.
struct CommandLine {
    QString DocumentPath; // empty when none is named
    bool NoSplash = false;
};

// Reads the arguments behind the program's name as one line. A drive path (C:\...) or a network path (\\...)
// is a document with all that follows it; of anything else the document is what "/nosplash" leaves over.
CommandLine ParseCommandLine(const QStringList& arguments);

} // namespace orvane
