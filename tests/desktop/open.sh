#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Opening: a drawing with a picture is picked in the list by keys, the mode menu
# is looked at, a type is changed, the dialog is cancelled.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
examples=$here/../../examples/drawings
cp "$examples"/*.dxf "$plans"
first=$(cd "$plans" && LC_ALL=C.UTF-8 ls | head -n 1)
types='Drawings&*.dwg;*.dxf&Templates&*.dwt'

ask 'Open Drawing' open --modes --start "$plans" --filter "$types"
press shift+Tab Down Up
screenshot "$out/open-preview.png"
press alt+o
screenshot "$out/open-menu.png"
press Escape
press Return
finish
expect 'the exit status' "$status" 0
expect 'the answer' "$answer" "$plans/$first"

ask 'Open Read-Only' open --modes --json --start "$plans/$first" --filter "$types"
press alt+o Down Down Return
finish
expect 'the exit status' "$status" 0
[[ $answer == *'"number":768'* ]] || fail "not read-only: $answer"

ask 'Typed' open --start "$plans" --filter "$types"
write "$first"
press Return
finish
expect 'the exit status' "$status" 0
expect 'the answer' "$answer" "$plans/$first"

ask 'Cancelled' open --start "$plans" --filter "$types"
press Escape
finish
expect 'the exit status' "$status" 1
expect 'the answer' "$answer" ''

# "File name" has a mnemonic, and so does no folder of the path bar.
mkdir "$plans/R&D"
cp "$plans/$first" "$plans/R&D/inside.dxf"
ask 'Folder typed' open --start "$plans" --filter "$types"
write "R&D"
press Return
write inside.dxf
screenshot "$out/ampersand.png"
press Return
finish
expect 'the answer' "$answer" "$plans/R&D/inside.dxf"
