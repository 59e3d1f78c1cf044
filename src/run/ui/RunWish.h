// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace orvane {

// What a button or key of the pane asks for.
enum class RunWish {
    PowerOn,
    Step,
    StepBack,
    StepForward,
    ToTimeout,
    ToChange,
    BringBack,
    SaveAsTest,
    RunTests,
    SavePicture,
    SaveVcd,
    ShowAgain // what is shown beside the run is another choice
};

} // namespace orvane
