#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# own-kernel-used.sh ACME FOLDER [--native]: the host with a kernel of its own, worked
# by the keys of its File menu.
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/lib.sh"
arguments=("${@:3}")
touch "$plans/gear.dxf"
mkdir "$HOME/Templates"

# choose KEY TITLE: in the File menu, until the dialog is there.
choose() {
    answered=$(wc -l <"$out/answer")
    xdotool key "$1"
    wait_for_window "$2" || fail "no window \"$2\": $(cat "$out/errors")"
}
has_answered() { (($(wc -l <"$out/answer") > answered)); }

# expect_answer ANSWER
expect_answer() {
    wait_until 'an answer' 60 has_answered || fail "no answer: $(cat "$out/errors")"
    expect 'the answer' "$(tail -n 1 "$out/answer")" "$1"
    wait_for_window Acme || fail 'Acme is not the active window'
}

cd "$plans"
"$program" "${arguments[@]}" >"$out/answer" 2>"$out/errors" &
dialog=$!
wait_for_window Acme || fail "no window: $(cat "$out/errors")"

choose ctrl+o 'Open Drawing'
write gear.dxf
screenshot "$out/open.png"
press Return
expect_answer "5100 256 0 $plans/gear.dxf"

if [[ ${arguments[*]} == *--native* ]]; then
    expect 'the list of recent files' "$(sed -n 's/^RecentFiles=//p' "$XDG_CONFIG_HOME/Acme/Acme.conf")" \
        "$plans/gear.dxf"
else
    choose ctrl+o 'Open Drawing'
    write gear.dxf
    press alt+o Up Return
    wait_for_window 'Encoding of gear.dxf' || fail 'no encoding dialog'
    screenshot "$out/encoding.png"
    press alt+r Return
    expect_answer "5100 768 0 $plans/gear.dxf"

    # The type has another extension than the name.
    choose ctrl+s 'Save Drawing As'
    write gear.old
    screenshot "$out/save.png"
    press Return
    expect_answer "5100 65536 0 $plans/gear.old.dwg"

    # The last of the Open button's menu: metric, without a template.
    choose ctrl+n 'New Drawing'
    press Tab Tab alt+Down
    screenshot "$out/new.png"
    press Up Return
    expect_answer "5100 3 0 "
fi

press alt+F4
finish
expect 'the exit status' "$status" 0
