// SPDX-License-Identifier: GPL-3.0-or-later
// Every field of every record, told once. A new field is a member of its record and a line here; a member
// without a line does not compile.
#pragma once

#include "core/DocumentTags.h"
#include "core/EventRecord.h"
#include "core/GeneralCode.h"
#include "core/RecordField.h"
#include "core/StateRecord.h"
#include "core/ViewOptions.h"

namespace orvane {

// clang-format off
inline constexpr auto kEventFields = std::tuple(
    MakeField("name",    &EventRecord::Name,    {.Tag = tag::kName,    .Place = 1}, 1),
    MakeField("code",    &EventRecord::Code,    {.Tag = tag::kCode,    .Place = 3}, 2),
    MakeField("comment", &EventRecord::Tooltip, {.Tag = tag::kTooltip, .Place = 2}, 3),
    MakeField("last tab", &EventRecord::LastTab, {}));

inline constexpr auto kStateFields = std::tuple(
    MakeField("name",          &StateRecord::Name,       {.Tag = tag::kName,       .Place = 1}, 1),
    MakeField("comment",       &StateRecord::Tooltip,    {.Tag = tag::kTooltip,    .Place = 2}, 2),
    MakeField("entry action",  &StateRecord::EntryCode,  {.Tag = tag::kEntry,      .Place = 3}, 3),
    MakeField("exit action",   &StateRecord::ExitCode,   {.Tag = tag::kExit,       .Place = 4, .SecondPlace = 5}, 4),
    MakeField("timeout mode",  &StateRecord::TimingMode, {.Tag = tag::kTimingMode, .Place = 6}, 8),
    MakeCellFields("transition", &StateRecord::Targets, "transition action", &StateRecord::Actions),
    MakeField("constant time limit", &StateRecord::TimeConst, {.Tag = tag::kTimeConst, .Place = 7}, 5),
    MakeField("variable time limit", &StateRecord::TimingVar, {.Tag = tag::kTimingVar, .Place = 8}, 6),
    MakeField("timer I.D.",    &StateRecord::TimerId,    {.Tag = tag::kTimerId,    .Place = 9}, 7),
    MakeField("column width",  &StateRecord::ColWidth,
              {.Tag = tag::kColWidth, .Place = 10, .EvenEmpty = true, .OldTag = tag::kOldColWidth}),
    MakeField("last tab",      &StateRecord::LastTab,    {.Tag = tag::kLastTab}));

// The fields of the machine as a whole and those of its view stand in the file as one sequence.
inline constexpr auto kGeneralFields = std::tuple(
    MakeField("name",         &GeneralCode::FsmName,       {.Tag = tag::kFsmName,       .Place = 1,  .EvenEmpty = true}, 1),
    MakeField("header",       &GeneralCode::HeaderComment, {.Tag = tag::kHeaderComment, .Place = 9,  .EvenEmpty = true}, 3),
    MakeField("CODESEG",      &GeneralCode::CodeSeg,       {.Tag = tag::kCodeSeg,       .Place = 8,  .EvenEmpty = true}, 2),
    MakeField("INITSEG",      &GeneralCode::InitSeg,       {.Tag = tag::kInitSeg,       .Place = 10, .EvenEmpty = true}, 4),
    MakeField("NVEM0DATA",    &GeneralCode::NvEm0Data,     {.Tag = tag::kNvEm0Data,     .Place = 11, .EvenEmpty = true}, 5),
    MakeField("TESTSEG",      &GeneralCode::TestSeg,       {.Tag = tag::kTestSeg,       .Place = 12, .EvenEmpty = true}, 6),
    MakeField("instances",    &GeneralCode::Instances,     {.Tag = tag::kInstances,     .Place = 13, .EvenEmpty = true}, 8),
    MakeField("LAUNCHSEG",    &GeneralCode::LaunchSeg,
              {.Tag = tag::kLaunchSeg, .Place = 7, .EvenEmpty = true, .AsDigit = true}, 7),
    MakeField("builder script", &GeneralCode::BuildFile,   {.Tag = tag::kBuildFile,     .Place = 6,  .EvenEmpty = true}));

inline constexpr auto kViewFields = std::tuple(
    MakeField("Polytask",        &ViewOptions::Polytask,
              {.Tag = tag::kPolytask, .Place = 2, .SecondPlace = 15, .EvenEmpty = true}),
    MakeField("show timeout target", &ViewOptions::ShowTimeTarget, {.Tag = tag::kShowTimeTarget, .Place = 3, .EvenEmpty = true}),
    MakeField("show timeout mode",   &ViewOptions::ShowTimingMode, {.Tag = tag::kShowTimingMode, .Place = 4, .EvenEmpty = true}),
    MakeField("show ELSE",           &ViewOptions::ShowElse,       {.Tag = tag::kShowElse,       .Place = 5, .EvenEmpty = true}),
    MakeField("width of column 0",   &ViewOptions::Col0Width,      {.Tag = tag::kCol0Width,      .Place = 14, .EvenEmpty = true}),
    MakeBlockField("row heights", &ViewOptions::RowVisible));

inline constexpr auto kRowHeightFields = std::tuple(
    MakeField("height of ELSE",           &RowHeights::Else,       {.Tag = tag::kElse,          .Place = 1, .EvenEmpty = true}),
    MakeField("height of Exit Action",    &RowHeights::ExitAction, {.Tag = tag::kExitAction,    .Place = 2, .EvenEmpty = true}),
    MakeField("height of Timeout mode",   &RowHeights::TimingMode, {.Tag = tag::kTimingModeRow, .Place = 3, .EvenEmpty = true}),
    MakeField("height of Timeout target", &RowHeights::TimeTarget, {.Tag = tag::kTimeTargetRow, .Place = 4, .EvenEmpty = true}));
// clang-format on

// What belongs to the machine as a whole; PartOf is the record that has the field.
inline constexpr auto kMachineFields = std::tuple_cat(kGeneralFields, kViewFields);

template <typename Document, typename Value>
auto& PartOf(Document& document, const Field<GeneralCode, Value>&) {
    return document.General;
}
template <typename Document, typename Value>
auto& PartOf(Document& document, const Field<ViewOptions, Value>&) {
    return document.View;
}

static_assert(MembersInTable(kEventFields) == MemberCount<EventRecord>());
static_assert(MembersInTable(kStateFields) == MemberCount<StateRecord>());
static_assert(MembersInTable(kGeneralFields) == MemberCount<GeneralCode>());
static_assert(MembersInTable(kViewFields) == MemberCount<ViewOptions>());
static_assert(MembersInTable(kRowHeightFields) == MemberCount<RowHeights>());

} // namespace orvane
