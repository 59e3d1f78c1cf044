// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace orvane {

// What belongs to the machine as a whole. Texts are ANSI bytes with CR LF line ends.
struct GeneralCode {
    std::string FsmName; // prefix of all generated labels
    std::string HeaderComment;
    std::string CodeSeg;
    std::string InitSeg;
    std::string NvEm0Data;
    std::string TestSeg;
    std::string Instances; // a whole number or a symbol; how many instances of each timer there are
    bool LaunchSeg = true; // emit the segment with RunTasksForever
    std::string BuildFile; // path of the builder script

    bool operator==(const GeneralCode&) const = default;
};

} // namespace orvane
