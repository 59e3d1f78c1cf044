// SPDX-License-Identifier: GPL-3.0-or-later
#include "SampleDocuments.h"

#include <cstdint>
#include <string>

#include "core/TimingMode.h"
#include "text/NumberText.h"

namespace orvane {

namespace {

void FillGeneral(GeneralCode& general) {
    general.FsmName = "PLT";
    general.HeaderComment = "; Control of the plant.\r\n; One machine, made to be measured.";
    general.CodeSeg = "OpenValve:\r\n\tSet\tvalve\r\n\tReturn\r\nCloseValve:\r\n\tClear\tvalve\r\n\tReturn";
    general.InitSeg = "\tClear\tvalve";
    general.NvEm0Data = "plantState:\tdefByte\t0";
    general.Instances = "1";
}

void FillEvent(EventRecord& event, int row) {
    const std::string number = NumberText(row);
    event.Name = "Input " + number + " rises";
    event.Code = "\tLoad\tinput" + number + "\r\n\tTest\tinput" + number;
    event.Tooltip = "The input " + number + " has become true";
}

void FillTiming(StateRecord& state, int number) {
    state.TimingMode = number % 2 == 0 ? kStartConstant : kStartVariable;
    state.TimeConst = NumberText(number * 10);
    state.TimingVar = "\tfLoad\tlimit" + NumberText(number);
    state.TimerId = number % 4 == 0 ? "" : "T" + NumberText(number % 4);
    state.Targets[kTimeoutRow] = 1;
}

void FillState(StateRecord& state, int number, int states, int events) {
    const std::string text = NumberText(number);
    state.Name = "Step" + text;
    state.Tooltip = "The plant is in step " + text;
    state.EntryCode = "\tLoad\tstep\r\n\tStore\tdisplay\r\n\tCall\tOpenValve";
    state.ExitCode = "\tCall\tCloseValve";
    FillTiming(state, number);
    for (int row = kFirstEventRow; row < kFirstEventRow + events; ++row) {
        state.Targets[row] = static_cast<std::int16_t>((number + row) % states + 1);
        state.Actions[row] =
            "\tLoad\tvalue" + NumberText(row) + "\r\n\tAdd\tstep" + text + "\r\n\tStore\tresult";
    }
}

} // namespace

FsmDocument SampleDocument(int states, int events) {
    FsmDocument document;
    document.View.Polytask = true;
    FillGeneral(document.General);
    for (int row = kFirstEventRow; row < kFirstEventRow + events; ++row)
        FillEvent(document.Event(row), row);
    for (int number = 1; number <= states; ++number)
        FillState(document.State(number), number, states, events);
    return document;
}

FsmDocument MidSizeDocument() { return SampleDocument(20, 15); }

FsmDocument DocumentAtTheLimit() { return SampleDocument(kStateCount, kLastRow - kFirstEventRow + 1); }

FsmDocument MachineOfLines(int states, int lines) {
    FsmDocument document;
    document.General.FsmName = "M";
    std::uint64_t random = 1;
    const auto below = [&](int limit) {
        random = random * 6364136223846793005u + 1442695040888963407u;
        return int((random >> 33) % std::uint64_t(limit));
    };
    for (const RowNumber row : EventRows()) {
        document.Event(row).Name = "Event " + std::to_string(row.Number() - kFirstEventRow);
        document.Event(row).Code = ";?";
    }
    for (int state = 1; state <= states; ++state) {
        document.State(state).Name = "State " + std::to_string(state);
        document.State(state).Targets[kElseRow] = state % states + 1;
    }
    for (int line = states; line < lines; ++line) {
        const int from = below(states) + 1;
        const int to = below(10) == 0 ? below(states) + 1 : (from + below(9) + states - 4) % states + 1;
        document.State(from).Targets[kFirstEventRow + line % 49] = to;
    }
    return document;
}

} // namespace orvane
