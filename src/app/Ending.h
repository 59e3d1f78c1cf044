// SPDX-License-Identifier: GPL-3.0-or-later
// The program is ended from outside: by the session manager, which may let it ask, or by a signal, which does
// not.
#pragma once

#include <QObject>

namespace orvane {

class frmTable;

// What the session manager is answered when the user logs out: false stops that. Asks when it may; when it
// may not, nothing is stopped and nothing is lost, because the journal has all of it. The window stays:
// somebody else may stop the logout.
bool MayLogOut(frmTable& window, bool mayAsk);

// Turns the signals that end a program, and the session manager's request, into an end in order: what is not
// saved stays in the journal for the next start. The window outlives this.
class Ending : public QObject {
    Q_OBJECT

  public:
    explicit Ending(frmTable& window);
    ~Ending() override;

  private:
    void ListenToSessionManager();
    void ListenToSignals();
    void EndBySignal(int number);

    frmTable& window_;
};

} // namespace orvane
