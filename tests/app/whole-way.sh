# shellcheck shell=bash disable=SC2154 # what the caller sets
# SPDX-License-Identifier: GPL-3.0-or-later
# The whole way as a user goes it, with real mouse and keys on the installed program: a pump is drawn from an empty table,
# its fault is read and mended, it runs, its run is kept as a test, it is drawn and printed; then the program is killed in
# the middle of the work, the work is recovered, saved and built. What is looked at is what lies on the disk.
# To be sourced after support/by-name.sh by who knows the system that the program is for. It sets
#
#   home        the folder of the work
#   document    the path of pump.zfsm in that folder as the program names it
#   journals    where the program keeps its journals
#
# and has the functions start_program and orvanec, which run in that folder with SOURCE_DATE_EPOCH=0, and to_file NAME, which
# gives the file dialog in front a file in that folder. make_tool leaves $work/tool, which takes a builder script in the place
# of the maker's tool.

# A script that is handed over is read as the tool reads it, and the programs that it lists go to the controller.
make_tool() {
    mkdir -p "$work/controller" "$home"
    cat >"$work/tool" <<END
#!/bin/sh
cd "\$(dirname "\$1")" || exit
tr -d '\r' <"\$1" | sed -e '1,/^#---/d' -e '/^;/d' -e '/^$/d' | while IFS= read -r program; do
    program=\$(printf '%s' "\${program#Z:}" | tr '\\\\' /) # a path of Windows, as this machine has it
    cp "\$program" "$work/controller/handed" && mv "$work/controller/handed" "$work/controller/\$(basename "\$program")"
done
END
    chmod +x "$work/tool"
}

ended() { ! kill -0 "${started[-1]}"; }
wrote() { grep -aqF -- "$1" "$home/pump.zls"; }

define_event() { # ROW NAME CODE
    click_cell "$1" 0
    if [ -n "$3" ]; then
        in_pane txtEventCode "$3"
    fi
    in_field txtName "$2"
    press Return
    in_table
}

draw_machine() {
    step "naming the machine"
    click_cell 0 0
    in_field txtName PMP
    press Return

    step "two states, the second with a timeout"
    click_cell 0 1
    in_pane txtEntryCode ';idle entry'
    in_field txtName Idle
    press Return
    click_cell 0 2
    in_pane txtEntryCode ';run entry'
    click_on 'SSTab1#Timeout'
    click_on optStartTiming
    click_on optTimeCONST
    in_field txtTimeCONST 100
    in_field txtName Run
    press Return

    step "two events, the second still without code"
    define_event 6 Start ';start?'
    define_event 7 Stop ''

    step "transitions and an action"
    type_target 6 1 2
    type_target 7 2 1
    type_target 4 2 1
    click_cell 7 2 3
    click_on mnuTransAct
    click_on mnuEditTransAct
    in_pane txtCode ';stop action'
    click_on cmdOK
}

save() {
    in_table
    press ctrl+s
    await "the saved document" title_starts 'pump.zfsm'
}

mend() {
    step "generating, and reading the report"
    choose mnuCode mnuCodeGenerate
    await "the program in the generator" there txtCode
    press alt+F4
    await "the generator to close" gone 'Generated code'
    local report
    report=$(orvanec check pump.zfsm || true)
    [ "$report" = $'Errors and warnings\n** Error ** Missing event test code in row 7\n**** 1 Errors ****' ] ||
        fail "the report is: $report"

    step "mending the fault"
    define_event 7 Stop ';stop?'
    await "the program" wrote ';stop?'
}

close_and_open() {
    step "saving, closing and opening again"
    save
    press alt+F4
    await "the program to end" ended # its window goes before
    start_program pump.zfsm
    await_table '^pump.zfsm - Orvane V'
}

run_and_test() {
    step "the machine runs"
    choose mnuRun mnuPowerOn
    await "the first state" there 'lblWhere=1:Idle at 0'
    press p
    await "the event to be taken" there 'lblWhere=2:Run at 0'
    press t
    await "the timeout" there 'lblWhere=1:Idle at 100'

    step "the run becomes a test"
    choose mnuRun mnuSaveAsTest
    await "the question for a name" titled '^Save as test$'
    write 'stops by itself'
    press Return
    await "the file of tests" test -s "$home/pump.ztest"
    choose mnuRun mnuRunTests
    await "the test to pass" there \
        'lblTests=pump.ztest: 1 passed, 0 failed; 2 of 2 states and 2 of 3 transitions seen'
    orvanec test pump.zfsm >"$work/tests" || fail "orvanec test: $(cat "$work/tests")"

    step "the test notices a pump that never starts"
    mkdir "$home/faulty"
    sed 's/<TRANS>6:2/<TRANS>6:1/' "$home/pump.zfsm" >"$home/faulty/pump.zfsm"
    cp "$home/pump.ztest" "$home/faulty/pump.ztest"
    ! orvanec test faulty/pump.zfsm >"$work/tests" ||
        fail "orvanec test passes without a transition: $(cat "$work/tests")"
    choose mnuView mnuViewRun # closed again
}

draw_picture() {
    step "the diagram, and its picture"
    choose mnuView mnuViewDiagram
    click_on cmdPicture
    click_on mnuPictureSave
    to_file pump.svg
    await "the picture" test -s "$home/pump.svg"
    local word
    for word in Idle Run Start Stop; do
        grep -q "$word<" "$home/pump.svg" || fail "$word is not in the picture"
    done
    choose mnuView mnuViewDiagram
}

