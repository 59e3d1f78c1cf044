// SPDX-License-Identifier: GPL-3.0-or-later
#include "aids/ui/OpenInDesktop.h"

#include "aids/ui/WebAddresses.h"

#include <QDesktopServices>
#include <QShortcut>
#include <QWidget>

namespace orvane {

bool OpenInDesktop(const QUrl& address) { return QDesktopServices::openUrl(address); }

bool OpenHelpPage(int page) { return OpenInDesktop(HelpPage(page)); }

void AddHelpKey(QWidget& window, int page) {
    auto* key = new QShortcut(QKeySequence(Qt::Key_F1), &window);
    QObject::connect(key, &QShortcut::activated, &window, [page] { OpenHelpPage(page); });
}

} // namespace orvane
