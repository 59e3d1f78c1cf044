#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The whole way as a user goes it, with real mouse and keys on the installed program: a pump is drawn from an empty table,
# generated, its fault is read and mended, it is saved, closed, opened again, changed, undone and built. The program it
# leaves is compared to the byte. Usage: whole-way-under-xvfb.sh CMAKE BUILD-FOLDER. Status 77: it cannot be run here.
set -euo pipefail
cmake=$1
build=$2

for tool in Xvfb openbox xdotool import; do
    command -v $tool >/dev/null || {
        echo "skipped: there is no $tool here"
        exit 77
    }
done

work=$(mktemp -d)
started=()
clean_up() {
    for process in "${started[@]}"; do kill "$process" 2>/dev/null || true; done
    rm -rf "$work"
}
trap clean_up EXIT

fail() {
    echo "FAILED: $*"
    [ -s "$work/orvane.log" ] && cat "$work/orvane.log"
    [ -n "${ORVANE_SCREENSHOT-}" ] && import -window root "$ORVANE_SCREENSHOT"
    exit 1
}

step() { echo "-- $*"; }

# await WHAT COMMAND...: nothing here sleeps for luck; each step waits for what it has brought about.
await() {
    local what=$1 end=$((SECONDS + 20))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "$SECONDS" -lt "$end" ] || fail "waited in vain for $what"
        sleep 0.05
    done
}

titled() { xdotool search --onlyvisible --name "$1"; }
gone() { ! titled "$1"; }
focused() { xdotool getwindowfocus getwindowname 2>/dev/null | grep -q -- "$1"; }

press() { xdotool key --delay 20 "$@"; }
write() { xdotool type --delay 15 -- "$1"; }

window_of() { xdotool search --onlyvisible --name "$1" | head -1; }

# click WINDOW X Y [BUTTON]: a negative number counts from the right or from below.
click() {
    local x=$2 y=$3 size
    size=$(xdotool getwindowgeometry --shell "$1")
    [ "$x" -ge 0 ] || x=$((x + $(sed -n 's/^WIDTH=//p' <<<"$size")))
    [ "$y" -ge 0 ] || y=$((y + $(sed -n 's/^HEIGHT=//p' <<<"$size")))
    xdotool mousemove --window "$1" "$x" "$y" click "${4:-1}"
}

# Rows are counted as they are seen, the head being 0; columns are 63 pixels wide, column 0 is 126.
click_cell() { click "$table" $(($2 == 0 ? 60 : 97 + $2 * 63)) $((TOP + $1 * ROW_HEIGHT + ROW_HEIGHT / 2)) "${3:-1}"; }

