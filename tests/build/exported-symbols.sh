#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# exported-symbols.sh LIBRARY [NATIVE-MODULE]: the module shows its entry points
# and nothing else, and so does that of the native panels.
set -euo pipefail

# expect_shown FILE SYMBOLS
expect_shown() {
    local shown
    shown=$(nm -DC --defined-only "$1" | cut -d' ' -f3- | sed 's/(.*//' | LC_ALL=C sort)
    if [[ $shown != "$2" ]]; then
        diff <(echo "$2") <(echo "$shown")
        exit 1
    fi
    echo "exported by ${1##*/}: ${shown//$'\n'/, }"
}

expect_shown "$1" 'CVyFileDialog::Create
CVyFileDialog::Destroy
CVyFileDialog::GetFileName
CVyFileDialog::GetFileNames
CVyFileDialog::LoadTranslations
CVyFileDialog::SetStyle
CVyFileDialog::s_Style
CVyFileDialog::s_StyleTmp'
[[ -z ${2:-} ]] || expect_shown "$2" VyCreateNativeDialog
