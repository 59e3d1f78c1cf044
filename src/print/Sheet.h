// SPDX-License-Identifier: GPL-3.0-or-later
// A page as it is painted. All lengths are twips of paper, 1440 to an inch, from the upper left corner of
// what can be printed on.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvane::print {

// What texts are set in.
enum class Face { Title, Heading, Body, Bold, Small, Code };
inline constexpr int kFaces = 6;

struct Text {
    int X = 0; // of its first letter
    int Y = 0; // of the top of its line
    Face Set = Face::Body;
    std::string Utf8;
};

struct Line {
    int X1 = 0;
    int Y1 = 0;
    int X2 = 0;
    int Y2 = 0;
};

struct Box {
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;
};

// A box that is filled, behind the texts.
enum class Shade { Light, Dark };
struct Ground {
    Box Where;
    Shade How = Shade::Light;
};

// What can be printed on.
struct Paper {
    int Width = 0;
    int Height = 0;
};

// What there is of the machine as a picture.
struct Picture {
    Paper Size;          // where nothing makes it smaller; none when there is nothing to draw
    bool IsWhole = true; // else it shows only what is around the first state
};

// A part of the machine's picture, in twips of its full size, and the box that it fills.
struct PicturePart {
    Box Part;
    Box Where;
};

struct Sheet {
    std::vector<Ground> Grounds;
    std::vector<Line> Lines;
    std::vector<Text> Texts;
    std::optional<PicturePart> Shown; // of the machine's picture
};

} // namespace orvane::print
