#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The system's own panel for a new drawing: templates picked and proposed, modes
# chosen by mouse and by keys, and both ways to cancel.
source "$(dirname "${BASH_SOURCE[0]}")/panel.sh"
echo template >"$plans/feet.dwt"
echo template >"$plans/iso.dwt"
echo drawing >"$plans/plan.dwg"
new=(new --json --filter 'Templates&*.dwt&Drawings&*.dwg')

ask_panel 'New Drawing' "${new[@]}"
screenshot "$out/new.png"
click_row 1
screenshot "$out/new-picked.png"
click_ok
expect_accepted new-from-template 1 0 iso.dwt

# A start without template wants a file nevertheless.
ask_panel 'Imperial' "${new[@]}" --modes
choose "$lower_popup" 1 "$out/new-modes.png"
press Return
dialog_has_ended && fail 'no file was picked'
click_row 0
screenshot "$out/new-imperial.png"
click_ok
expect_accepted new-imperial 2 0 feet.dwt

ask_panel 'Metric' "${new[@]}"
press Tab Tab space Down Down Return
screenshot "$out/new-metric.png"
click_row 0
press Return
expect_accepted new-metric 3 0 feet.dwt

ask_panel 'Drawings' "${new[@]}"
choose "$upper_popup" 1 "$out/new-types.png"
click_row 0
screenshot "$out/new-drawings.png"
click_ok
expect_accepted new-from-template 1 0 plan.dwg

ask_panel 'Proposed' "${new[@]}" --template iso.dwt
screenshot "$out/new-proposed.png"
press Return
expect_accepted new-from-template 1 0 iso.dwt

ask_panel 'Escape' "${new[@]}"
choose "$lower_popup" 2
press Escape
expect_cancelled new-from-template 1

ask_panel 'Cancel' "${new[@]}" --modes --template iso.dwt
click_cancel
expect_cancelled new-from-template 1

# Closed by the window manager.
ask_panel 'Closed' "${new[@]}" --template iso.dwt
press alt+F4
expect_cancelled new-from-template 1

# A signal ends the command, as it does without a panel.
ask_panel 'Terminated' "${new[@]}"
kill -TERM "$dialog"
finish
expect 'the exit status' "$status" $((128 + $(kill -l TERM)))
expect 'the answer' "$answer" ''
