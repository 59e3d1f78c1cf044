// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DocumentWriter.h"

#include "core/DocumentTags.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <string_view>

namespace orvane {

namespace {

constexpr std::string_view kTopLevel = "";
constexpr std::string_view kInSection = "  ";
constexpr std::string_view kInCellList = "    ";

std::string_view BooleanText(bool value) { return value ? "True" : "False"; }

class Writer {
  public:
    explicit Writer(const FsmDocument& document) : document_(document) {}

    std::string Write() {
        WriteGeneral();
        WriteRowHeights();
        for (const RowNumber row : EventRows())
            WriteEvent(row);
        for (const StateNumber state : StateNumbers())
            WriteState(state);
        return std::move(bytes_);
    }

  private:
    void WriteGeneral();
    void WriteRowHeights();
    void WriteEvent(RowNumber row);
    void WriteState(StateNumber number);
    void WriteCells(const StateRecord& state);
    bool IsStored(const StateRecord& record) const {
        return !IsEmpty(record) || record.ColWidth != document_.DefaultColumnWidth();
    }

    // A line that opens or closes something and carries no value.
    void Marker(std::string_view indent, std::string_view tag) {
        bytes_.append(indent).append(kTagOpen).append(tag).append(">").append(kLineEnd);
    }
    template <typename... Pieces>
    void Field(std::string_view indent, std::string_view tag, const Pieces&... value) {
        bytes_.append(indent).append(kTagOpen).append(tag).append(">");
        (bytes_.append(std::string_view(value)), ...);
        bytes_.append(kValueEnd).append(kLineEnd);
    }
    void FieldUnlessEmpty(std::string_view tag, std::string_view value) {
        if (!value.empty())
            Field(kInSection, tag, value);
    }

    const FsmDocument& document_;
    std::string bytes_;
};

void Writer::WriteGeneral() {
    const GeneralCode& general = document_.General;
    const ViewOptions& view = document_.View;
    Field(kTopLevel, tag::kFsmName, general.FsmName);
    Field(kTopLevel, tag::kPolytask, BooleanText(view.Polytask));
    Field(kTopLevel, tag::kShowTimeTarget, BooleanText(view.ShowTimeTarget));
    Field(kTopLevel, tag::kShowTimingMode, BooleanText(view.ShowTimingMode));
    Field(kTopLevel, tag::kShowElse, BooleanText(view.ShowElse));
    Field(kTopLevel, tag::kBuildFile, general.BuildFile);
    Field(kTopLevel, tag::kLaunchSeg, general.LaunchSeg ? "1" : "0");
    Field(kTopLevel, tag::kCodeSeg, general.CodeSeg);
    Field(kTopLevel, tag::kHeaderComment, general.HeaderComment);
    Field(kTopLevel, tag::kInitSeg, general.InitSeg);
    Field(kTopLevel, tag::kNvEm0Data, general.NvEm0Data);
    Field(kTopLevel, tag::kTestSeg, general.TestSeg);
    Field(kTopLevel, tag::kInstances, general.Instances);
    Field(kTopLevel, tag::kCol0Width, NumberText(view.Col0Width.Count()));
    // The format holds this field twice; readers keep the last one.
    Field(kTopLevel, tag::kPolytask, BooleanText(view.Polytask));
}

void Writer::WriteRowHeights() {
    const RowHeights& heights = document_.View.RowVisible;
    Field(kTopLevel, tag::kRowVisible);
    Field(kInSection, tag::kElse, NumberText(heights.Else.Count()));
    Field(kInSection, tag::kExitAction, NumberText(heights.ExitAction.Count()));
    Field(kInSection, tag::kTimingModeRow, NumberText(heights.TimingMode.Count()));
    Field(kInSection, tag::kTimeTargetRow, NumberText(heights.TimeTarget.Count()));
    Field(kTopLevel, tag::kRowVisibleEnd);
}

void Writer::WriteEvent(RowNumber row) {
    const EventRecord& event = document_.Event(row);
    if (IsEmpty(event))
        return;
    Field(kTopLevel, tag::kEvent, NumberText(row.Number()), ":");
    FieldUnlessEmpty(tag::kName, event.Name);
    FieldUnlessEmpty(tag::kTooltip, event.Tooltip);
    FieldUnlessEmpty(tag::kCode, event.Code);
    Field(kTopLevel, tag::kEventEnd);
}

void Writer::WriteState(StateNumber number) {
    const StateRecord& state = document_.State(number);
    if (!IsStored(state))
        return;
    Field(kTopLevel, tag::kState, NumberText(number.Number()), ":");
    FieldUnlessEmpty(tag::kName, state.Name);
    FieldUnlessEmpty(tag::kTooltip, state.Tooltip);
    FieldUnlessEmpty(tag::kEntry, state.EntryCode);
    // The format holds the exit code twice; readers keep the last one.
    FieldUnlessEmpty(tag::kExit, state.ExitCode);
    FieldUnlessEmpty(tag::kExit, state.ExitCode);
    if (state.TimingMode != 0)
        Field(kInSection, tag::kTimingMode, NumberText(state.TimingMode));
    FieldUnlessEmpty(tag::kTimeConst, state.TimeConst);
    FieldUnlessEmpty(tag::kTimingVar, state.TimingVar);
    FieldUnlessEmpty(tag::kTimerId, state.TimerId);
    Field(kInSection, tag::kColWidth, NumberText(state.ColWidth.Count()));
    WriteCells(state);
    Marker(kTopLevel, tag::kStateEnd);
}

void Writer::WriteCells(const StateRecord& state) {
    bool listOpen = false;
    const auto cellField = [&](std::string_view tag, RowNumber row, std::string_view value) {
        if (!listOpen)
            Marker(kInSection, tag::kTransitions);
        listOpen = true;
        Field(kInCellList, tag, NumberText(row.Number()), ":", value);
    };
    for (const RowNumber row : CellRows()) {
        if (state.Targets[row] != kNoState)
            cellField(tag::kTarget, row, NumberText(state.Targets[row].Number()));
        if (!state.Actions[row].empty())
            cellField(tag::kAction, row, state.Actions[row]);
    }
    if (listOpen)
        Field(kInSection, tag::kTransitionsEnd);
}

} // namespace

std::string WriteDocument(const FsmDocument& document) { return Writer(document).Write(); }

} // namespace orvane
