#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Saving: a typed name gets its extension, an existing file is asked about.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
types='Drawings&*.dwg&Exchange&*.dxf'

# Without modes the window is called "Save As", whatever the title.
"$program" save --start "$plans" --filter "$types" --type-index 0 --title Ignored >"$out/answer" 2>"$out/errors" &
dialog=$!
wait_for_window 'Save As' || fail 'no window "Save As"'
write plan
screenshot "$out/save-as.png"
press Return
finish
expect 'the exit status' "$status" 0
expect 'the answer' "$answer" "$plans/plan.dwg"

echo drawing >"$plans/plan.dwg"
ask 'Overwrite' save --modes --start "$plans/plan.dwg" --filter "$types" --type-index 0
press Return
screenshot "$out/overwrite.png"
press alt+n
press Escape
finish
expect 'the exit status' "$status" 1

ask 'Expert' save --modes --expert-level 2 --start "$plans/plan.dwg" --filter "$types" --type-index 0
press Return
finish
expect 'the exit status' "$status" 0
expect 'the answer' "$answer" "$plans/plan.dwg"
