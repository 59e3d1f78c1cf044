# shellcheck shell=bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Real mouse and keys on a display of its own, for tests of the whole program. To be sourced: needs Xvfb, openbox, xdotool
# and ImageMagick, and leaves with 77 where one of them is missing. What a test starts it adds to `started`; its files
# go into $work. ORVANE_SCREENSHOT names a file for the picture of what a failed test saw last.

for tool in Xvfb openbox xdotool import; do
    command -v $tool >/dev/null || {
        echo "skipped: there is no $tool here"
        exit 77
    }
done

work=$(mktemp -d)
started=()
end_started() {
    for process in "${started[@]}"; do kill "$process" 2>/dev/null || true; done
}
clean_up() {
    end_started
    rm -rf "$work"
}
trap clean_up EXIT

fail() {
    echo "FAILED: $*"
    echo "on the screen: $(xdotool search --onlyvisible --name . getwindowname %@ 2>&1 | paste -sd'|')"
    echo "running: $(jobs -r | sed 's/.*Running *//' | paste -sd'|')"
    [ -s "$work/orvane.log" ] && cat "$work/orvane.log"
    [ -n "${ORVANE_SCREENSHOT-}" ] && import -window root "$ORVANE_SCREENSHOT"
    exit 1
}

step() { echo "-- $*"; }

patience=20 # seconds
# await WHAT COMMAND...: nothing here sleeps for luck; each step waits for what it has brought about.
await() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "$SECONDS" -lt "$end" ] || fail "waited in vain for $what"
        sleep 0.05
    done
}

start_display() {
    exec 3<>"$work/number"
    # Without -noreset it begins anew when its last client goes, and drops the one that is just coming.
    Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp -noreset 2>"$work/Xvfb.log" &
    started+=($!)
    await "a display" test -s "$work/number"
    DISPLAY=:$(head -1 "$work/number")
    export DISPLAY
    openbox >/dev/null 2>&1 &
    started+=($!)
    await "the window manager" xdotool getwindowfocus
}

titled() { xdotool search --onlyvisible --name "$1"; }
gone() { ! titled "$1"; }
focused() { xdotool getwindowfocus getwindowname 2>/dev/null | grep -q -- "$1"; }
window_of() { xdotool search --onlyvisible --name "$1" | head -1; }

press() { xdotool key --delay 20 "$@"; }
write() { xdotool type --delay 15 -- "$1"; }

# click WINDOW X Y [BUTTON]: a negative number counts from the right or from below.
click() {
    local x=$2 y=$3 size
    size=$(xdotool getwindowgeometry --shell "$1")
    [ "$x" -ge 0 ] || x=$((x + $(sed -n 's/^WIDTH=//p' <<<"$size")))
    [ "$y" -ge 0 ] || y=$((y + $(sed -n 's/^HEIGHT=//p' <<<"$size")))
    xdotool mousemove --window "$1" "$x" "$y" click "${4:-1}"
}

# dialog TITLE: waits for it and leaves its window in `dialog`.
dialog() {
    await "the dialog '$1'" focused "$1"
    # shellcheck disable=SC2034 # for the caller
    dialog=$(window_of "$1")
}

# The heights of menus and rows go with the font: the pale blue of the heads and the pale green below it tell them, in
# column 2, because the frame around the chosen cell stands in column 1.
measure_table() {
    local heights
    heights=$(import -window "$table" -crop 1x120+200+0 txt:- | awk -F'[,:]' '
        /CCFFFF|CCCCFFFFFFFF/ && !top { top = $2 } /CCFFCC|CCCCFFFFCCCC/ && !next_row { next_row = $2 }
        END { print top, next_row - top }')
    read -r TOP ROW_HEIGHT <<<"$heights"
    [ "${ROW_HEIGHT:-0}" -gt 5 ]
}

in_table() { await "the table in front" focused ' - Orvane V'; }

# find_table TITLE: waits until it stands there, painted and in front.
find_table() {
    await "the table" titled "$1"
    table=$(window_of "$1")
    in_table
    await "the painted table" measure_table
}

title_is() { [ "$(xdotool getwindowname "$table")" = "$1" ]; }
title_starts() { [[ $(xdotool getwindowname "$table") == "$1"* ]]; }

# A menu of the bar is opened with the mouse, its item chosen with the keys.
choose() { # X DOWNS
    click "$table" "$1" 8
    # shellcheck disable=SC2046
    press $(printf 'Down %.0s' $(seq "$2")) Return
}

# Rows are counted as they are seen, the head being 0; columns are 63 pixels wide, column 0 is 126.
click_cell() { click "$table" $(($2 == 0 ? 60 : 97 + $2 * 63)) $((TOP + $1 * ROW_HEIGHT + ROW_HEIGHT / 2)) "${3:-1}"; }

type_target() { # ROW COLUMN TARGET
    click_cell "$1" "$2"
    write "$3"
    press Return
}
