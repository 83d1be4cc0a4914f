#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# needed-libraries.sh PLAIN PROGRAM LIBRARY...: what the libraries make a host
# load at its start, beside what PLAIN, a program with nothing but Qt's widgets,
# loads. GNUstep's libraries take longer to load than all of Qt's.
set -euo pipefail
most=3 # our two, and the one of Qt's that tells of windows on X11

needed() {
    local found
    found=$(ldd "$1")
    sed -nE 's/^\s*(\S+\.so\S*) .*/\1/p' <<<"$found" | sed 's|.*/||' | LC_ALL=C sort -u
}

failed=0
plain=$(needed "$1")
(($(wc -l <<<"$plain") > 10)) || {
    echo "FAILED: $1 needs next to nothing: $plain"
    exit 1
}
for file in "${@:2}"; do
    more=$(LC_ALL=C comm -13 <(echo "$plain") <(needed "$file"))
    echo "${file##*/} needs beside Qt: ${more//$'\n'/ }"
    if grep -Eiq 'gnustep|objc' <<<"$more"; then
        echo "FAILED: GNUstep is among them"
        failed=1
    fi
    if (($(wc -l <<<"$more") > most)); then
        echo "FAILED: these are more than $most"
        failed=1
    fi
done
exit "$failed"
