#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The whole way with the installed program: whole-way-under-xvfb.sh CMAKE BUILD-FOLDER. Status 77: it cannot be run here.
set -euo pipefail
cmake=$1
build=$2

# shellcheck source-path=SCRIPTDIR source=../support/by-name.sh
. "$(dirname "${BASH_SOURCE[0]}")/../support/by-name.sh"
# shellcheck source-path=SCRIPTDIR source=whole-way.sh
. "$(dirname "${BASH_SOURCE[0]}")/whole-way.sh"

home=$work/home
document=$home/pump.zfsm
journals=$work/state/orvane/recovery

make_desktop() {
    mkdir -p "$work/bin"
    # shellcheck disable=SC2016 # for the script
    printf '#!/bin/sh\nexec "%s" "${1#file://}"\n' "$work/tool" >"$work/bin/xdg-open"
    chmod +x "$work/bin/xdg-open"
}

start_program() {
    (cd "$home" && exec env PATH="$work/bin:$PATH" HOME="$home" XDG_CONFIG_HOME="$work/config" \
        XDG_STATE_HOME="$work/state" XDG_RUNTIME_DIR="$work" APPDATA="$home" SOURCE_DATE_EPOCH=0 QT_QPA_PLATFORM=xcb \
        QT_STYLE_OVERRIDE=Fusion "${places[@]}" "$work/orvane/bin/orvane" "$@" 2>"$work/orvane.log") &
    started+=("$!")
}

orvanec() { (cd "$home" && SOURCE_DATE_EPOCH=0 exec "$work/orvane/bin/orvanec" "$@"); }

to_file() {
    in_field fileNameEdit "$home/$1"
    press Return
    in_table
}

start_display
by_name "$build"
make_desktop
"$cmake" --install "$build" --prefix "$work/orvane" >/dev/null
the_whole_way
echo "passed"
