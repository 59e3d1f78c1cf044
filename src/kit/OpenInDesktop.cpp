// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/OpenInDesktop.h"

#include "kit/WebAddresses.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QKeyEvent>
#include <QShortcut>
#include <QToolTip>
#include <QWidget>

namespace orvane {

namespace {

// In passing: whoever pressed a key too many has nothing to close.
void TellThatNothingOpened(QWidget& window, int page) {
    const QString text =
        QCoreApplication::translate("OpenInDesktop", "The help page could not be opened: %1");
    QToolTip::showText(window.mapToGlobal(window.rect().center()), text.arg(ShownAddress(HelpPage(page))),
                       &window);
}

} // namespace

bool OpenInDesktop(const QUrl& address) { return QDesktopServices::openUrl(address); }

QString ShownAddress(const QUrl& address) {
    return address.isLocalFile() ? QDir::toNativeSeparators(address.toLocalFile())
                                 : address.toDisplayString();
}

bool OpenHelpPage(int page) { return OpenInDesktop(HelpPage(page)); }

void AddHelpKey(QWidget& window, int page) {
    auto* key = new QShortcut(QKeySequence(Qt::Key_F1), &window);
    QObject::connect(key, &QShortcut::activated, &window, [&window, page] {
        if (!OpenHelpPage(page))
            TellThatNothingOpened(window, page);
    });
}

bool TakesHelpKey(QEvent& event, int page) {
    const bool isKey = event.type() == QEvent::ShortcutOverride || event.type() == QEvent::KeyPress;
    const auto* key = isKey ? dynamic_cast<QKeyEvent*>(&event) : nullptr;
    if (key == nullptr || key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
        return false;
    event.accept(); // taken before it becomes the main window's shortcut
    if (event.type() == QEvent::KeyPress)
        OpenHelpPage(page);
    return true;
}

} // namespace orvane
