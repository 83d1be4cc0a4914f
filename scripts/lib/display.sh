# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# A virtual display with a window manager, and a user in front of it.

folders_of_display=() # that go with it

# start_display FOLDER [GEOMETRY]: sets DISPLAY to a server of our own, which
# ends with this shell. Its logs go to FOLDER.
start_display() {
    local folder=$1 geometry=${2:-1280x1024x24} tries=5
    mkdir -p "$folder"
    display_pids=()
    trap stop_display EXIT
    until start_server "$folder" "$geometry"; do
        ((--tries > 0)) || return 1
    done
    unset WAYLAND_DISPLAY QT_QPA_PLATFORM
    openbox >"$folder/openbox.log" 2>&1 &
    display_pids+=($!)
    wait_until 'the window manager' 60 window_manager_runs
}

# A number by chance, not the next free one: a server that is just ending would
# take the socket of its successor away. Without -noreset the server starts anew
# when its last client goes, and cuts off a window manager that is just coming.
start_server() {
    local folder=$1 geometry=$2 number=$((100 + RANDOM % 900))
    rm -f "$folder/display"
    Xvfb ":$number" -displayfd 3 -screen 0 "$geometry" -fbdir "$folder" -nolisten tcp -noreset \
        3>"$folder/display" 2>"$folder/xvfb.log" &
    display_pids+=($!)
    screen_memory=$folder/Xvfb_screen0
    DISPLAY=:$number
    export DISPLAY
    wait_until "a virtual display $DISPLAY" 10 test -s "$folder/display"
}

stop_display() {
    local status=$? # the trap must not change it
    kill "${display_pids[@]}" 2>/dev/null || true
    wait "${display_pids[@]}" 2>/dev/null || true
    rm -rf "${folders_of_display[@]}"
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

# wait_for_window TITLE: until the active window has that title and is painted.
wait_for_window() {
    wait_until "a window titled \"$1\"" 60 active_window_is "$1" && settle
}
active_window_is() {
    [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == "$1" &&
        $(xdotool getwindowfocus getwindowname 2>/dev/null) == "$1" ]]
}

# Waits, as a person does, until the screen has stopped changing: six looks, one like
# the other. They take longer on a busy machine, as what they wait for does; where they
# take so long that a caret blinks between them, twelve at the same two pictures will do.
settle() {
    local looks=1 of_two=1 tries=1200 before other='' now
    before=$(screen_sum)
    while ((looks < 6 && of_two < 12)); do
        ((tries-- > 0)) || {
            printf 'a quiet screen did not come\n' >&2
            return 1
        }
        sleep 0.05
        now=$(screen_sum)
        [[ $now == "$before" || $now == "$other" ]] || of_two=0
        [[ $now == "$before" ]] || looks=0 other=$before
        before=$now
        ((++looks, ++of_two))
    done
}
# The server keeps the screen in a file: a picture asked of it takes ten times as long.
screen_sum() { cksum <"$screen_memory"; }

# press KEY...: one key after the other, each when the one before has shown its effect.
press() {
    local key
    for key in "$@"; do
        xdotool key "$key" && settle
    done
}

write() { xdotool type --delay 30 "$1" && settle; }

# click X Y: in the active window
click() { xdotool mousemove --window "$(xdotool getactivewindow)" "$1" "$2" click 1 && settle; }

# screenshot FILE
screenshot() { mkdir -p "$(dirname "$1")" && import -window root "$1"; }
