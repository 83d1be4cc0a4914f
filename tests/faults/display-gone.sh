#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The display goes while a dialog is up. Qt ends a program whose display has gone: it
# does so at once, without a crash, and nothing of the user's has changed.
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/lib.sh"

cp "$here"/../../examples/drawings/*.dxf "$plans"
first=$(cd "$plans" && LC_ALL=C.UTF-8 ls | head -n 1)
drawings() { (cd "$plans" && cksum ./*); }
before=$(drawings)

# lose_display WHAT: the server ends, of whose processes the window manager is the last.
lose_display() {
    kill "${display_pids[-2]}"
    local status=0
    wait_until "the end of a program that was $1" 20 dialog_has_ended || fail 'it goes on'
    wait "$dialog" || status=$?
    dialog=
    expect "the exit status, $1," "$status" 3
    expect 'the answer' "$(cat "$out/answer")" ''
    expect 'what is in the folder' "$(drawings)" "$before"
    stop_display
}

ask 'Open' open --start "$plans"
press shift+Tab Down Up
lose_display 'showing a preview'

start_display "$out/display"
trap end_test EXIT
ask 'Save As' save --start "$plans/$first"
press Return
lose_display 'asking whether to overwrite'
trap - EXIT
