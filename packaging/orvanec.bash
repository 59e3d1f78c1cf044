# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of orvanec's command line in bash.

# The documents, and the folders on the way to them, that begin with what was typed.
_orvanec_documents() {
    local IFS=$'\n' typed=$1
    compopt -o filenames 2>/dev/null
    COMPREPLY+=($(compgen -f -X '!*.[zZ][fF][sS][mM]' -- "$typed") $(compgen -d -- "$typed"))
}

_orvanec() {
    local typed=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb=
    [ "$COMP_CWORD" -gt 1 ] && verb=${COMP_WORDS[1]}
    COMPREPLY=()
    # bash makes a word of its own of the "=" in --format=json.
    [ "$typed" = = ] && typed=
    [ "$before" = = ] && before=${COMP_WORDS[COMP_CWORD - 2]}

    case $verb:$before in
        check:--format) COMPREPLY=($(compgen -W 'text json' -- "$typed")) && return ;;
        generate:-o | generate:--output | format:-o | format:--output)
            local IFS=$'\n'
            compopt -o filenames 2>/dev/null
            COMPREPLY=($(compgen -f -- "$typed"))
            return
            ;;
    esac
    case $verb:$typed in
        :-*) COMPREPLY=($(compgen -W '--help --version' -- "$typed")) ;;
        :*) COMPREPLY=($(compgen -W 'generate check format' -- "$typed")) ;;
        check:-*) COMPREPLY=($(compgen -W '--format --help' -- "$typed")) ;;
        generate:-* | format:-*) COMPREPLY=($(compgen -W '--output --help' -- "$typed")) ;;
        *) _orvanec_documents "$typed" ;;
    esac
}

complete -F _orvanec orvanec
