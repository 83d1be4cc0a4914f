#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The sample's window around the system's panel, which has the tool window hidden.
source "$(dirname "${BASH_SOURCE[0]}")/panel.sh"
source "$here/sample-window.sh"

start_sample --style native "$plans/gear.dxf"
expect_title 'gear.dxf - '
press alt+f o
wait_for_window 'Open Drawing' || fail 'no panel'
screenshot "$out/panel.png"
! tools_are_shown || fail 'the tool window is shown'
click_close_of_gear
expect_title 'gear.dxf - '
xdotool windowactivate --sync "$(xdotool search --onlyvisible --name '^Open Drawing$')"
wait_for_window 'Open Drawing' || fail 'the panel is gone'
write floor-plan.dxf
press Return
wait_for_window "floor-plan.dxf - $name" || fail 'the drawing was not opened'
screenshot "$out/opened.png"
wait_until 'the tool window' 60 tools_are_shown || fail 'the tool window stays hidden'
settle
drawing=$(canvas)
click_zoom_out
[[ $(canvas) != "$drawing" ]] || fail 'the tools do nothing'
click_close_of_gear
click_close_of_plan
expect_title ''
xdotool windowactivate --sync "$main"
press ctrl+q
finish
expect 'the exit status' "$status" 0
expect_recent floor-plan.dxf gear.dxf
