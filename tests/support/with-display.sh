#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# with-display.sh FOLDER PROGRAM ARGUMENT...: runs a test on a virtual display
# with a window manager, with settings of its own, all in FOLDER. A test that
# hangs for VY_TEST_SECONDS, or 240, is killed: GNUstep's modal loops take no other end.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/../../scripts/lib/display.sh"
source "$here/gnustep.sh"

folder=$1
shift
for tool in Xvfb openbox xprop; do
    command -v "$tool" >/dev/null || {
        echo "skipped: $tool is not installed"
        exit 77
    }
done
rm -rf "$folder"
mkdir -p "$folder/home" "$folder/runtime" "$folder/tmp"
chmod 700 "$folder/runtime"
export HOME=$folder/home XDG_RUNTIME_DIR=$folder/runtime TMPDIR=$folder/tmp
own_gnustep_settings "$folder/gnustep"
start_display "$folder/display"
timeout --signal=KILL "${VY_TEST_SECONDS:-240}" "$@"
