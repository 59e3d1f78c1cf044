// SPDX-License-Identifier: GPL-3.0-or-later
// What is drawn upon the cells of the table, in colours that are seen on light cells and on dark ones.
#pragma once

#include <QColor>

namespace orvane {

struct GridLook {
    QRgb Line;   // between the cells
    QRgb Cursor; // the frame of the current cell
    QRgb Chosen; // what chosen cells are mixed with; no cell comes near it
    QRgb Action;

    // Of a running machine.
    QRgb Takeable;
    QRgb LastTaken;
    QRgb QuietNote;
    QRgb QuietNoteText;
    QRgb Note;
    QRgb NoteText;

    // Of findings. A mark that is hollow has the ground inside.
    QRgb Error;
    QRgb Warning;
    QRgb Advice;
    QRgb Hollow;
};

inline constexpr GridLook kLightLook{
    .Line = qRgb(176, 176, 176),
    .Cursor = qRgb(0, 0, 0),
    .Chosen = qRgb(120, 170, 240),
    .Action = qRgb(160, 60, 0),
    .Takeable = qRgb(0, 64, 160),
    .LastTaken = qRgb(0, 110, 50),
    .QuietNote = qRgb(224, 224, 224),
    .QuietNoteText = qRgb(0, 0, 0),
    .Note = qRgb(0, 0, 0),
    .NoteText = qRgb(255, 255, 255),
    .Error = qRgb(192, 0, 0),
    .Warning = qRgb(200, 110, 0),
    .Advice = qRgb(0, 64, 160),
    .Hollow = qRgb(255, 255, 255),
};

inline constexpr GridLook kDarkLook{
    .Line = qRgb(88, 88, 88),
    .Cursor = qRgb(255, 255, 255),
    .Chosen = qRgb(70, 130, 220),
    .Action = qRgb(255, 160, 80),
    .Takeable = qRgb(150, 190, 255),
    .LastTaken = qRgb(90, 220, 130),
    .QuietNote = qRgb(64, 64, 64),
    .QuietNoteText = qRgb(235, 235, 235),
    .Note = qRgb(235, 235, 235),
    .NoteText = qRgb(0, 0, 0),
    .Error = qRgb(255, 96, 96),
    .Warning = qRgb(255, 176, 64),
    .Advice = qRgb(150, 190, 255),
    .Hollow = qRgb(30, 30, 30),
};

} // namespace orvane
