#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# run.sh FUZZER SECONDS FOLDER: runs one fuzzer, which begins with what it once found and
# with its seeds, and keeps in FOLDER/new what it learns. An input that breaks something
# is left in FOLDER/findings. The last line says how long it had a processor.
set -euo pipefail
fuzzer=$1 seconds=$2 folder=$3
name=${fuzzer##*/Fuzz}
mkdir -p "$folder/new/$name" "$folder/findings"
corpus=("$folder/new/$name" "$folder/seeds/$name")
past=$(dirname "${BASH_SOURCE[0]}")/findings/$name
[[ ! -d $past ]] || corpus+=("$past")
TIMEFORMAT='processor_seconds: %0U'
time "$fuzzer" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_funcs=0 \
    -print_final_stats=1 -artifact_prefix="$folder/findings/$name-" "${corpus[@]}"
