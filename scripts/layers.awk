# SPDX-License-Identifier: GPL-3.0-or-later
# The rules that scripts/layers checks; reads the source files and prints each include that breaks one.
BEGIN {
    # Who may use whom beside itself; whatever is not named here has no place. The ui folder of a part is a
    # room: it may use its own engine and what rooms may.
    uses["text"] = ""
    uses["files"] = "text"
    uses["core"] = "text"
    uses["table"] = uses["codegen"] = uses["editors"] = uses["builder"] = uses["welcome"] = "core text"
    uses["review"] = "core text"
    uses["find"] = "core text table codegen"
    uses["run"] = uses["diagram"] = "core text codegen"
    uses["export"] = "core text codegen diagram"
    uses["print"] = "core text codegen export"
    uses["findings"] = "core text codegen run"
    uses["session"] = "core table files text"
    uses["recovery"] = uses["outside"] = "core text"
    uses["kit"] = "core text files diagram"
    room = "session core text files kit"
    engines = "core text files table codegen editors builder welcome find run findings diagram review export print outside"
    uses["cli"] = engines
    uses["app"] = engines " session kit"
}

function complain(why) {
    printf "%s:%d: %s: %s\n", FILENAME, FNR, header, why
    failed = 1
}

function lists(words, word) {
    return index(" " words " ", " " word " ") > 0
}

function of_qt(name) {
    return name ~ /^Q[A-Z]/ || name ~ /^Qsci\// || name ~ /^(qt6\/)?[Qq][A-Za-z]*(\/|\.h$)/
}

# Where the file stands: its tree, its part of the program, and whether it may know Qt.
FNR == 1 {
    count = split(FILENAME, path, "/")
    tree = path[1]
    own = count > 2 ? path[2] : ""
    is_room = FILENAME ~ /\/ui\//
    desktop = own == "app" || own == "kit" || is_room
}

/^[ \t]*#[ \t]*include[ \t]*[<"]/ {
    header = $0
    sub(/^[ \t]*#[ \t]*include[ \t]*/, "", header)
    quoted = header ~ /^"/
    sub(/^[<"]/, "", header)
    sub(/[>"].*$/, "", header)

    if (tree == "src" && own != "" && !(own in uses)) {
        complain("scripts/layers.awk does not say whom this part may use")
        next
    }
    if (of_qt(header)) {
        if (!desktop)
            complain("Qt belongs to the ui folders, src/kit and src/app")
        next
    }

    split(header, part, "/")
    target = part[1]
    of_program = target in uses
    target_room = header ~ /^[a-z]+\/ui\//
    target_desktop = target == "app" || target == "kit" || target_room

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
    } else if (!of_program || target == own && (desktop || !target_desktop))
        next
    else if (target == "app" || target == "cli")
        complain("nothing includes a program")
    else if (target_room && own != "app")
        complain(desktop ? "rooms meet only in src/app" : "an engine does not use the desktop")
    else if (target == "kit" && !desktop)
        complain("an engine does not use the desktop")
    else if (own == "app" && target_room)
        next
    else if (!lists(is_room ? room : uses[own], target))
        complain((is_room ? "a room" : "the " own " part") " does not use " target)
}

END { exit failed }
