// SPDX-License-Identifier: GPL-3.0-or-later
// The picture for who does not see it: each state and each edge is a child of the widget, with its name, its
// place and an action that chooses it.
#pragma once

namespace orvane {

class picDiagram;

// Once is enough; the next times do nothing.
void AddPictureAccess();
// The picture has other states and edges now.
void TellPictureChanged(picDiagram& picture);
// The keys are at another one.
void TellPictureFocus(picDiagram& picture);

} // namespace orvane
