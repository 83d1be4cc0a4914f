# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# A virtual display with a window manager, and a user in front of it.

# start_display FOLDER [GEOMETRY]: sets DISPLAY to a server of our own, which
# ends with this shell. Its logs go to FOLDER.
start_display() {
    local folder=$1 geometry=${2:-1280x1024x24}
    mkdir -p "$folder"
    Xvfb -displayfd 3 -screen 0 "$geometry" -nolisten tcp 3>"$folder/display" 2>"$folder/xvfb.log" &
    display_pids=($!)
    trap stop_display EXIT
    wait_until 'a virtual display' 20 test -s "$folder/display"
    DISPLAY=:$(cat "$folder/display")
    export DISPLAY
    unset WAYLAND_DISPLAY QT_QPA_PLATFORM
    openbox >"$folder/openbox.log" 2>&1 &
    display_pids+=($!)
    wait_until 'the window manager' 20 window_manager_runs
}

stop_display() {
    local status=$? # the trap must not change it
    kill "${display_pids[@]}" 2>/dev/null || true
    wait "${display_pids[@]}" 2>/dev/null || true
    return "$status"
}

window_manager_runs() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# wait_until WHAT SECONDS COMMAND...: fails when the command does not succeed in time.
wait_until() {
    local what=$1 tries=$(($2 * 20))
    shift 2
    until "$@"; do
        ((tries-- > 0)) || {
            printf '%s did not come\n' "$what" >&2
            return 1
        }
        sleep 0.05
    done
}

# wait_for_window TITLE: until the active window has that title.
wait_for_window() { wait_until "a window titled \"$1\"" 30 active_window_is "$1"; }
active_window_is() { [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == "$1" ]]; }

# press KEY...: one key press after the other, as fast as a quick user.
press() { xdotool key --delay 120 "$@" && sleep 0.4; }

write() { xdotool type --delay 30 "$1" && sleep 0.4; }

# screenshot FILE
screenshot() { mkdir -p "$(dirname "$1")" && import -window root "$1"; }
