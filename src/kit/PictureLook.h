// SPDX-License-Identifier: GPL-3.0-or-later
// How a machine's picture is painted: in which colours, with what marked in it, how large it is shown.
#pragma once

#include "core/Cell.h"
#include "core/TableGeometry.h"
#include "diagram/HitTest.h"

#include <QColor>

#include <bitset>
#include <optional>

namespace orvane {

struct PictureColours {
    QColor Ground;
    QColor Box;
    QColor BoxLine;
    QColor Ink;      // texts, and the signs before them
    QColor FadedInk; // of what is not reached
    QColor Line;
    QColor Error;   // ground of its sign
    QColor Warning; // ground of its sign
    QColor SignInk; // on both
    QColor Running; // where the machine is
    QColor Current; // where the user is
};

// For screens with a light theme, for paper and for files.
PictureColours LightPicture();
PictureColours DarkPicture();

// What is marked in a picture beside what it shows by itself. All of it is optional.
struct PictureMarks {
    std::optional<StateNumber> Running; // the state that the machine is in
    std::optional<std::size_t> Taken;   // the edge that was taken last
    diagram::Hit Current;               // where the user is in the table: framed
    diagram::Hit Focus;                 // where the keys are: framed by dots
    std::bitset<kTableColumns> Faulty;  // states with an error
    std::bitset<kTableColumns> Warned;  // and with a warning
};

struct PictureLook {
    PictureColours Colours = LightPicture();
    PictureMarks Marks = {};
    // Pixels of the screen for one of the picture: what would be too small to be read is left out. Paper and
    // files show everything.
    double Zoom = 1;
};

} // namespace orvane
