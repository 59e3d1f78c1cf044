#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Drives the built program as a user would: opens a document, types a target, saves it with Ctrl+S, closes the
# window. Usage: program-under-xvfb.sh PROGRAM. Exit status 77 says that it could not be run here.
set -u
program=$1
for tool in Xvfb xvfb-run xdotool; do
    command -v $tool >/dev/null || { echo "skipped: there is no $tool here"; exit 77; }
done
if [ -z "${ORVANE_UNDER_XVFB-}" ]; then
    ORVANE_UNDER_XVFB=1 exec xvfb-run -a -s "-screen 0 1280x800x24" "$0" "$program"
fi

folder=$(mktemp -d)
trap 'kill $pid 2>/dev/null; rm -rf "$folder"' EXIT
fail() { echo "failed: $1"; exit 1; }

# A machine of one state with one event; the byte A4 (octal 244) is the delimiter.
printf '\244<FSM_NAME>PMP\244/\r\n\244<EVENT>6:\244/\r\n  \244<NAME>Start\244/\r\n  \244<CODE>;start?\244/\r\n\244</EVENT>\244/\r\n' >"$folder/pump.zfsm"
printf '\244<STATE>1:\244/\r\n  \244<NAME>Idle\244/\r\n  \244<COLWIDTH>945\244/\r\n\244</STATE>\r\n\r\n' >>"$folder/pump.zfsm"

cd "$folder" || exit 1
APPDATA=$folder XDG_RUNTIME_DIR=$folder QT_QPA_PLATFORM=xcb "$program" "$folder/pump.zfsm" &
pid=$!
window=$(timeout 20 xdotool search --sync --onlyvisible --name '^pump.zfsm - Orvane V') || fail "no window came up"

# Column 0 is 126 pixels wide, column 1 is 63; menu bar and two rows of heads are above the first event.
xdotool windowfocus "$window"
eval "$(xdotool getwindowgeometry --shell "$window")"
y=90
while [ $y -gt 40 ]; do # the height of menus and rows goes with the font: look for the event from below
    xdotool mousemove $((X + 150)) $((Y + y)) click 1
    sleep 0.2
    xdotool type --delay 30 1
    xdotool key Return
    sleep 0.2
    case $(xdotool getwindowname "$window") in \**) break ;; esac
    y=$((y - 6))
done
case $(xdotool getwindowname "$window") in \**) ;; *) fail "typing changed nothing" ;; esac
xdotool key ctrl+s
sleep 0.5
[ "$(xdotool getwindowname "$window" | cut -c1-9)" = pump.zfsm ] || fail "the title still has its mark"
grep -a -q '<TRANS>6:1' pump.zfsm || fail "the target is not in the document"
grep -a -q 'PMP_Idle_Set1:' pump.zls || fail "the program was not written"
kill -0 $pid || fail "the program is gone"
xdotool windowclose "$window"
echo passed
