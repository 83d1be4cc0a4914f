#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The system's own panel to open: modes and types chosen by mouse and by keys,
# files picked, several of them, names typed, and both ways to cancel.
source "$(dirname "${BASH_SOURCE[0]}")/panel.sh"
cp "$here"/../../examples/drawings/*.dxf "$plans"
echo drawing >"$plans/alley.dwg"
echo template >"$plans/iso.dwt"
echo notes >"$plans/notes.txt"
types='Drawings&*.dwg;*.dxf&Templates&*.dwt&All files&*.*'
open=(open --json --filter "$types")

# The list: alley.dwg bracket.dxf floor-plan.dxf gear.dxf
ask_panel 'Read-Only' "${open[@]}" --modes
screenshot "$out/open.png"
choose "$lower_popup" 1 "$out/open-modes.png"
click_row 3
screenshot "$out/open-read-only.png"
click_ok
expect_accepted open-read-only 768 0 gear.dxf

# The first row is another file under another type.
ask_panel 'Another Type' "${open[@]}" --modes --no-template-folder
choose "$upper_popup" 1 "$out/open-types.png"
click_row 0
screenshot "$out/open-templates.png"
click_ok
expect_accepted open 256 0 iso.dwt

ask_panel 'Any File' "${open[@]}" --type-index 1
choose "$lower_popup" 1 "$out/open-types-alone.png"
click_row 5
screenshot "$out/open-any-file.png"
click_ok
expect_accepted open 256 1 notes.txt

# A type and back again, then a mode, without the mouse.
ask_panel 'By Keys' "${open[@]}" --modes --no-template-folder
press Tab space Down space
screenshot "$out/keys-templates.png"
press space Up space
press Tab space Down Return
screenshot "$out/keys-read-only.png"
click_row 0
click_ok
expect_accepted open-read-only 768 0 alley.dwg

# Choosing templates goes to their folder.
mkdir "$plans/office"
echo template >"$plans/office/metric.dwt"
ask_panel 'Template Folder' "${open[@]}" --modes --template-folder "$plans/office"
choose "$upper_popup" 1
click_row 0
screenshot "$out/template-folder.png"
click_ok
expect_accepted open 256 0 office/metric.dwt
rm -r "$plans/office"

ask_panel 'Two Files' "${open[@]}" --modes --multiple
click_row 0
click_row 2 shift
screenshot "$out/two-files.png"
click_ok
expect_accepted open 256 0 alley.dwg floor-plan.dxf

ask_panel 'A Row of Files' "${open[@]}" --modes --multiple
drag "$list_x" $((first_row + row_height)) $((2 * row_height))
screenshot "$out/row-of-files.png"
click_ok
expect_accepted open 256 0 bracket.dxf floor-plan.dxf gear.dxf

# Command is the Alt key here. Folders are no files.
mkdir "$plans/old"
ask_panel 'All Files' "${open[@]}" --modes --multiple
click_row 1
press alt+a
screenshot "$out/all-files.png"
click_ok
expect_accepted open 256 0 alley.dwg bracket.dxf floor-plan.dxf gear.dxf

# Without modes the panel takes one file, whatever was asked for.
ask_panel 'One File' "${open[@]}" --multiple
click_row 0
click_row 2 shift
screenshot "$out/one-file.png"
click_ok
expect_accepted open 256 0 floor-plan.dxf

# The second dialog is Qt's.
ask_panel 'Encoding' "${open[@]}" --modes
choose "$lower_popup" 2
click_row 1
click_ok
wait_for_window 'Open with Encoding' || fail 'no encoding dialog'
write 'Greek (W'
screenshot "$out/encoding.png"
press Return
finish
expect 'the exit status' "$status" 0
expect_answer 5100 open 256 0 ANSI_1253 bracket.dxf

# A folder entered, its file accepted by a double click.
echo drawing >"$plans/old/cellar.dwg"
ask_panel 'Folder' "${open[@]}"
click_row 4
screenshot "$out/folder.png"
double_click_row 0
expect_accepted open 256 0 old/cellar.dwg

ask_panel 'Typed' "${open[@]}"
write alley.dwg
screenshot "$out/typed.png"
press Return
expect_accepted open 256 0 alley.dwg

# A file to start from is not chosen.
start=$plans/gear.dxf
ask_panel 'Escape' "${open[@]}" --modes --multiple
screenshot "$out/start-file.png"
press Return
dialog_has_ended && fail 'no file was chosen'
press Escape
expect_cancelled open 256
start=$plans

ask_panel 'Cancel' "${open[@]}" --modes
choose "$lower_popup" 1
click_row 0
click_cancel
expect_cancelled open 256

# Each letter of the name goes to the name.
ask_panel 'Typed To The End' "${open[@]}"
write floor-plan.dxf
screenshot "$out/typed-to-the-end.png"
press Return
expect_accepted open 256 0 floor-plan.dxf
