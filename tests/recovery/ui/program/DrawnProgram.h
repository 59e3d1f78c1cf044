// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace orvane::test {

// What is to be done in the program, and when it is killed: at a call that changes a file, or so long after
// it has told of a stroke; at the latest when it has nothing more to do.
struct Life {
    int From = 0; // strokes, as in Strokes.h
    int To = 0;
    bool Recovers = false;
    long KillAtCall = 0; // from 1; 0 is never
    std::optional<int> KillInStroke = std::nullopt;
    std::chrono::microseconds Delay{0};
};

// How it was left.
struct LifeEnd {
    int Stroke = -1; // the one that it told last
    bool IsThrough = false;
    bool EndedByItself = false;
};

// The program that is shipped, with what draws in it.
struct DrawnProgram {
    std::string Program;
    std::string Plugins;
    std::string KillLibrary;
    std::filesystem::path Folder; // with the document machine.zfsm, and all that it writes

    // Starts it, waits for what it tells, kills it.
    LifeEnd Live(const Life& life) const;
};

} // namespace orvane::test
