// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/EveryFieldDocument.h"

namespace orvane::test {

namespace {

GeneralCode General() {
    GeneralCode general;
    general.FsmName = "PMP";
    general.HeaderComment = ";pump\r\n;of the west wing";
    general.CodeSeg = "\tCode";
    general.InitSeg = "\tInit";
    general.NvEm0Data = "\tData";
    general.TestSeg = "\tTest";
    general.Instances = "4";
    general.LaunchSeg = false;
    general.BuildFile = "C:\\work\\pump.b1d";
    return general;
}

ViewOptions View() {
    ViewOptions view;
    view.Polytask = true;
    view.ShowTimeTarget = true;
    view.ShowTimingMode = true;
    view.ShowElse = true;
    view.Col0Width = 2400;
    view.RowVisible = {.Else = 225, .ExitAction = 240, .TimingMode = 255, .TimeTarget = 270};
    return view;
}

StateRecord Running() {
    StateRecord state;
    state.Name = "Running";
    state.Tooltip = "the motor is on";
    state.EntryCode = "\tOn";
    state.ExitCode = "\tOff";
    state.TimingMode = 4;
    state.TimeConst = "100";
    state.TimingVar = "\tLoad limit";
    state.TimerId = "T1";
    state.ColWidth = 1200;
    state.LastTab = 2;
    state.Targets[kTimeoutRow] = 1;
    state.Actions[kTimeoutRow] = ";too long";
    state.Targets[kElseRow] = 2;
    state.Actions[kElseRow] = ";else";
    state.Targets[kFirstEventRow] = 100;
    state.Actions[kLastRow] = ";first\r\n;second";
    return state;
}

} // namespace

FsmDocument EveryFieldDocument() {
    FsmDocument document;
    document.General = General();
    document.View = View();
    document.Event(kFirstEventRow) = {"start", ";start?", "the green button", 1};
    document.Event(kLastRow) = {"stop", ";stop?", "the red button", 2};
    document.State(1) = Running();
    document.State(100) = Running();
    document.State(100).Name = "Motor On \x80";
    return document;
}

} // namespace orvane::test
