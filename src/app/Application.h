// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

#include <exception>
#include <string_view>

namespace orvane {

// Tells the user of a fault in this program, with what he can do; everything drawn is still there.
void TellFault(std::string_view what);

// The application with a floor under its events: what a handler throws ends that one event and not the
// program, which would take the user's work with it.
class Application : public QApplication {
    Q_OBJECT

  public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        return Guarded([&] { return QApplication::notify(receiver, event); });
    }

    // What the call returns; false when it throws, and the user has been told.
    template <typename Call>
    static bool Guarded(Call&& call) {
        try {
            return call();
        } catch (const std::exception& fault) {
            TellFault(fault.what());
        } catch (...) {
            TellFault("an unknown fault");
        }
        return false;
    }
};

} // namespace orvane
