#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The sample's window: a drawing is opened by keys through the menu, and while the
# next dialog is up nothing else can be clicked.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
source "$here/sample-window.sh"

start_sample
expect_title ''
screenshot "$out/empty.png"
empty=$(canvas)
press alt+f o
wait_for_window 'Open Drawing' || fail 'no dialog'
write ann/Plans/floor-plan.dxf
press Return
wait_for_window "floor-plan.dxf - $name" || fail 'the drawing was not opened'
screenshot "$out/opened.png"
drawing=$(canvas)
[[ $drawing != "$empty" ]] || fail 'there is no drawing on the canvas'
canvas_as png:- | convert - -format %c histogram:info:- | grep -q '#1E7A3C' ||
    fail 'the drawing has not the green doors of the floor plan'

press ctrl+o
wait_for_window 'Open Drawing' || fail 'no dialog'
xdotool getactivewindow windowmove 250 540
settle
click_zoom_out
click_close_of_plan
screenshot "$out/locked.png"
expect_title 'floor-plan.dxf - '
expect 'the canvas' "$(canvas)" "$drawing"
wait_for_window 'Open Drawing' || fail 'the dialog has lost the focus'
press Escape
wait_for_window "floor-plan.dxf - $name" || fail 'the window has not the focus'

click_zoom_out
screenshot "$out/zoomed.png"
[[ $(canvas) != "$drawing" ]] || fail 'the tools do nothing'
click_close_of_plan
screenshot "$out/closed.png"
expect_title ''
xdotool windowactivate --sync "$main"
press ctrl+q
finish
expect 'the exit status' "$status" 0
expect_recent floor-plan.dxf
