#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# complete.sh SOURCES: each text of the sources has a translation in each language, and
# no translation is left of a text that is no longer there.
set -euo pipefail
sources=$1
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
cp "$sources"/translations/*.ts "$copy"
"$sources/scripts/update-translations" "$copy"

failed=0
for file in "$copy"/*.ts; do
    name=${file##*/}
    diff -u "$sources/translations/$name" "$file" || {
        echo "FAILED: $name is not what scripts/update-translations makes of it"
        failed=1
    }
    if grep -q 'type="unfinished"' "$file"; then
        echo "FAILED: $name has texts without a translation"
        failed=1
    fi
    if lrelease "$file" -qm /dev/null 2>&1 | grep -i 'warning'; then
        echo "FAILED: lrelease has something to say about $name"
        failed=1
    fi
done
exit "$failed"
