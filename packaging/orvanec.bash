# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of orvanec's command line in bash.

# The documents, and the folders on the way to them, that begin with what was typed.
_orvanec_documents() {
    local IFS=$'\n' typed=$1
    compopt -o filenames 2>/dev/null
    COMPREPLY+=($(compgen -f -X '!*.[zZ][fF][sS][mM]' -- "$typed") $(compgen -d -- "$typed"))
}

# The same with files of tests.
_orvanec_tests() {
    local IFS=$'\n' typed=$1
    _orvanec_documents "$typed"
    COMPREPLY+=($(compgen -f -X '!*.[zZ][tT][eE][sS][tT]' -- "$typed"))
}

_orvanec() {
    local typed=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb=
    [ "$COMP_CWORD" -gt 1 ] && verb=${COMP_WORDS[1]}
    COMPREPLY=()
    # bash makes a word of its own of the "=" in --format=json.
    [ "$typed" = = ] && typed=
    [ "$before" = = ] && before=${COMP_WORDS[COMP_CWORD - 2]}

    case $verb:$before in
        generate:--format | check:--format)
            COMPREPLY=($(compgen -W 'text gcc json sarif' -- "$typed"))
            return
            ;;
        find:--format) COMPREPLY=($(compgen -W 'text json' -- "$typed")) && return ;;
        generate:--output-dir)
            local IFS=$'\n'
            compopt -o filenames 2>/dev/null
            COMPREPLY=($(compgen -d -- "$typed"))
            return
            ;;
        generate:-j | generate:--jobs | check:-j | check:--jobs | format:-j | format:--jobs) return ;;
        check:--project)
            local IFS=$'\n'
            compopt -o filenames 2>/dev/null
            COMPREPLY=($(compgen -f -X '!*.[bB]1[dD]' -- "$typed") $(compgen -d -- "$typed"))
            return
            ;;
        diff:--format) COMPREPLY=($(compgen -W 'text json html' -- "$typed")) && return ;;
        diff:--same | diff:--different | merge:--path) return ;;
        diagram:--format) COMPREPLY=($(compgen -W 'svg dot' -- "$typed")) && return ;;
        export:--format)
            COMPREPLY=($(compgen -W 'html markdown csv csv-long json dot mermaid plantuml scxml' -- "$typed"))
            return
            ;;
        import:--format) COMPREPLY=($(compgen -W 'json csv scxml' -- "$typed")) && return ;;
        diagram:--direction) COMPREPLY=($(compgen -W 'lr td' -- "$typed")) && return ;;
        git:git) COMPREPLY=($(compgen -W 'enable' -- "$typed")) && return ;;
        test:--reading)
            COMPREPLY=($(compgen -W 'at-limit after-limit unstarted-since-power-on unstarted-expired' -- "$typed"))
            return
            ;;
        test:--filter | test:-j | test:--jobs | explore:--from | explore:--to | tour:--limit | diagram:--focus) return ;;
        generate:-o | generate:--output | generate:--depfile | format:-o | format:--output | test:--junit | test:--markdown | \
            simulate:--csv | simulate:--vcd | tour:-o | tour:--output | diagram:-o | diagram:--output | export:-o | export:--output | import:-o | import:--output | merge:-o | merge:--output)
            local IFS=$'\n'
            compopt -o filenames 2>/dev/null
            COMPREPLY=($(compgen -f -- "$typed"))
            return
            ;;
    esac
    case $verb:$typed in
        :-*) COMPREPLY=($(compgen -W '--help --version' -- "$typed")) ;;
        :*) COMPREPLY=($(compgen -W 'generate check format find test simulate explore tour diagram export import diff show merge conflicts git' -- "$typed")) ;;
        check:-*)
            COMPREPLY=($(compgen -W '--advice --format --help --jobs --project --quiet --werror' -- "$typed")) ;;
        generate:-*)
            COMPREPLY=($(compgen -W '--advice --depfile --format --help --if-changed --jobs --output
                --output-dir --quiet --werror' -- "$typed"))
            ;;
        format:-*) COMPREPLY=($(compgen -W '--check --help --jobs --output' -- "$typed")) ;;
        find:-*) COMPREPLY=($(compgen -W '--format --help --ignore-case --regex --word' -- "$typed")) ;;
        test:-*)
            COMPREPLY=($(compgen -W '--coverage --filter --help --jobs --json --junit --list --markdown
                --notes-fail --reading --rename --strict --update' -- "$typed"))
            ;;
        simulate:-*) COMPREPLY=($(compgen -W '--csv --help --vcd' -- "$typed")) ;;
        tour:-*)
            COMPREPLY=($(compgen -W '--empty-cells --help --limit --output --together' -- "$typed")) ;;
        diagram:-*)
            COMPREPLY=($(compgen -W '--direction --focus --format --help --no-else --output' -- "$typed")) ;;
        export:-*) COMPREPLY=($(compgen -W '--format --help --no-safe --output --safe' -- "$typed")) ;;
        import:-*) COMPREPLY=($(compgen -W '--format --help --output' -- "$typed")) ;;
        import:*)
            local IFS=$'\n'
            compopt -o filenames 2>/dev/null
            COMPREPLY=($(compgen -f -- "$typed"))
            ;;
        diff:-*) COMPREPLY=($(compgen -W '--different --format --help --no-view --same' -- "$typed")) ;;
        show:-*) COMPREPLY=($(compgen -W '--help --textconv' -- "$typed")) ;;
        merge:-*) COMPREPLY=($(compgen -W '--help --ours --output --path --theirs' -- "$typed")) ;;
        conflicts:-*) COMPREPLY=($(compgen -W '--help' -- "$typed")) ;;
        git:-*) COMPREPLY=($(compgen -W '--global --help --yes' -- "$typed")) ;;
        git:*) ;;
        explore:-*) COMPREPLY=($(compgen -W '--from --help --json --to' -- "$typed")) ;;
        test:* | simulate:*) _orvanec_tests "$typed" ;;
        *) _orvanec_documents "$typed" ;;
    esac
}

complete -F _orvanec orvanec
