#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Drives the built program as a user would: opens a document, types a target, saves it with Ctrl+S, closes the
# window. Usage: program-under-xvfb.sh BUILD-FOLDER. Status 77: it cannot be run here.
set -euo pipefail
build=$1

# shellcheck source-path=SCRIPTDIR source=../support/by-name.sh
. "$(dirname "${BASH_SOURCE[0]}")/../support/by-name.sh"

# A machine of one state with one event; the byte A4 (octal 244) is the delimiter.
{
    printf '\244<FSM_NAME>PMP\244/\r\n\244<EVENT>6:\244/\r\n  \244<NAME>Start\244/\r\n  \244<CODE>;start?\244/\r\n\244</EVENT>\244/\r\n'
    printf '\244<STATE>1:\244/\r\n  \244<NAME>Idle\244/\r\n  \244<COLWIDTH>945\244/\r\n\244</STATE>\r\n\r\n'
} >"$work/pump.zfsm"

start_display
by_name "$build"
cd "$work"
env "${places[@]}" APPDATA="$work" XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work" QT_QPA_PLATFORM=xcb \
    "$build/bin/orvane" "$work/pump.zfsm" 2>"$work/orvane.log" &
program=$!
started+=("$program")
await_table '^pump.zfsm - Orvane V'

step "typing a target"
type_target 6 1 1
await "the mark in the title" title_starts '*pump.zfsm'
step "saving"
press ctrl+s
await "the saved document" title_starts 'pump.zfsm'
grep -a -q '<TRANS>6:1' pump.zfsm || fail "the target is not in the document"
grep -a -q 'PMP_Idle_Set1:' pump.zls || fail "the program was not written"
step "closing"
kill -0 "$program" || fail "the program is gone"
press alt+F4
wait "$program" || fail "the program ended with status $?"
echo passed
