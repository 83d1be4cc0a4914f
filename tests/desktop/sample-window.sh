# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# The sample's window, and hands that work it. Comes after lib.sh or panel.sh.
name='VyFileDialogs Sample'
export XDG_DATA_HOME=$out/data # without files of earlier runs
cp "$here"/../../examples/drawings/*.dxf "$plans"

# start_sample ARGUMENT...: with the tool window beside the main one.
start_sample() {
    "$program" "$@" >"$out/answer" 2>"$out/errors" &
    dialog=$!
    wait_until 'the window' 60 main_is_shown || fail "no window: $(cat "$out/errors")"
    main=$(xdotool search --onlyvisible --name "$name\$")
    wait_until 'the tool window' 60 tools_are_shown || fail 'no tool window'
    tools=$(xdotool search --onlyvisible --name '^Tools$')
    xdotool windowmove "$tools" 5 900
    xdotool windowactivate --sync "$main"
    settle
}
main_is_shown() { xdotool search --onlyvisible --name "$name\$" >/dev/null 2>&1; }
tools_are_shown() { xdotool search --onlyvisible --name '^Tools$' >/dev/null 2>&1; }

expect_title() { expect 'the title' "$(xdotool getwindowname "$main")" "$1$name"; }

# expect_recent NAME...: the files of the folder of plans that the next run offers.
expect_recent() {
    expect 'what was opened last' \
        "$(sed -n 's/.*"path":"\([^"]*\)".*/\1/p' "$out/data/vyfiledialog-sample/bookmarks.jsonl")" \
        "$(printf "$plans/%s\n" "$@")"
}

# click_in WINDOW X Y
click_in() {
    xdotool mousemove --window "$1" "$2" "$3"
    sleep 0.1
    xdotool click 1
    settle
}
click_zoom_out() { click_in "$tools" 75 55; }
# The cross on the first tab, which is as wide as its name.
click_close_of_plan() { click_in "$main" 112 38; }
click_close_of_gear() { click_in "$main" 82 38; }

# The upper part of the canvas, which is the drawing.
canvas_as() { import -window root -crop 600x250+150+220 "$1"; }
canvas() { canvas_as rgb:- | cksum; }
