#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# run.sh FUZZER SECONDS FOLDER: runs one fuzzer, which begins with what it once found and
# with its seeds, and keeps in FOLDER/new what it learns. An input that breaks something
# is left in FOLDER/findings.
set -euo pipefail
fuzzer=$1 seconds=$2 folder=$3
name=${fuzzer##*/Fuzz}
mkdir -p "$folder/new/$name" "$folder/findings"
corpus=("$folder/new/$name" "$folder/seeds/$name")
past=$(dirname "${BASH_SOURCE[0]}")/findings/$name
[[ ! -d $past ]] || corpus+=("$past")
exec "$fuzzer" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -verbosity=0 \
    -print_final_stats=1 -artifact_prefix="$folder/findings/$name-" "${corpus[@]}"