# The heights of menus and rows go with the font: the pale blue of the heads and the pale green below it tell them.
measure_table() {
    local heights
    heights=$(import -window "$table" -crop 1x120+150+0 txt:- | awk -F'[,:]' '
        /CCFFFF|CCCCFFFFFFFF/ && !top { top = $2 } /CCFFCC|CCCCFFFFCCCC/ && !next_row { next_row = $2 }
        END { print top, next_row - top }')
    read -r TOP ROW_HEIGHT <<<"$heights"
    [ "${ROW_HEIGHT:-0}" -gt 5 ]
}

start_display() {
    exec 3<>"$work/number"
    Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 2>"$work/Xvfb.log" &
    started+=($!)
    await "a display" test -s "$work/number"
    DISPLAY=:$(head -1 "$work/number")
    export DISPLAY
    openbox >/dev/null 2>&1 &
    started+=($!)
    await "the window manager" xdotool getwindowfocus
}

# What the program hands to the desktop is written down instead.
make_desktop() {
    mkdir -p "$work/bin" "$work/home"
    printf '#!/bin/sh\necho "$1" >>"%s/opened"\n' "$work" >"$work/bin/xdg-open"
    chmod +x "$work/bin/xdg-open"
}

start_program() {
    (cd "$work/home" && exec env PATH="$work/bin:$PATH" HOME="$work/home" XDG_CONFIG_HOME="$work/config" \
        XDG_RUNTIME_DIR="$work" APPDATA="$work/home" SOURCE_DATE_EPOCH=0 QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1 \
        QT_STYLE_OVERRIDE=Fusion "$work/orvane/bin/orvane" "$@" 2>"$work/orvane.log") &
    program=$!
    started+=($program)
}

in_table() { await "the table in front" focused ' - Orvane V'; }
title_is() { [ "$(xdotool getwindowname "$table")" = "$1" ]; }

# dialog TITLE: waits for it and leaves its window in `dialog`.
dialog() {
    await "the dialog '$1'" focused "$1"
    dialog=$(window_of "$1")
}

type_target() { # ROW COLUMN TARGET
    click_cell "$1" "$2"
    write "$3"
    press Return
}

define_event() { # ROW NAME CODE
    click_cell "$1" 0
    dialog 'Event Definition'
    [ -z "$3" ] || write "$3"
    click "$dialog" 200 20
    press ctrl+a
    write "$2"
    press Return
    in_table
}

draw_machine() {
    step "naming the machine"
    click_cell 0 0
    dialog 'General code'
    click "$dialog" 200 20
    write PMP
    press Return
    in_table

    step "two states, the second with a timeout"
    click_cell 0 1
    dialog 'State Definition'
    write ';idle entry'
    click "$dialog" 200 20
    write Idle
    press Return
    in_table
    click_cell 0 2
    dialog 'State Definition'
    write ';run entry'
    # The tab, "Start on entry", "Constant" and its field, as the dialog stands when it first comes up.
    click "$dialog" 230 50
    click "$dialog" 80 155
    click "$dialog" 305 131
    click "$dialog" -120 187
    write 100
    click "$dialog" 200 20
    write Run
    press Return
    in_table

    step "two events, the second still without code"
    # The timing rows have come up with the timeout: heads, actions, timeout mode and target, then the events.
    define_event 4 Start ';start?'
    define_event 5 Stop ''

    step "transitions and an action"
    type_target 4 1 2
    type_target 5 2 1
    type_target 3 2 1
    click_cell 5 2 3
    press Down Right Return
    dialog 'Transition action'
    click "$dialog" 100 100
    write ';stop action'
    click "$dialog" -135 -20
    in_table
}

# The name is asked for when there is none yet; from then on the program is written after every change.
save_as() {
    press ctrl+s
    dialog 'Save As'
    press ctrl+a
    write "$1"
    press Return
    in_table
}

wrote() { grep -aqF -- "$1" "$work/home/pump.zls"; }
title_starts() { [[ $(xdotool getwindowname "$table") == "$1"* ]]; }

start_display
make_desktop
"$cmake" --install "$build" --prefix "$work/orvane" >/dev/null
step "starting the installed program without a document"
start_program /nosplash
await "the table" titled ' - Orvane V'
table=$(window_of ' - Orvane V')
in_table
await "the painted table" measure_table
draw_machine
step "saving"
save_as "$work/home/pump.zfsm"
await "the saved document" title_starts 'pump.zfsm - Orvane V'
[ ! -e "$work/home/pump.zls" ] || fail "a design with an error was written"

# A menu of the bar is opened with the mouse, its item chosen with the keys.
choose() { # X DOWNS
    click "$table" "$1" 8
    # shellcheck disable=SC2046
    press $(printf 'Down %.0s' $(seq "$2")) Return
}

step "generating, and reading the report"
choose 97 2
dialog 'Generated code'
press alt+F4
await "the generator to close" gone 'Generated code'
report=$("$work/orvane/bin/orvanec" check "$work/home/pump.zfsm" || true)
[ "$report" = $'Errors and warnings\n** Error ** Missing event test code in row 7\n**** 1 Errors ****' ] ||
    fail "the report is: $report"

step "mending the fault"
define_event 5 Stop ';stop?'
await "the program" wrote ';stop?'

step "saving, closing and opening again"
press ctrl+s
await "the saved document" title_is "$(xdotool getwindowname "$table" | sed 's/^\*//')"
press alt+F4
await "the program to end" gone ' - Orvane V'
start_program "$work/home/pump.zfsm"
await "the table" titled '^pump.zfsm - Orvane V'
table=$(window_of '^pump.zfsm - Orvane V')
in_table
await "the painted table" measure_table

step "a change, and undo"
type_target 4 2 1
await "the changed program" title_starts '*pump.zfsm'
press ctrl+z
await "the undone change" title_starts 'pump.zfsm'

step "building"
choose 97 4
await "the builder script in the desktop" grep -q 'pump.b1d' "$work/opened"
[ -s "$work/home/pump.b1d" ] || fail "the builder script was not written"

printf '%s\r\n' ';PMP code generated by Orvane 01/01/1970 00:00:00' ";By Orvane from $work/home/pump.zfsm:" '' '' \
    'PMP_Idle_Set1:' ';idle entry' 'PMP_Idle_1:' ';start?' $'\tGoifT\tPMP_Run_Set2' $'\tGoTo\tPMP_Idle_1' '' \
    'PMP_Run_Set2:' ';run entry' $'\tSTStart\tPMP_Timer' 'PMP_Run_2:' ';stop?' $'\tGoIfF\tPMP_2_0' ';stop action' \
    $'\tGoTo\tPMP_Idle_Set1' 'PMP_2_0:' $'\tSTTest\tPMP_Timer,100' $'\tGoIfF\tPMP_Idle_Set1' $'\tGoTo\tPMP_Run_2' '' \
    $'PMP_Timer:\tdefTIME24' '' >"$work/expected.zls"
cmp "$work/home/pump.zls" "$work/expected.zls" || fail "the program differs: $(diff "$work/home/pump.zls" "$work/expected.zls")"
press alt+F4
echo "passed"
