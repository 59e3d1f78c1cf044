# shellcheck shell=bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Real mouse and keys on things that are asked for by their names (tests/app/places/Places.h says which they have). To be
# sourced: by_name BUILD-FOLDER before the program is started with the environment in `places`.

# shellcheck source-path=SCRIPTDIR source=xvfb.sh
. "$(dirname "${BASH_SOURCE[0]}")/xvfb.sh"

by_name() {
    place_of=$1/bin/place_of
    # shellcheck disable=SC2034 # for the caller
    places=(ORVANE_PLACES="$work/places" QT_QPA_GENERIC_PLUGINS=orvaneplaces QT_PLUGIN_PATH="$1/plugins" QT_SCALE_FACTOR=1)
}

# there NAME: whether it can be pressed now; leaves its place in `place`.
there() { place=$("$place_of" "$work/places" "$1"); }

# rests NAME: whether it stands where it stood when this was asked last.
rests() {
    local before=$place
    there "$1" && [ "$place" = "$before" ]
}

# click_on NAME [BUTTON]: waits until it can be pressed and stands still, and presses it in its middle.
click_on() {
    local x y width height
    place=
    await "$1 in the window in front" rests "$1"
    read -r x y width height <<<"$place"
    xdotool mousemove $((x + width / 2)) $((y + height / 2)) click "${2:-1}"
}

in_table() { await "the table in front" there MSFlexGrid1; }

# await_table TITLE: waits until it stands there and in front, and leaves its window in `table`.
await_table() {
    await "the table" titled "$1"
    # shellcheck disable=SC2034 # for the caller
    table=$(window_of "$1")
    in_table
}

# A cell by the row and the column that the document knows it by: row 0 is the head, events begin at row 6.
click_cell() { click_on "MSFlexGrid1/$1/$2" "${3:-1}"; }

type_target() { # ROW COLUMN TARGET
    click_cell "$1" "$2"
    await "the field of the cell" there 'txtCellEdit*'
    write "$3"
    press Return
}

# choose MENU ITEM: of the bar.
choose() {
    click_on "$1"
    click_on "$2"
}

# A window manager may hold a press back until it has thought about it, and the keys overtake it.
focus_on() {
    click_on "$1"
    await "the focus in $1" there "$1*"
}

# in_pane NAME TEXT: into an empty one.
in_pane() {
    focus_on "$1"
    write "$2"
}

# in_field NAME TEXT: in place of what the field holds.
in_field() {
    focus_on "$1"
    press ctrl+a
    write "$2"
}
