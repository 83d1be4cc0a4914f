#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Open with Encoding...: the code page is searched for and chosen by keys, with
# the drawing's own text as the sample; the second dialog is cancelled; a person
# in another country, and one with a screen of twice the density.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
types='Drawings&*.dwg;*.dxf'

# A drawing with two texts in Shift-JIS: front elevation, and reinforced concrete.
text() { printf '  0\r\nTEXT\r\n  8\r\n0\r\n  1\r\n%b\r\n' "$1"; }
drawing="$plans/a drawing whose name says at length what floor of what house it is about.dxf"
{
    printf '  0\r\nSECTION\r\n  2\r\nENTITIES\r\n'
    text '\x90\xb3\x96\xca\x90\x7d 1:50'
    text '\x93\x53\x8b\xd8\x83\x52\x83\x93\x83\x4e\x83\x8a\x81\x5b\x83\x67'
    printf '  0\r\nENDSEC\r\n  0\r\nEOF\r\n'
} >"$drawing"

# ask_encoding TITLE: a request as far as the second dialog.
ask_encoding() {
    ask "$1" open --modes --json --start "$drawing" --filter "$types"
    press alt+o Up Return
    wait_for_window 'Open with Encoding' || fail 'no encoding dialog'
}

# expect_answer MODE NUMBER PAGE
expect_answer() {
    expect 'the exit status' "$status" 0
    expect 'the answer' "$answer" "{\"status\":5100,\"mode\":{\"name\":\"$1\",\"number\":$2},\"paths\":[\"$drawing\"],\"typeIndex\":0,\"codePage\":$3}"
}

ask_encoding 'Searched'
screenshot "$out/encoding.png"
write 'jap'
press Down
screenshot "$out/encoding-japanese.png"
press Return
finish
expect_answer open 256 '"ANSI_932"'

ask_encoding 'Read-only'
write 'shift dos'
press alt+r Return
finish
expect_answer open-read-only 768 '"dos932"'

ask_encoding 'Unicode'
write 'utf8'
press Return
finish
expect_answer open 256 '"UTF-8"'

# The first Escape ends the search.
ask_encoding 'Cancelled'
write 'klingon'
screenshot "$out/encoding-not-found.png"
press Return Escape
wait_for_window 'Open with Encoding' || fail 'the search took the dialog with it'
press Escape
finish
expect_answer open 256 null

ask_encoding 'Cancelled, read-only'
press alt+r Escape
finish
expect_answer open-read-only 768 null

# The page of the user's language, whether or not the system has the locale: where
# it has not, bash mentions that. In these languages the dialogs speak English.
ask_in() { LC_ALL=$1 QT_SCALE_FACTOR=$2 ask_encoding "In $1"; }
ask_in el_GR.UTF-8 1
press Return
finish
expect_answer open 256 '"ANSI_1253"'

ask_in vi_VN.UTF-8 2
screenshot "$out/encoding-double.png"
press Return
finish
expect_answer open 256 '"ANSI_1258"'
