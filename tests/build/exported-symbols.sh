#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The module shows its entry points and nothing else.
set -euo pipefail
shown=$(nm -DC --defined-only "$1" | cut -d' ' -f3- | sed 's/(.*//' | LC_ALL=C sort)
expected='CVyFileDialog::Create
CVyFileDialog::Destroy
CVyFileDialog::GetFileName
CVyFileDialog::GetFileNames
CVyFileDialog::SetStyle
CVyFileDialog::s_Style
CVyFileDialog::s_StyleTmp'
if [[ $shown != "$expected" ]]; then
    diff <(echo "$expected") <(echo "$shown")
    exit 1
fi
echo "exported: ${shown//$'\n'/, }"
