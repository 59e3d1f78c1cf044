// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QMenu;

namespace orvane {

// The documents opened or saved lately, as a menu.
class RecentFiles : public QObject {
    Q_OBJECT

  public:
    // Fills the menu each time the one that it hangs in comes up. Both outlive this.
    RecentFiles(QMenu& parent, QMenu& menu, QObject* owner);

  Q_SIGNALS:
    // The user wants this document.
    void OpenWanted(const QString& path);

  private:
    void Fill();

    QMenu& menu_;
};

} // namespace orvane
