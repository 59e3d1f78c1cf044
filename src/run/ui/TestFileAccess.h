// SPDX-License-Identifier: GPL-3.0-or-later
// The file of tests that belongs to a document, as the pane reads and writes it.
#pragma once

#include "run/LiveRun.h"
#include "run/TestText.h"
#include "run/Tour.h"

#include <QString>

#include <optional>
#include <string>

class QWidget;

namespace orvane {

class Session;

// Beside the document, by its name; empty for a document without a file.
QString TestFileBeside(const Session& session);

// The name of the document's file as messages tell it.
std::string DocumentFileName(const Session& session);

// A length of time as the pane gives it, "0.1 s", as a test says it; none for an empty text.
std::optional<run::TestTime> UnitTime(const QString& unit);

// The bytes of a file of tests; none when it cannot be read, which the user is told in a box.
std::optional<std::string> ReadTests(QWidget& window, const QString& path);

// Asks for the name of the test, and for the file where the document has none, and adds the run up to the
// moment shown. What the status bar tells of it comes back, empty when nothing was written.
QString SaveRunAsTest(QWidget& window, const Session& session, const run::LiveRun& run, const QString& unit);

// Where a tour is to go: beside the document, under a name of its own, unless the user says otherwise.
QString ChooseTourFile(QWidget& window, const Session& session);

// Writes the tour into a file of its own. What the status bar tells comes back, empty when nothing was
// written, which the user was told then.
QString SaveTour(QWidget& window, const Session& session, const run::Tour& tour, const QString& path);

} // namespace orvane
