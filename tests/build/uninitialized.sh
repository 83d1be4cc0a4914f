#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# uninitialized.sh SOURCES OPTION...: CMake reads no variable of ours that nobody has set.
set -euo pipefail
sources=$1
shift
build=$(mktemp -d)
trap 'rm -rf "$build"' EXIT
said=$(cmake -S "$sources" -B "$build" -G Ninja --warn-uninitialized "$@" 2>&1) || {
    echo "$said"
    exit 1
}
# Those of modules that come with CMake and with Qt are theirs.
if grep -A1 'CMake Warning (dev) at' <<<"$said" | grep -A1 "at \($sources\|[A-Za-z]\)"; then
    echo 'FAILED: these variables were not set'
    exit 1
fi
