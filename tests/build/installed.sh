#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# installed.sh PREFIX BUILD: what was installed needs nothing of the folder that it
# was built in, and works wherever it is moved to.
set -euo pipefail
prefix=$1 build=$2
moved=$(mktemp -d)
trap 'rm -rf "$moved"' EXIT
cp -R "$prefix/." "$moved"

failed=0
while IFS= read -r file; do
    if readelf -d "$file" | grep -E 'RUNPATH|RPATH' | grep -F "$build"; then
        echo "FAILED: ${file#"$moved/"} looks into the build folder"
        failed=1
    fi
done < <(find "$moved" -type f \( -name 'lib*.so*' -o -path '*/bin/*' \))

status=0
said=$(cd / && "$moved/bin/vyfiledialog" open --style native 2>&1) || status=$?
expected='vyfiledialog: VyFileDialogs: no native panel can be shown: no X display answers; see DISPLAY
vyfiledialog: the dialog cannot be shown (status -5001)'
if [[ $status != 3 || $said != "$expected" ]]; then
    echo "FAILED: vyfiledialog ends with $status and says: $said"
    failed=1
fi
exit "$failed"
