#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# found.sh SPEAKER LIBDIR INSTALL...: the libraries find their translations in the build, and
# wherever an installation is moved to. INSTALL is a command that wants a folder.
set -euo pipefail
speaker=$1 libraries=$2
shift 2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

failed=0
# says LOCALE TEXT
says() {
    local said
    said=$(LC_ALL=$1.UTF-8 LANGUAGE='' "$speaker") || said="exit status $?"
    [[ $said == "$2" ]] || {
        echo "FAILED: $where: $1 reads '$said', not '$2'"
        failed=1
    }
}

where='the build'
says de_AT 'Mehrere Dateien'
says en_US 'Multiple files'
says nl_NL 'Multiple files (no such language)'
where='an installation that was moved'
"$@" "$scratch/first" >/dev/null
mv "$scratch/first" "$scratch/second"
export LD_LIBRARY_PATH=$scratch/second/$libraries
says fr_FR 'Plusieurs fichiers'
says en_US 'Multiple files'
rm -r "$scratch"/second/share
says fr_FR 'Multiple files (no such language)'
exit "$failed"
