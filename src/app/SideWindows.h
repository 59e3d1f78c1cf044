// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/DocumentSession.h"

#include <QObject>

#include <functional>
#include <memory>

namespace orvane {

class frmBackTrack;
class frmBuilder;

// The windows that stay open beside the table. Each is made when it is first wanted and kept, hidden when it
// is closed. None of them belongs to the main window's own windows, so that the table can be in front of
// them.
class SideWindows : public QObject {
    Q_OBJECT

  public:
    // The session outlives this. The generator writes the program and returns whether it did.
    SideWindows(DocumentSession& session, const std::function<bool()>& generator);
    ~SideWindows() override;

    void ShowBuilder();
    void BuildAndTest();
    void BackTrack(int state);

    void DocumentChanged();
    void DocumentReplaced();
    void DocumentRenamed();

    void HideAll();

  private:
    frmBuilder& Builder();

    DocumentSession& session_;
    std::function<bool()> generator_;
    std::unique_ptr<frmBackTrack> frmBackTrack_;
    std::unique_ptr<frmBuilder> frmBuilder_;
};

} // namespace orvane
