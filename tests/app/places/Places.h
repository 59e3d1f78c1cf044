// SPDX-License-Identifier: GPL-3.0-or-later
// Where things stand on the screen, by their names, for tests that use real mouse and keys on the whole
// program. A name is
//
//   NAME              a control, window, menu or menu item by its object name
//   NAME/ROW/COLUMN   a cell of the table of that name, scrolled into view
//   NAME#CAPTION      the tab with that caption
//   NAME*             a control once it has the focus
//   NAME=TEXT         a label, field or button while TEXT is what it shows
//
// Only what is visible and enabled in the window in front, or in the menu that is open over it, stands
// anywhere. A window that is still on its way has no place yet.
#pragma once

#include <QRect>
#include <QString>

namespace orvane::test {

// In pixels of the screen; empty when there is no such thing to be pressed now.
QRect PlaceOf(const QString& name);

} // namespace orvane::test
