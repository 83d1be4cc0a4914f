#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The system's own panel to save: names typed, a type chosen, an existing file
# asked about, and both ways to cancel.
source "$(dirname "${BASH_SOURCE[0]}")/panel.sh"
save=(save --json --type-index 0 --filter 'Drawings&*.dwg&Exchange&*.dxf')

ask_panel 'Save Drawing' "${save[@]}"
screenshot "$out/save.png"
write plan
screenshot "$out/save-typed.png"
press Return
expect_accepted save 65536 0 plan.dwg

# The index of the type that was chosen comes back.
ask_panel 'Another Type' "${save[@]}"
choose "$lower_popup" 1 "$out/save-types.png"
write 'annex of plan'
screenshot "$out/save-exchange.png"
click_ok
expect_accepted save 65536 1 'annex of plan.dxf'

ask_panel 'By Keys' "${save[@]}"
write 'plan 2'
press Tab space Down space
screenshot "$out/keys-exchange.png"
press shift+Tab
press Return
expect_accepted save 65536 1 'plan 2.dxf'

# Only files of the chosen type are listed. One that is clicked gives its name.
echo drawing >"$plans/plan.dwg"
echo exchange >"$plans/plan.dxf"

# The question comes whatever the user's level. Escape returns to the panel.
ask_panel 'Overwrite' "${save[@]}" --expert-level 2
click_row 0
screenshot "$out/overwrite-picked.png"
click_ok
screenshot "$out/overwrite.png"
press Escape
screenshot "$out/overwrite-declined.png"
dialog_has_ended && fail 'declining to replace a file has closed the panel'
press Return
screenshot "$out/overwrite-again.png"
press Return
expect_accepted save 65536 0 plan.dwg

start=$plans/plan.dwg
ask_panel 'Proposed Name' "${save[@]}"
screenshot "$out/proposed.png"
press Return Escape Escape
expect_cancelled save 65536

# A name that replaces the one proposed.
ask_panel 'Another Name' "${save[@]}"
write roof
screenshot "$out/another-name.png"
press Return
expect_accepted save 65536 0 roof.dwg

start=$plans
ask_panel 'Escape' "${save[@]}"
write plan
press Escape
expect_cancelled save 65536

ask_panel 'Cancel' "${save[@]}" --multiple
choose "$lower_popup" 1
click_cancel
expect_cancelled save 65536
