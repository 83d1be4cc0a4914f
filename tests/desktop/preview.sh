#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The preview beside the list: drawings of other programs, at 100 % and at 200 %.
samples=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../.." && pwd)/shared/samples/drawings
[[ -d $samples ]] || {
    echo 'skipped: the folder shared/samples is not there'
    exit 77
}
screen=2560x1600x24
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cp "$samples"/*.d[wx][gft] "$plans"
types='Drawings&*.dwg;*.dxf&Templates&*.dwt'

# preview_colours SCALE: how many there are where the preview stands, at the
# right of the window and below its heading.
preview_colours() {
    eval "$(xdotool getactivewindow getwindowgeometry --shell)"
    local width=$((150 * $1)) height=$((60 * $1))
    import -window root -crop "${width}x$height+$((X + WIDTH - 175 * $1))+$((Y + 120 * $1))" \
        +repage "$out/preview.png"
    identify -format %k "$out/preview.png"
}

for scale in 1 2; do
    export QT_SCALE_FACTOR=$scale
    ask "Drawings at ${scale}00 %" open --modes --start "$plans" --filter "$types"
    press shift+Tab
    write r2007-no-preview
    expect 'the number of colours beside a drawing without preview' "$(preview_colours $scale)" 1
    write r2013-png24
    screenshot "$out/preview-${scale}00.png"
    (($(preview_colours $scale) > 1)) || fail 'there is no preview'
    press Return
    finish
    expect 'the exit status' "$status" 0
    expect 'the answer' "$answer" "$plans/r2013-png24-512x261.dwg"
done
