# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# A native panel in a real window: where its parts are, and hands that work them.
# Coordinates count from the panel's upper left corner; those below the file list
# from the lower one, as GNUstep places them.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

upper_popup=-111
lower_popup=-80
popup_x=295
item_height=25
buttons=-20
ok_x=598
cancel_x=518
list_x=503
first_row=104
row_height=15

# ask_panel TITLE REQUEST ARGUMENT...
ask_panel() { ask "$@" --style native --start "${start:-$plans}"; }

# point X Y: the pointer rests before a button goes down, as a hand does. GNUstep
# loses the release of a click that comes together with the movement.
point() {
    local x=$1 y=$2
    eval "$(xdotool getactivewindow getwindowgeometry --shell)"
    ((y >= 0)) || y=$((HEIGHT + y))
    xdotool mousemove --window "$WINDOW" "$x" "$y"
    sleep 0.1
}

# click_at X Y [MODIFIER]
click_at() {
    point "$1" "$2"
    [[ -z ${3:-} ]] || xdotool keydown "$3"
    xdotool mousedown 1
    sleep 0.1
    xdotool mouseup 1
    [[ -z ${3:-} ]] || xdotool keyup "$3"
    settle
}
click_row() { click_at "$list_x" $((first_row + $1 * row_height)) "${@:2}"; }
click_ok() { click_at "$ok_x" "$buttons"; }
click_cancel() { click_at "$cancel_x" "$buttons"; }
double_click_row() {
    point "$list_x" $((first_row + $1 * row_height))
    xdotool click --repeat 2 --delay 80 1
}

# drag X Y DOWN [SCREENSHOT]: the picture is taken before the release.
drag() {
    point "$1" "$2"
    xdotool mousedown 1
    settle
    xdotool mousemove_relative --sync -- 0 "$3"
    settle
    [[ -z ${4:-} ]] || screenshot "$4"
    xdotool mouseup 1
    settle
}

# choose POPUP ITEMS [SCREENSHOT]: from the popup's item to the one that many
# further down.
choose() { drag "$popup_x" "$1" $(($2 * item_height)) "${@:3}"; }

# expect_answer STATUS MODE NUMBER TYPE_INDEX CODE_PAGE [NAME]...: the JSON
# answer, with the paths of names in the folder of plans.
expect_answer() {
    local list='' name page=null
    [[ $5 == null ]] || page="\"$5\""
    for name in "${@:6}"; do list+=${list:+,}"\"$plans/$name\""; done
    expect 'the answer' "$answer" \
        "{\"status\":$1,\"mode\":{\"name\":\"$2\",\"number\":$3},\"paths\":[$list],\"typeIndex\":$4,\"codePage\":$page}"
}

# expect_accepted MODE NUMBER TYPE_INDEX NAME..., expect_cancelled MODE NUMBER:
# the end, as it is told and as the exit status says.
expect_accepted() {
    finish
    expect 'the exit status' "$status" 0
    expect_answer 5100 "$1" "$2" "$3" null "${@:4}"
}
expect_cancelled() {
    finish
    expect 'the exit status' "$status" 1
    expect_answer -5002 "$1" "$2" null null
}