# As the cover of a printed machine has it: without the first line, and as the end of a gzip file has it.
crc32_of_program() { tail -n +2 "$home/pump.zls" | gzip -c | tail -c 8 | od -An -tx4 -N4 | tr -d ' ' | tr a-f A-F; }

print_pdf() {
    step "a PDF, which says of which document and program it is"
    in_table
    press ctrl+p
    click_on cmdPdf
    to_file pump.pdf
    await "the PDF" test -s "$home/pump.pdf"
    [ "$(head -c 5 "$home/pump.pdf")" = %PDF- ] || fail "pump.pdf is no PDF"
    command -v pdftotext >/dev/null || return 0
    # Some fonts have one sign for two letters.
    pdftotext "$home/pump.pdf" - | sed 's/ﬀ/ff/g; s/ﬁ/fi/g; s/ﬂ/fl/g' >"$work/pump.txt"
    local word
    for word in 2:Run ';stop action' "$(sha256sum <"$home/pump.zfsm" | head -c 64)" "$(crc32_of_program)"; do
        grep -qF -- "$word" "$work/pump.txt" || fail "$word is not in the PDF"
    done
}

# The entry code of the new state is still in its editor when the program is killed.
crash() {
    step "a third state, not saved"
    click_cell 0 3
    in_field txtName Rest
    press Return
    type_target 7 2 3
    type_target 6 3 2
    click_cell 0 3
    in_pane txtEntryCode ';rest entry'
    await "the journal to have the open editor" grep -aqrF ';rest entry' "$journals"

    step "the program is killed"
    kill -KILL "${started[-1]}"
    wait "${started[-1]}" 2>/dev/null || true
    rm "$work/places" # nobody answers there any more
    ! grep -aq Rest "$home/pump.zfsm" || fail "the unsaved state is in the document"
}

recover() {
    step "the work is offered, and recovered"
    start_program /nosplash
    await "the offer" titled '^Recover earlier work$'
    xdotool windowactivate "$(window_of '^Recover earlier work$')"
    click_on cmdRecover
    await_table '^\*pump.zfsm - Orvane V'

    step "its steps can be undone down to what was saved, and done again"
    press ctrl+z ctrl+z ctrl+z ctrl+z
    await "the saved document" title_starts 'pump.zfsm'
    press ctrl+y ctrl+y ctrl+y ctrl+y
    await "the recovered document" title_starts '*pump.zfsm'
    save
    grep -aqF ';rest entry' "$home/pump.zfsm" || fail "what was typed in the open editor is lost"
}

# What the last steps have to leave, to the byte.
expected_program() {
    printf '%s\r\n' ';PMP code generated by Orvane 01/01/1970 00:00:00' ";By Orvane from $document:" '' '' \
        'PMP_Idle_Set1:' ';idle entry' 'PMP_Idle_1:' ';start?' $'\tGoifT\tPMP_Run_Set2' $'\tGoTo\tPMP_Idle_1' '' \
        'PMP_Run_Set2:' ';run entry' $'\tSTStart\tPMP_Timer' 'PMP_Run_2:' ';stop?' $'\tGoIfF\tPMP_2_0' ';stop action' \
        $'\tGoTo\tPMP_Rest_Set3' 'PMP_2_0:' $'\tSTTest\tPMP_Timer,100' $'\tGoIfF\tPMP_Idle_Set1' $'\tGoTo\tPMP_Run_2' '' \
        'PMP_Rest_Set3:' ';rest entry' 'PMP_Rest_3:' ';start?' $'\tGoifT\tPMP_Run_Set2' $'\tGoTo\tPMP_Rest_3' '' \
        $'PMP_Timer:\tdefTIME24' ''
}

same() { # WHAT FILE EXPECTED
    cmp "$2" "$3" || fail "$1 differs: $(diff "$2" "$3")"
}

build_machine() {
    step "building"
    choose mnuCode mnuBuildAndTest
    await "the program in the controller" test -s "$work/controller/pump.zls"
    expected_program >"$work/expected.zls"
    orvanec generate --quiet -o - pump.zfsm >"$work/commanded.zls"
    same "the program beside the document" "$home/pump.zls" "$work/expected.zls"
    same "the program of orvanec" "$work/commanded.zls" "$work/expected.zls"
    same "the program that the tool was given" "$work/controller/pump.zls" "$work/expected.zls"

    step "closing, which leaves no journal behind"
    in_table
    press alt+F4
    await "the program to end" ended
    [ -z "$(find "$journals" -type f)" ] || fail "left behind: $(ls "$journals")"
}

the_whole_way() {
    make_tool
    step "starting the installed program without a document"
    start_program /nosplash
    await_table ' - Orvane V'
    draw_machine
    step "saving"
    in_table
    press ctrl+s # the name is asked for when there is none yet
    to_file pump.zfsm
    await "the saved document" title_starts 'pump.zfsm - Orvane V'
    [ ! -e "$home/pump.zls" ] || fail "a design with an error was written"
    mend
    close_and_open
    run_and_test
    draw_picture
    print_pdf
    crash
    recover
    build_machine
}
