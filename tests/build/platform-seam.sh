#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# platform-seam.sh ROOT: C++ sources see no Objective-C, not even through the
# headers that they include, and only VyCocoa and CMake ask for the platform.
set -euo pipefail
cd "$1"
failed=0
fail() {
    echo "FAILED: $*"
    failed=1
}

# included_by FILE: the headers of ours that it includes, directly or not.
included_by() {
    local queue=("$1") seen=" " file name header
    while ((${#queue[@]})); do
        file=${queue[0]}
        queue=("${queue[@]:1}")
        while read -r name; do
            for header in {VyFileDialogs,HostKernel,SampleHost}/"$name"; do
                [[ -f $header && $seen != *" $header "* ]] || continue
                seen+="$header "
                queue+=("$header")
                echo "$header"
            done
        done < <(sed -nE 's/^#(include|import) "([^"]*)".*/\2/p' "$file")
    done
}

objective_c='#import|@interface|@class|@protocol|@end|Objective-C|\bNS[A-Z][a-z]+[A-Za-z]* *\*'
sources=0
for source in {VyFileDialogs,HostKernel,SampleHost}/*.cpp; do
    sources=$((sources + 1))
    for file in "$source" $(included_by "$source"); do
        found=$(grep -nE "$objective_c" "$file" || true)
        [[ -z $found ]] || fail "$source sees Objective-C in $file: $found"
    done
done
((sources > 30)) || fail "only $sources sources were found"

asks='^ *# *(el)?if.*(Q_OS_|__APPLE__|__linux__|__unix__|_WIN32|GNUSTEP|__OBJC__|TARGET_OS)'
found=$(grep -rnE "$asks" VyFileDialogs HostKernel SampleHost | grep -v '/VyCocoa' || true)
[[ -z $found ]] || fail "a platform is asked for: $found"
exit "$failed"
