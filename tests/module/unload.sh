#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# unload.sh HOST FOLDER MODULE PLUGIN LIBRARY...: a host unloads its plug-in after it has
# shown both dialogs, and does so again. GNUstep is at work all the while.
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/lib.sh"
mkdir -p "$out/lib/VyFileDialogs"
cp "$3" "$out/lib/VyFileDialogs"
cp "${@:4}" "$out/lib"

"$program" "$out/lib/${4##*/}" load qt native unload load native qt unload modules \
    >"$out/answer" 2>"$out/errors" &
dialog=$!
before='qt -5002'
for panel in first second; do
    # The Qt dialog, which closes by itself, has the same title.
    wait_until "the $panel panel" 60 grep -qx "$before" "$out/answer"
    wait_for_window 'Plug-in' || fail "no $panel panel"
    screenshot "$out/$panel.png"
    press Escape
    before='unload ok'
done
finish
expect 'the exit status' "$status" 0
expect 'what the host did' "$answer" 'load ok
qt -5002
native -5002
unload ok
load ok
native -5002
qt -5002
unload ok
modules 1, GNUstep yes'
