// SPDX-License-Identifier: GPL-3.0-or-later
// The snapshot image of a document: one string, kept in memory for undo and to tell whether the document is
// modified, and in the journal. It is no format for documents: it drops what undo need not bring back.
//
// Two kinds of item. A number is one character whose code is the number, 0..255. A text is the text followed
// by the delimiter; it cannot hold the delimiter, which would break the order of the fields behind it.
//
//   '0'                                             the format
//   55 101                                          rows and columns of the table
//   row Name Code Tooltip                           for each row 4..54 that holds an event
//   0
//   state Name Tooltip EntryCode ExitCode TimeConst TimingVar TimerId TimingMode
//     row target Action                             for each row 4..54 whose cell is not empty
//     0 0                                           these three lines for each state that is not empty
//   0
//   FsmName CodeSeg HeaderComment InitSeg NvEm0Data TestSeg LaunchSeg Instances
//
// Every number is one character and every text a bare run, so that an image is about as long as the texts and
// one pass makes it. Column widths, last tabs, row heights, the view options and the builder script's path
// are how the document is looked at, not what is designed: they are left out and undo leaves them alone.
#pragma once

#include "core/FsmDocument.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// A timing mode outside 0..255 is packed as 255, which nothing that reads a mode knows either.
std::string Pack(const FsmDocument& document);

// Makes the document's events, states and general code those of the image and leaves everything else as it
// is. Returns what went wrong, empty for an image that Pack made. An image of another format changes nothing;
// a text without its delimiter reads as empty, which is told once; a number out of bounds ends the unpacking
// where it stands.
[[nodiscard]] std::vector<std::string> Unpack(std::string_view image, FsmDocument& document);

// Takes the text before the first delimiter off the buffer, and the delimiter with it. When there is none the
// text is empty and the buffer stays as it was.
std::string_view TakeStringField(std::string_view& buffer);

} // namespace orvane
