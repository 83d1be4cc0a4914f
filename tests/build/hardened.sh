#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# hardened.sh PREFIX COMPILER: of the libraries and programs that were installed, each was
# built as cmake/VyHardening.cmake says.
set -euo pipefail
failed=0 files=0
fail() {
    echo "FAILED: ${file#"$prefix/"}: $*"
    failed=1
}

prefix=$1 compiler=$2
while IFS= read -r file; do
    files=$((files + 1))
    segments=$(readelf --wide --segments "$file")
    dynamic=$(readelf --wide --dynamic "$file")
    imported=$(nm --dynamic --undefined-only --format=just-symbols "$file")

    grep -q ' GNU_RELRO ' <<<"$segments" || fail 'its tables of addresses stay writable'
    grep -Eq '\(FLAGS(_1)?\).*\b(BIND_)?NOW\b' <<<"$dynamic" || fail 'it is bound call by call'
    grep -Eq ' GNU_STACK .* RW +0x' <<<"$segments" || fail 'its stack can be executed'
    grep -q '\bTEXTREL\b' <<<"$dynamic" && fail 'its code is written to when it is loaded'
    # shellcheck disable=SC2016
    grep -E '\((RPATH|RUNPATH)\)' <<<"$dynamic" | grep -vE '\(RUNPATH\).*\[\$ORIGIN(/\.\.[^:]*)?\]' &&
        fail 'it looks for libraries elsewhere than beside itself'
    grep -q '^__stack_chk_fail\b' <<<"$imported" || fail 'its stack is not guarded'
    # Where g++ does not know the room it calls the plain ones, clang never does.
    [[ $compiler == GNU ]] || grep -Eq '^__\w+_chk\b' <<<"$imported" ||
        fail 'its calls of the C library do not know the room'
    [[ $file != */bin/* ]] || grep -q '(FLAGS_1).*\bPIE\b' <<<"$dynamic" ||
        fail 'it has a fixed place in memory'
done < <(find "$prefix" -type f \( -name 'lib*.so*' -o -path '*/bin/*' \))

((files >= 4)) || {
    echo "FAILED: only $files files were installed"
    failed=1
}
exit "$failed"
