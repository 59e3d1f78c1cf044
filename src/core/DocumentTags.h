// SPDX-License-Identifier: GPL-3.0-or-later
// The words of the document format. A field is the delimiter, "<", the tag, ">", the value, the delimiter and
// "/".
#pragma once

#include <string_view>

namespace orvane {

inline constexpr std::string_view kTagOpen = "\xA4<";
inline constexpr std::string_view kTagClose = ">";
inline constexpr std::string_view kValueEnd = "\xA4/";

namespace tag {

inline constexpr std::string_view kFsmName = "FSM_NAME";
inline constexpr std::string_view kPolytask = "POLYTASK";
inline constexpr std::string_view kShowTimeTarget = "SHOWTIMETARGET";
inline constexpr std::string_view kShowTimingMode = "SHOWTIMINGMODE";
inline constexpr std::string_view kShowElse = "SHOWELSE";
inline constexpr std::string_view kBuildFile = "BUILDFILE";
inline constexpr std::string_view kLaunchSeg = "LAUNCHSEG";
inline constexpr std::string_view kCodeSeg = "CODESEG";
inline constexpr std::string_view kHeaderComment = "HEADERCOMMENT";
inline constexpr std::string_view kInitSeg = "INITSEG";
inline constexpr std::string_view kNvEm0Data = "NVEM0DATA";
inline constexpr std::string_view kTestSeg = "TESTSEG";
inline constexpr std::string_view kInstances = "INSTANCES";
inline constexpr std::string_view kCol0Width = "COL0W";

inline constexpr std::string_view kRowVisible = "ROWVISIBLE";
inline constexpr std::string_view kElse = "ELSE";
inline constexpr std::string_view kExitAction = "EXITACT";
inline constexpr std::string_view kTimingModeRow = "TIMEMODE";
inline constexpr std::string_view kTimeTargetRow = "TIMETARGET";
inline constexpr std::string_view kRowVisibleEnd = "/ROWVISIBLE";

inline constexpr std::string_view kEvent = "EVENT";
inline constexpr std::string_view kCode = "CODE";
inline constexpr std::string_view kEventEnd = "/EVENT";

inline constexpr std::string_view kState = "STATE";
inline constexpr std::string_view kName = "NAME";
inline constexpr std::string_view kTooltip = "TOOLTIP";
inline constexpr std::string_view kEntry = "ENTRY";
inline constexpr std::string_view kExit = "EXIT";
inline constexpr std::string_view kTimingMode = "TIMINGMODE";
inline constexpr std::string_view kTimeConst = "TIMECONST";
inline constexpr std::string_view kTimingVar = "TIMINGVAR";
inline constexpr std::string_view kTimerId = "TIMERID";
inline constexpr std::string_view kColWidth = "COLWIDTH";
inline constexpr std::string_view kOldColWidth = "WIDTH"; // read, never written
inline constexpr std::string_view kLastTab = "LASTTAB";   // read, never written
inline constexpr std::string_view kStateEnd = "/STATE";

inline constexpr std::string_view kTransitions = "TRANSITIONS";
inline constexpr std::string_view kTarget = "TRANS";
inline constexpr std::string_view kAction = "TACT";
inline constexpr std::string_view kTransitionsEnd = "/TRANSITIONS";

} // namespace tag

} // namespace orvane
