# SPDX-License-Identifier: GPL-3.0-or-later
# The rules that scripts/layers checks; reads the source files and prints each include that breaks one.
BEGIN {
    # Which engines an engine may use beside its own. The ui folder of a subsystem may use the same ones, and
    # the two at the bottom.
    uses["core"] = ""
    uses["aids"] = ""
    uses["codegen"] = "core"
    uses["table"] = "core"
    uses["build"] = "core"
    uses["editors"] = "core codegen aids"
    bottom = "core aids"

    # The controls that any ui folder may take from another one. Windows meet in src/app.
    shared["editors/ui/CodePane.h"]
    shared["aids/ui/frmMyToolTip.h"]
    shared["aids/ui/OpenInDesktop.h"]
}

function complain(why) {
    printf "%s:%d: %s: %s\n", FILENAME, FNR, header, why
    failed = 1
}

function lists(words, word) {
    return index(" " words " ", " " word " ") > 0
}

# core/ui holds what every part of the desktop stands on, and windows, which are nobody else's.
function is_shared(name) {
    return name in shared || name ~ /^core\/ui\// && name !~ /\/frm/
}

function of_qt(name) {
    return name ~ /^Q[A-Z]/ || name ~ /^Qsci\// || name ~ /^(qt6\/)?[Qq][A-Za-z]*(\/|\.h$)/
}

# Where the file stands: its tree, its subsystem (or app, cli), and whether it is of the desktop.
FNR == 1 {
    count = split(FILENAME, path, "/")
    tree = path[1]
    subsystem = count > 2 ? path[2] : ""
    desktop = subsystem == "app" || FILENAME ~ /\/ui\//
}

/^[ \t]*#[ \t]*include[ \t]*[<"]/ {
    header = $0
    sub(/^[ \t]*#[ \t]*include[ \t]*/, "", header)
    quoted = header ~ /^"/
    sub(/^[<"]/, "", header)
    sub(/[>"].*$/, "", header)

    if (of_qt(header)) {
        if (!desktop)
            complain("Qt belongs to the ui folders and src/app")
        next
    }

    split(header, part, "/")
    target = part[1]
    of_program = target in uses || target == "app" || target == "cli"
    target_desktop = target == "app" || header ~ /^[a-z]+\/ui\//

    if (header ~ /(^|\/)\.\.?\//)
        complain("write the path from src/")
    else if (tree != "src") {
        if (!desktop && target_desktop)
            complain("only tests of the desktop use the desktop")
    } else if (!quoted && of_program)
        complain("our own headers stand in quotes")
    else if (quoted && !of_program) {
        if (!(desktop && header ~ /\.moc$/))
            complain("write the path from src/")
    } else if (!of_program || target == subsystem && (desktop || !target_desktop) || desktop && is_shared(header))
        next
    else if (target == "app" || target == "cli")
        complain("nothing includes a program")
    else if (subsystem == "app")
        next
    else if (target_desktop)
        complain(desktop ? "windows of two subsystems meet only in src/app" : "an engine does not use the desktop")
    else if (subsystem != "cli" && !lists(uses[subsystem], target) && !(desktop && lists(bottom, target)))
        complain("the " subsystem " subsystem does not use " target)
}

END { exit failed }
