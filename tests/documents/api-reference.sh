#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# api-reference.sh ROOT FOLDER: doxygen has a text for every public name and no warning, and
# reads each header that a kernel has to bring. The reference goes to FOLDER.
set -euo pipefail
command -v doxygen >/dev/null || {
    echo 'skipped: doxygen is not installed'
    exit 77
}
cd "$1"
headers=$(sed -n 's/^| \(`[^|]*\) |.*/\1/p' HostKernel/README.md | grep -o '[A-Za-z]*\.h')
for header in $headers; do
    grep -q "HostKernel/$header" docs/Doxyfile || {
        echo "FAILED: docs/Doxyfile does not have $header"
        exit 1
    }
done
{
    cat docs/Doxyfile
    echo "OUTPUT_DIRECTORY = $2"
} | doxygen -
for page in index classCVyFileDialog interfaceVyMacDocumentController VyDocument_8h; do
    [[ -s $2/api/$page.html ]] || {
        echo "FAILED: there is no page $page"
        exit 1
    }
done
