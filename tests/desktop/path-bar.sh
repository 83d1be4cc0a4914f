#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The path bar: a deep folder, a folder button worked by mouse.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
types='All files&*'
deep=$plans
for i in $(seq 1 7); do deep="$deep/A rather long folder name $i"; done
mkdir -p "$deep"
echo drawing >"$plans/plan.dwg"

ask 'Deep Folder' open --start "$deep" --filter "$types"
screenshot "$out/deep.png"
# The root's button is the first of the row; a name typed after a click on it
# counts from the root.
click 25 25
write "${plans#/}/plan.dwg"
screenshot "$out/root.png"
press Return
finish
expect 'the exit status' "$status" 0
expect 'the answer' "$answer" "$plans/plan.dwg"

# 25 folders deep, on a screen 1280 pixels wide.
for i in $(seq 8 25); do deep="$deep/folder $i"; done
mkdir -p "$deep"
ask 'Very Deep Folder' open --start "$deep" --filter "$types"
screenshot "$out/very-deep.png"
eval "$(xdotool getactivewindow getwindowgeometry --shell)"
((WIDTH <= 1280)) || fail "the dialog is $WIDTH pixels wide"
press Escape
finish
expect 'the exit status' "$status" 1
