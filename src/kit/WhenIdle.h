// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>

namespace orvane {

// Waits until the user does nothing in the program, so that what comes up then takes no key or press that was
// meant for something else: no key and no button for a second, none held, and no box or menu open.
class WhenIdle : public QObject {
    Q_OBJECT

  public:
    static constexpr int kQuiet = 1'000; // milliseconds

    explicit WhenIdle(QObject* parent);

  Q_SIGNALS:
    // Sent once.
    void Idle();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void LookAgain();

    QTimer quiet_;
    QSet<int> keysDown_;
};

// Does this once the user does nothing; never when the owner is gone by then. For boxes that nobody has asked
// for: one that answers a command comes at once.
template <typename Act>
void OnceIdle(QObject& owner, Act act) {
    auto* waiting = new WhenIdle(&owner);
    QObject::connect(waiting, &WhenIdle::Idle, &owner, [waiting, act] {
        waiting->deleteLater();
        act();
    });
}

} // namespace orvane
