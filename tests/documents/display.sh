#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# display.sh PYTHON ROOT PROGRAMS FOLDER: the script in docs/testing-your-host.md, as it
# stands there, with the programs of one folder; what it leaves goes to the other.
set -euo pipefail
python=$1 programs=$3 folder=$4
cd "$2"
for tool in Xvfb openbox xdotool xprop; do
    command -v "$tool" >/dev/null || {
        echo "skipped: $tool is not installed"
        exit 77
    }
done
rm -rf "$folder"
mkdir -p "$folder"
"$python" tests/documents/code_blocks.py extract sh docs/testing-your-host.md "$folder/script.sh"
timeout --signal=KILL 120 bash -euo pipefail "$folder/script.sh" "$programs" "$folder"
