#compdef orvanec
# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of orvanec's command line in zsh.

_orvanec() {
    local -a verbs report
    verbs=(
        'generate:write the controller program of each document'
        'check:report what is wrong with each design'
        'format:write documents as the editor would save them'
        'find:print where a text stands in documents'
        'test:run the tests of machines'
        'simulate:print what a machine does, step by step'
        'explore:tell what holds in all behaviours of a machine'
        'tour:write tests that take every transition'
        'diagram:draw a machine'
        'export:write a document in another form'
        'import:make a document of a file in another form'
        'diff:tell what leads from one document to another'
        'show:write a document as text'
        'merge:put two versions that came from one together'
        'conflicts:tell the conflicts that stand in documents'
        'git:make git compare and merge documents'
    )
    if ((CURRENT == 2)); then
        _arguments '--help[show how it is used]' '--version[show the version]' '1:verb:(("${verbs[@]}"))'
        return
    fi

    local verb=$words[2]
    local documents='*:document:_files -g "*.(#i)zfsm"'
    shift words
    ((CURRENT--))
    report=(
        '--format[how to report]:format:(text gcc json sarif)'
        '--advice[tell what explore finds, too]'
        '--quiet[say nothing when there is nothing to tell]'
        '--werror[warnings are errors]'
        "$documents"
    )
    case $verb in
        generate)
            _arguments '--help' $report '(-o --output)'{-o,--output}'[write to FILE]:file:_files' \
                '--if-changed[keep a program that would only get another date]' \
                '--output-dir[write all programs into DIR]:folder:_files -/' \
                '--depfile[write which program is made of which document]:file:_files' \
                '(-j --jobs)'{-j,--jobs}'[work on N documents at a time]:number'
            ;;
        check)
            _arguments '--help' $report '--project[look over the machines of a builder script]:script:_files -g "*.(#i)b1d"' \
                '(-j --jobs)'{-j,--jobs}'[work on N documents at a time]:number'
            ;;
        format)
            _arguments '--help' '--check[write nothing]' '(-o --output)'{-o,--output}'[write to FILE]:file:_files' \
                '(-j --jobs)'{-j,--jobs}'[work on N documents at a time]:number' "$documents"
            ;;
        find)
            _arguments '--help' '--regex[a regular expression]' '--word[only whole words]' \
                '--ignore-case[capitals make no difference]' '--format[how to report]:format:(text json)' \
                '1:text' "$documents"
            ;;
        test)
            _arguments '--help' '--junit[write JUnit XML]:file:_files' '--markdown[write Markdown]:file:_files' \
                '--json[one line of JSON for each test]' '--coverage=-[tell what was missed]' '--list[run none]' \
                '--filter[tests with TEXT in their names]:text' '--strict[every state has to be expected]' \
                '--notes-fail[a note is a failure]' \
                '--reading[how to read what is not known]:reading:(at-limit after-limit unstarted-since-power-on unstarted-expired)' \
                '--update[write what happens]' '--rename[write new names]' \
                '(-j --jobs)'{-j,--jobs}'[work on N files at a time]:number' \
                '*:test:_files -g "*.(#i)(zfsm|ztest)"'
            ;;
        simulate)
            _arguments '--help' '--csv[write comma-separated values]:file:_files' '--vcd[write for viewers of signals]:file:_files' \
                '1:document:_files -g "*.(#i)zfsm"' '2:test file:_files -g "*.(#i)ztest"' '3:test'
            ;;
        explore)
            _arguments '--help' '--json[one line of JSON]' '--from[from this state]:state' '--to[the shortest way there]:state' "$documents"
            ;;
        tour)
            _arguments '--help' '(-o --output)'{-o,--output}'[write to FILE]:file:_files' '--empty-cells[also what should do nothing]' \
                '--together[also neighbouring events]' '--limit[at most STEPS steps]:steps' "$documents"
            ;;
        diagram)
            _arguments '--help' '(-o --output)'{-o,--output}'[write to FILE]:file:_files' '--format[what to write]:format:(svg dot)' \
                '--direction[where it leads]:direction:(lr td)' '--focus[what is around this state]:state' '--no-else[leave ELSE out]' "$documents"
            ;;
        export)
            _arguments '--help' '(-o --output)'{-o,--output}'[write to FILE]:file:_files' \
                '--format[what to write]:format:(html markdown csv csv-long json dot mermaid plantuml scxml)' \
                '--safe[no formulas in csv]' '--no-safe[cells as they are]' "$documents"
            ;;
        import)
            _arguments '--help' '(-o --output)'{-o,--output}'[the document to write]:file:_files' \
                '--format[what FILE is]:format:(json csv scxml)' '1:file:_files'
            ;;
        diff)
            _arguments '--help' '--format[how to report]:format:(text json html)' '*--same[the two are the same]:OLD=NEW' \
                '*--different[the old one is gone]:OLD' '--no-view[leave widths and heights out]' "$documents"
            ;;
        show)
            _arguments '--help' '--textconv[for git]' "$documents"
            ;;
        merge)
            _arguments '--help' '(-o --output)'{-o,--output}'[write to FILE]:file:_files' '--ours[take ours]' '--theirs[take theirs]' \
                '--path[what messages call the document]:name' "$documents"
            ;;
        conflicts)
            _arguments '--help' "$documents"
            ;;
        git)
            _arguments '--help' '--global[for this user]' '--yes[do not ask]' '1:what:(enable)'
            ;;
    esac
}

_orvanec "$@"
