#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Every file of the project says its licence, in itself or in FILE.license; a kind of
# file that keeps no comments in KIND.license of its folder.
set -euo pipefail
cd "$1"
files=$(git ls-files 2>/dev/null) || {
    echo 'skipped: not a git checkout'
    exit 77
}
missing=0
while IFS= read -r file; do
    [[ $file == LICENSE || ! -e $file ]] && continue
    head -n 12 "$file" | grep -qa 'SPDX-License-Identifier' && continue
    grep -qs 'SPDX-License-Identifier' "$file.license" "${file%/*}/${file##*.}.license" && continue
    echo "no SPDX line: $file"
    missing=1
done <<<"$files"
exit $missing
