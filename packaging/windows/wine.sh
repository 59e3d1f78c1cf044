# shellcheck shell=bash disable=SC2154 # work, started: of xvfb.sh
# SPDX-License-Identifier: GPL-3.0-or-later
# A machine of its own for Windows programs under wine. To be sourced behind tests/support/xvfb.sh, before start_display: wine
# keeps the display that it began with.

export WINEDEBUG=-all LC_ALL=C.UTF-8 WINEPREFIX=$work/wine WINEDLLOVERRIDES='mscoree,mshtml='
wine=/usr/lib/wine/wine64
# shellcheck disable=SC2034 # of xvfb.sh; the first program on a new machine takes its time
patience=90
# shellcheck disable=SC2034 # for the caller
user=$WINEPREFIX/drive_c/users/$(id -un)/AppData

# Wine's own processes outlive the program for a while.
end_wine() {
    /usr/lib/wine/wineserver64 -k || true
    /usr/lib/wine/wineserver64 -w || true
    clean_up
}
trap end_wine EXIT

new_machine() { "$wine" wineboot --init >/dev/null 2>&1; }

on_windows() { # a path of this machine as wine has it
    local path=Z:$1
    echo "${path//\//\\}"
}

# opens_with COMMAND ENDING...: a script of this machine is what such files are registered for; it gets a path of Windows.
opens_with() {
    local handler ending
    handler=$(on_windows "$1")
    {
        printf 'REGEDIT4\n\n[HKEY_CLASSES_ROOT\\OrvaneTest\\shell\\open\\command]\n@="%s \\"%%1\\""\n' "${handler//\\/\\\\}"
        for ending in "${@:2}"; do
            printf '[HKEY_CLASSES_ROOT\\.%s]\n@="OrvaneTest"\n' "$ending"
        done
    } >"$work/handler.reg"
    "$wine" regedit "$work/handler.reg"
}
