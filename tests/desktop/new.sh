#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A new drawing: the menu of the Open button by keyboard and by mouse.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
echo template >"$plans/iso.dwt"
types='Templates&*.dwt'

ask 'New Drawing' new --modes --json --start "$plans" --filter "$types"
press Tab Tab alt+Down
screenshot "$out/new-menu.png"
press Up Return
finish
expect 'the exit status' "$status" 0
[[ $answer == *'"number":3'* ]] || fail "not metric: $answer"

ask 'New From Template' new --modes --start "$plans" --filter "$types" --template iso.dwt
press alt+o
finish
expect 'the exit status' "$status" 0
expect 'the answer' "$answer" "$plans/iso.dwt"

ask 'New Cancelled' new --modes --start "$plans" --filter "$types"
press Tab Tab Tab space
finish
expect 'the exit status' "$status" 1
