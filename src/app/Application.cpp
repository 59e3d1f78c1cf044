// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

#include "kit/UserMessageBox.h"
#include "kit/Utf8String.h"

#include <utility>

namespace orvane {

void TellFault(std::string_view what) {
    static bool telling = false; // a fault while one is being told would never end
    if (std::exchange(telling, true))
        return;
    const QString cause = FromUtf8(what);
    Tell(
        QApplication::activeWindow(),
        QApplication::translate(
            "Application",
            "Orvane could not do that, because of a fault in the program: %1.\r\n\r\nThe last command may be "
            "done in part; Undo takes it back. What you have drawn is still here. Save it under another "
            "name, "
            "and please report what you did.")
            .arg(cause),
        QMessageBox::Critical);
    telling = false;
}

} // namespace orvane
