// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace orvane {

// Esc and Ctrl+W close the window, or the pane of the main window that has the focus in it. A dialog has Esc
// already. A field that has a use of its own for Esc comes first.
void AddCloseKeys(QWidget& window);

// Closes it as those keys do: from a pane the focus goes to the table.
void CloseByKey(QWidget& window);

} // namespace orvane
