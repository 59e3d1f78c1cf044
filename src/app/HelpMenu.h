// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QMainWindow;
class QMenu;

namespace orvane {

// The menu behind the given ones: help pages, documents opened lately, and what this program is.
class HelpMenu : public QObject {
    Q_OBJECT

  public:
    explicit HelpMenu(QMainWindow* window);

  Q_SIGNALS:
    // The user wants this document from the list.
    void OpenWanted(const QString& path);

  private:
    void FillRecent();
    void ShowHelp();
    void ShowAbout();

    QMainWindow* window_;
    QMenu* mnuRecent;
};

} // namespace orvane
