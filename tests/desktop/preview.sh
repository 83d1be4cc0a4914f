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

# preview_is_dark SCALE: whether most of what stands at the right of the list, in
# the middle of the preview, is the drawings' dark paper and not the dialog's grey.
preview_is_dark() {
    eval "$(xdotool getactivewindow getwindowgeometry --shell)"
    import -window root -crop "$((100 * $1))x$((30 * $1))+$((X + WIDTH - 150 * $1))+$((Y + 130 * $1))" \
        +repage "$out/preview.png"
    [[ $(convert "$out/preview.png" -format '%[fx:mean<0.5]' info:) == 1 ]]
}

for scale in 1 2; do
    export QT_SCALE_FACTOR=$scale
    ask "Drawings at ${scale}00 %" open --modes --start "$plans" --filter "$types"
    press shift+Tab
    write r1.4
    ! preview_is_dark $scale || fail 'there is a preview of a drawing that has none'
    write r2007-bmp8
    screenshot "$out/preview-${scale}00.png"
    preview_is_dark $scale || fail 'there is no preview'
    press Return
    finish
    expect 'the exit status' "$status" 0
    expect 'the answer' "$answer" "$plans/r2007-bmp8-256x94.dwg"
done
