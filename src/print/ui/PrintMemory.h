// SPDX-License-Identifier: GPL-3.0-or-later
// What is asked for at print, remembered for each document in a file beside the settings. Nothing of it goes
// into a document.
#pragma once

#include <QPageLayout>
#include <QString>

namespace orvane {

struct PrintNames {
    QString Revision;
    QString Prepared;
    QString Checked;
    QString Approved;
};

// Nothing was remembered of a document without a file.
PrintNames RememberedNames(const QString& documentPath);
void RememberNames(const QString& documentPath, const PrintNames& names);

// The paper that was last printed on; before the first time what the country uses.
QPageLayout RememberedPaper();
void RememberPaper(const QPageLayout& paper);

} // namespace orvane
