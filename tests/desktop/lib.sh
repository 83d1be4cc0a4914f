# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# A desktop test: the command-line host in a real window, worked as a person
# would. Called by ctest with the program and a folder for what is left behind.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/../../scripts/lib/display.sh"
source "$here/../support/gnustep.sh"

program=$1
out=$2

for tool in Xvfb openbox xdotool import xprop; do
    command -v "$tool" >/dev/null || {
        echo "skipped: $tool is not installed"
        exit 77
    }
done

# Every test starts with empty settings and a folder of its own.
rm -rf "$out"
mkdir -p "$out/home/ann/Plans" "$out/config" "$out/runtime"
chmod 700 "$out/runtime"
export HOME=$out/home XDG_CONFIG_HOME=$out/config XDG_RUNTIME_DIR=$out/runtime LC_ALL=C.UTF-8
unset QT_QPA_PLATFORMTHEME
own_gnustep_settings "$out/gnustep"
plans=$out/home/ann/Plans

fail() {
    echo "FAILED: $*" >&2
    screenshot "$out/failed.png" || true
    exit 1
}

# expect WHAT IS SHOULD_BE
expect() {
    [[ $2 == "$3" ]] || fail "$1 is '$2', expected '$3'"
    echo "ok: $1 is '$3'"
}

# ask TITLE ARGUMENT...: starts the program and waits for its window.
ask() {
    local title=$1
    shift
    "$program" "$@" --title "$title" >"$out/answer" 2>"$out/errors" &
    dialog=$!
    wait_for_window "$title" || fail "no window: $(cat "$out/errors")"
}

# Waits for the end; sets status and answer.
finish() {
    status=0
    wait_until 'the end of the dialog' 60 dialog_has_ended || fail 'the dialog is still open'
    wait "$dialog" || status=$?
    dialog=
    answer=$(cat "$out/answer")
    # Qt mentions windows that have gone before it asked the server about them.
    expect 'what is said on standard error' "$(grep -v 'QXcbConnection: XCB error' "$out/errors")" ''
}

dialog_has_ended() { ! kill -0 "$dialog" 2>/dev/null; }

# A dialog that a failure leaves open goes; one that hangs takes no other end.
end_test() {
    local result=$?
    [[ -z $dialog ]] || kill -KILL "$dialog" 2>/dev/null || true
    stop_display || true
    exit "$result"
}

dialog=
start_display "$out/display" "${screen:-}"
trap end_test EXIT
